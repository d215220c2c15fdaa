// Table files put together from their entries, and loaded.
#pragma once

#include "gamedata/runtime/dat_file.h"
#include "tests/support/byte_writer.h"

#include <QList>

#include <climits>
#include <memory>

struct Entry
{
    QByteArray name;
    QByteArray text;
    QList<QByteArray> strings;
    QList<int> ints;
    int hasStream = 0;
    QByteArray blob; // written with its size if hasStream is set
};

inline ByteWriter header(qint32 count)
{
    return ByteWriter().raw("RDAT").u32(0x1234).i32(count);
}

inline ByteWriter &operator<<(ByteWriter &out, const Entry &entry)
{
    out.text(entry.name).text(entry.text).i32(entry.strings.size());
    for (const QByteArray &string : entry.strings)
        out.text(string);
    out.u8(unsigned(entry.hasStream));
    if (entry.hasStream)
        out.text(entry.blob);
    out.i32(entry.ints.size());
    for (const int number : entry.ints)
        out.i32(number);
    return out;
}

using Table = std::unique_ptr<TDatFile>;

inline TStreamPtr<TMemoryStream> streamOf(const QByteArray &bytes)
{
    TStreamPtr<TMemoryStream> stream(TMemoryStream::Create(unsigned(bytes.size())));
    std::copy(bytes.begin(), bytes.end(), stream->data);
    return stream;
}

inline Table load(const QByteArray &bytes)
{
    const TStreamPtr<TMemoryStream> stream = streamOf(bytes);
    Table table(TDatFile::Create());
    table->Load(stream.get());
    return table;
}

inline QByteArray bytesOf(const TString &text)
{
    return {text.c_str(), text.length};
}

inline QByteArray sampleBytes()
{
    ByteWriter out = header(3);
    out << Entry{"monst150", "note", {"", "b", "c", "Moss Drake"}, {1, -2, INT_MAX}, 0, {}};
    out << Entry{"art147", {}, {"x", "Lantern"}, {}, 7, "blob"};
    out << Entry{"music", {}, {}, {5}, 1, {}};
    return out.bytes();
}
