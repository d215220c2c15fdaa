// What the system tells of a file's content without reading it: enough to notice that another
// program has written or replaced the file.
#pragma once

#include <QString>

#include <optional>

class QFileDevice;
struct stat;

// Of a file of which the system can't tell whether it is there, all is 0 but that it exists.
struct FileStamp
{
    bool exists = false; // all else is 0 if not
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modified = 0; // nanoseconds since 1970
};

// A stamp of which the system couldn't tell is like no other, not even like itself.
bool operator==(const FileStamp &a, const FileStamp &b);
inline bool operator!=(const FileStamp &a, const FileStamp &b)
{
    return !(a == b);
}

// Of the file behind all links. What is no regular file doesn't exist.
FileStamp stampOf(const QString &path);
// Of an open file, whatever has become of its name.
FileStamp stampOf(const QFileDevice &file);
// Of a file whose status was taken before.
FileStamp stampOf(const struct stat &status);

// A stamp as a line of numbers, to be kept in a file.
QString textOf(const FileStamp &stamp);
// Nothing if the text is no stamp.
std::optional<FileStamp> stampFrom(const QString &text);
