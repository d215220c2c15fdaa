#include "tools/sample_game/archive_writer.h"

#include "tools/sample_game/byte_sink.h"
#include "tools/sample_game/deflate.h"

namespace sample {

namespace {

constexpr int kHeaderSize = 92;
constexpr int kIndexEntrySize = 32;
constexpr int kReservedSize = 80;
constexpr int kNameSize = 16;
constexpr quint32 kVersion = 200;

// The game's own marks of what an entry is.
quint32 kindOf(const QByteArray &name)
{
    const QByteArray suffix = name.right(3).toLower();
    if (suffix == "txt")
        return 2;
    if (suffix == "pcx")
        return 16;
    return suffix == "def" ? 64 : 79;
}

} // namespace

void ArchiveWriter::add(const QByteArray &name, const QByteArray &content, Packing packing)
{
    if (name.size() >= kNameSize)
        qFatal("the name %s is too long for an archive", name.constData());
    Entry entry;
    entry.name = name;
    entry.size = content.size();
    entry.stored = content;
    if (packing == Packing::Packed) {
        entry.stored = zlibStream(content);
        entry.packedSize = entry.stored.size();
    }
    m_entries.push_back(entry);
}

QByteArray ArchiveWriter::bytes() const
{
    ByteSink sink;
    sink.raw(QByteArray("LOD\0", 4));
    sink.u32(kVersion);
    sink.i32(m_entries.size());
    sink.zeros(kReservedSize);
    qint32 offset = kHeaderSize + kIndexEntrySize * m_entries.size();
    for (const Entry &entry : m_entries) {
        sink.raw(entry.name.leftJustified(kNameSize, '\0'));
        sink.i32(offset);
        sink.i32(entry.size);
        sink.u32(kindOf(entry.name));
        sink.i32(entry.packedSize);
        offset += entry.stored.size();
    }
    for (const Entry &entry : m_entries)
        sink.raw(entry.stored);
    return sink.bytes();
}

} // namespace sample
