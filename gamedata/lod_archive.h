// One resource archive of the game: its index, and its files by name.
//
// All numbers are little-endian.
//
//   offset  size            field
//        0  4               magic, "LOD" and a zero byte
//        4  4               version, kept and never looked at
//        8  4               fileCount, signed
//       12  80              reserved
//       92  32 * fileCount  index
//
// An index entry:
//
//        0  16  name, zero-terminated ASCII
//       16  4   offset of the data from the start of the archive, unsigned
//       20  4   size of the file once unpacked, signed
//       24  4   type, never looked at
//       28  4   compressedSize; 0 means the data is stored unpacked
//
// Packed data is one zlib stream.
#pragma once

#include <QMap>
#include <QString>

class QFile;

struct LodFile
{
    char name[16] = {};
    quint32 offset = 0;
    qint32 size = 0;
    quint32 type = 0;
    qint32 compressedSize = 0;
};
static_assert(sizeof(LodFile) == 32, "an index entry is read as it stands");

class LodArchive
{
public:
    char magic[4] = {};
    quint32 version = 0;
    qint32 fileCount = 0;
    char reserved[80] = {};
    QMap<QString, LodFile> files; // pictures and texts only, by name in lower case
    QString path;

    // Reads header and index from a file opened at its start. A file of another kind leaves
    // `files` empty; an index cut short gives the entries that are there.
    void Read(QFile &file, const QString &archivePath);

    bool hasFile(const QString &name) const;

    // The file's bytes in a new buffer that belongs to the caller (delete[]), with a zero byte
    // behind them; null if there is no such file or its place and size can't be right. A corrupt
    // stream gives what could be unpacked and zeros behind it. `size` receives the byte count.
    char *getFileData(const QString &name, int *size = nullptr) const;
};

// Orders archives by precedence, the highest first.
struct CompLods
{
    bool operator()(const LodArchive &a, const LodArchive &b) const;
};

// Reads `compressedSize` bytes at the file's position and unpacks them into a new buffer of
// `size` bytes and a zero byte, owned by the caller (delete[]). Null if the sizes can't be right.
char *zlib_decompress(QFile &file, int compressedSize, int size);
