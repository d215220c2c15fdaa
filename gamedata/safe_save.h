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
// or the old file stands as it was. Links are followed; the old file's mode stays; a target that
// is not a regular file is refused. Where no second file can be made beside the target it is
// written in place, and the old bytes are put back if that fails.
SaveResult saveFileSafely(const QString &path, const std::vector<QByteArray> &pieces);
