// Archives, the table file and text tables put together by hand.
#pragma once

#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QList>
#include <QMap>

#include <vector>

namespace game_files {

enum Storage
{
    Raw,
    Packed
};

struct ArchiveEntry
{
    QByteArray name;
    QByteArray data;
    Storage storage = Raw;
};

inline QByteArray packed(const QByteArray &data)
{
    return packing::zlibStream(data);
}

// One index entry.
inline QByteArray indexEntry(const QByteArray &name, quint32 offset, qint32 size,
                             qint32 compressedSize, quint32 type = 7)
{
    return ByteWriter().name16(name).u32(offset).i32(size).u32(type).i32(compressedSize).bytes();
}

inline QByteArray archiveHeader(qint32 fileCount)
{
    return ByteWriter()
        .raw(QByteArray("LOD\0", 4))
        .u32(200)
        .i32(fileCount)
        .raw(QByteArray(80, 'r'))
        .bytes();
}

// The bytes of an archive with these files, in this order.
inline QByteArray archive(const std::vector<ArchiveEntry> &entries)
{
    QByteArray index;
    QByteArray bodies;
    const int bodyStart = 92 + 32 * int(entries.size());
    for (const ArchiveEntry &entry : entries) {
        const QByteArray body = entry.storage == Packed ? packed(entry.data) : entry.data;
        index += indexEntry(entry.name, quint32(bodyStart + bodies.size()), entry.data.size(),
                            entry.storage == Packed ? body.size() : 0);
        bodies += body;
    }
    return archiveHeader(int(entries.size())) + index + bodies;
}

// One entry of the table file: a name with its number, and strings by their index.
struct TableEntry
{
    QByteArray name;
    QMap<int, QByteArray> strings;
};

inline QByteArray tableFile(const std::vector<TableEntry> &entries)
{
    ByteWriter writer;
    writer.raw("RDAT").u32(1).i32(int(entries.size()));
    for (const TableEntry &entry : entries) {
        const int count = entry.strings.isEmpty() ? 0 : entry.strings.lastKey() + 1;
        writer.text(entry.name).text("").i32(count);
        for (int i = 0; i < count; ++i)
            writer.text(entry.strings.value(i));
        writer.u8(0).i32(0);
    }
    return writer.bytes();
}

// Lines joined as the game joins them, the last one ended as well.
inline QByteArray lines(const QList<QByteArray> &list)
{
    return list.isEmpty() ? QByteArray() : list.join("\r\n") + "\r\n";
}

// A row of `columns` columns whose first one is this name.
inline QByteArray row(const QByteArray &name, int columns)
{
    return name + QByteArray(columns - 1, '\t');
}

// The rows name0, name1 ... without their line ends.
inline QList<QByteArray> numbered(const QByteArray &name, int count, int columns = 1)
{
    QList<QByteArray> list;
    for (int i = 0; i < count; ++i)
        list.append(row(name + QByteArray::number(i), columns));
    return list;
}

} // namespace game_files
