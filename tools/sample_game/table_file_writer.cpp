#include "tools/sample_game/table_file_writer.h"

#include "tools/sample_game/byte_sink.h"
#include "tools/sample_game/game_encoding.h"

namespace sample {

namespace {

constexpr quint32 kVersion = 1;

void addEntry(ByteSink &sink, const TableEntry &entry)
{
    sink.countedText(entry.name);
    sink.countedText(gameEncoded(entry.text));
    sink.i32(entry.strings.size());
    for (const QString &string : entry.strings)
        sink.countedText(gameEncoded(string));
    const bool hasBlob = entry.emptyBlob || !entry.blob.isEmpty();
    sink.u8(hasBlob ? 1 : 0);
    if (hasBlob)
        sink.countedText(entry.blob);
    sink.i32(qint32(entry.ints.size()));
    for (const qint32 number : entry.ints)
        sink.i32(number);
}

} // namespace

QByteArray tableFile(const std::vector<TableEntry> &entries)
{
    ByteSink sink;
    sink.raw("RDAT");
    sink.u32(kVersion);
    sink.i32(qint32(entries.size()));
    for (const TableEntry &entry : entries)
        addEntry(sink, entry);
    return sink.bytes();
}

QStringList stringsWith(int place, const QString &value, const QString &filler)
{
    QStringList strings;
    for (int i = 0; i < place; ++i)
        strings += filler;
    strings += value;
    return strings;
}

} // namespace sample
