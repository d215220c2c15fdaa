// Writing a file so that neither a full disk nor a sudden end can lose the old one.
#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

#include <sys/stat.h>

struct SaveResult
{
    bool ok = false;
    QString error; // the system's words if it failed
    // False if it failed because nothing could be opened for writing under that name. A disk that
    // had no room even for the new file's name was opened.
    bool opened = false;
    struct stat written = {}; // of the file as it was written, whatever becomes of its name
};

// Replaces the file's content by the pieces, in order. Either all of it is on the disk afterwards
// or the old file stands as it was, also if the process is killed at any moment; what a killed one
// leaves behind is hidden, and removed by the next save into the folder.
//
// Links are followed. The old file's mode and access list stay, and its owner and group as far as
// the user may give files away. A file with several names keeps its old content under the others.
// What the user may not write is refused, and so is a target that is no regular file.
//
// Where another file can't take the target's place (a folder without the right to write, a file
// mounted by itself) it is written in place, and the old bytes are put back if that fails, with
// their time if the file is the user's own. Only there can a kill leave a file that is half old and
// half new.
SaveResult saveFileSafely(const QString &path, const std::vector<QByteArray> &pieces);
