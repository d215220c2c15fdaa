// What the system tells of a file's content without reading it: enough to notice that another
// program has written or replaced the file.
#pragma once

#include <QString>

#include <optional>

class QFileDevice;

struct FileStamp
{
    bool exists = false; // all else is 0 if not
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970
};

bool operator==(const FileStamp &a, const FileStamp &b);
inline bool operator!=(const FileStamp &a, const FileStamp &b)
{
    return !(a == b);
}

// Of the file behind all links. One that can't be reached doesn't exist, and neither does what is
// no regular file.
FileStamp stampOf(const QString &path);
// Of an open file, whatever has become of its name.
FileStamp stampOf(const QFileDevice &file);

// A stamp as a line of numbers, to be kept in a file.
QString textOf(const FileStamp &stamp);
// Nothing if the text is no stamp.
std::optional<FileStamp> stampFrom(const QString &text);
