// Writing a file so that neither a full disk nor a sudden end can lose the old one.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

struct SaveResult
{
    bool ok = false;
    QString error; // the system's words if it failed
};

// Replaces the file's content by the pieces, in order. Either all of it is on the disk afterwards
// or the old file stands as it was, also if the process is killed at any moment; what a killed one
// leaves behind is hidden, and removed by the next save into the folder.
//
// Links are followed. The old file's mode stays, and its owner and group as far as the user may
// give files away. A file with several names keeps its old content under the others. What the user
// may not write is refused, and so is a target that is no regular file.
//
// Where another file can't take the target's place (a folder without the right to write, a file
// mounted by itself) it is written in place, and the old bytes are put back if that fails. Only
// there can a kill leave a file that is half old and half new.
SaveResult saveFileSafely(const QString &path, const std::vector<QByteArray> &pieces);
