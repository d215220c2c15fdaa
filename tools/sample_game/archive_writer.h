// Writes a resource archive (.lod) in memory.
//
//   offset  size      field
//   0       4         "LOD" and a zero byte
//   4       4         version
//   8       4         count of entries
//   12      80        reserved, zero
//   92      32 each   index: name (16, zero-terminated), offset, size, kind, packed size
//   behind            the entries' bytes, in the order of the index
//
// A packed size of 0 means that the entry's bytes stand unpacked.
#pragma once

#include <QByteArray>
#include <QVector>

namespace sample {

enum class Packing
{
    Packed,
    Unpacked
};

class ArchiveWriter
{
public:
    // Names are plain ASCII of at most 15 characters; a longer one ends the program.
    void add(const QByteArray &name, const QByteArray &content, Packing packing);

    QByteArray bytes() const;

private:
    struct Entry
    {
        QByteArray name;
        QByteArray stored;
        qint32 size = 0;
        qint32 packedSize = 0;
    };

    QVector<Entry> m_entries;
};

} // namespace sample
