// Seeds of what stands in the game's folder: archives, the table file, settings, pictures and the
// layouts of campaign maps.
#include "fuzz/corpus.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

namespace corpus {

namespace {

using packing::zlibStream;

constexpr quint32 headerSize = 92;
constexpr quint32 entrySize = 32;
constexpr quint32 largestInt = 0x7fffffff;

ByteWriter archiveHead(quint32 fileCount)
{
    ByteWriter archive;
    archive.raw(QByteArray("LOD\0", 4)).u32(200).u32(fileCount).zeros(80);
    return archive;
}

// An archive of one file with these numbers in its entry.
QByteArray oneFile(const QByteArray &data, quint32 offset, quint32 size, quint32 compressedSize)
{
    ByteWriter archive = archiveHead(1);
    archive.name16("HELLO.TXT").u32(offset).u32(size).u32(2).u32(compressedSize);
    return archive.raw(data).bytes();
}

QByteArray soundArchive()
{
    const QByteArray text("One line\r\nand another\r\n");
    const QByteArray stream = zlibStream(text);
    const quint32 data = headerSize + 3 * entrySize;
    ByteWriter archive = archiveHead(3);
    archive.name16("Raw.txt").u32(data).u32(quint32(text.size())).u32(2).u32(0);
    archive.name16("packed.PCX").u32(data + quint32(text.size()));
    archive.u32(quint32(text.size())).u32(2).u32(quint32(stream.size()));
    archive.name16("figure.def").u32(data).u32(4).u32(2).u32(0);
    return archive.raw(text).raw(stream).bytes();
}

QByteArray nameWithoutEnd()
{
    ByteWriter archive = archiveHead(1);
    archive.raw("0123456789ab.txt").u32(headerSize + entrySize).u32(2).u32(2).u32(0);
    return archive.raw("hi").bytes();
}

ByteWriter tableHead(quint32 count)
{
    ByteWriter table;
    table.raw("RDAT").u32(3).u32(count);
    return table;
}

QByteArray soundTable()
{
    ByteWriter table = tableHead(3);
    table.text("monst151").text("").u32(4).text("a").text("").text("c").text("Stone Ram");
    table.u8(0).u32(2).i32(-1).i32(7);
    table.text("12").text("spare").u32(0).u8(1).u32(3).raw("xyz").u32(0);
    return table.text("note").text("").u32(0).u8(1).u32(0).u32(1).i32(5).bytes();
}

QByteArray tableWithStrings(quint32 count)
{
    return tableHead(1).text("art5").text("").u32(count).text("Ring").bytes();
}

QByteArray tableWithInts(quint32 count)
{
    return tableHead(1).text("art5").text("").u32(0).u8(0).u32(count).i32(1).bytes();
}

QByteArray tableWithBlob(quint32 size)
{
    return tableHead(1).text("art5").text("").u32(0).u8(1).u32(size).raw("blob").bytes();
}

ByteWriter plainRecord(quint32 width, quint32 height)
{
    ByteWriter record;
    record.u32(width * height).u32(width).u32(height);
    return record;
}

ByteWriter wideRecord(quint32 width, quint32 height)
{
    ByteWriter record;
    record.raw("P32F").zeros(20).u32(width).u32(height);
    return record;
}

QByteArray grey(int count)
{
    return QByteArray(count, '\x80');
}

} // namespace

std::vector<File> archives()
{
    const quint32 data = headerSize + entrySize;
    const QByteArray stream = zlibStream("Some text\r\n");
    const auto streamSize = quint32(stream.size());
    const QByteArray bomb = zlibStream(QByteArray(1000000, '\0'));
    return {
        {"sound", soundArchive()},
        {"other_magic", QByteArray("LOX") + QByteArray(200, '\0')},
        {"empty", archiveHead(0).bytes()},
        {"name_without_end", nameWithoutEnd()},
        {"corrupt_stream", oneFile("not a stream at all", data, 40, 19)},
        {"stream_longer_than_size", oneFile(stream, data, 3, streamSize)},
        {"hostile_count_2g", archiveHead(largestInt).bytes()},
        {"hostile_count_negative", archiveHead(0xffffffff).bytes()},
        {"hostile_offset_4g", oneFile("hi", 0xffffffff, 2, 0)},
        {"hostile_size_2g", oneFile("hi", data, largestInt, 0)},
        {"hostile_size_negative", oneFile("hi", data, 0xffffffff, 0)},
        {"hostile_packed_size_2g", oneFile(stream, data, 11, largestInt)},
        {"hostile_packed_size_negative", oneFile(stream, data, 11, 0xffffffff)},
        {"hostile_unpacked_size_2g", oneFile(stream, data, largestInt, streamSize)},
        {"hostile_bomb", oneFile(bomb, data, 1000000, quint32(bomb.size()))},
    };
}

std::vector<File> tableFiles()
{
    return {
        {"sound", soundTable()},
        {"other_magic", "RDAX" + soundTable().mid(4)},
        {"number_out_of_range", tableHead(1).text("art99999999999999999999").text("").bytes()},
        {"hostile_entries_2g", tableHead(largestInt).text("art5").bytes()},
        {"hostile_entries_negative", tableHead(0xffffffff).text("art5").bytes()},
        {"hostile_strings_2g", tableWithStrings(largestInt)},
        {"hostile_strings_negative", tableWithStrings(0x80000000)},
        {"hostile_ints_2g", tableWithInts(largestInt)},
        {"hostile_ints_negative", tableWithInts(0x80000000)},
        {"hostile_blob_2g", tableWithBlob(largestInt)},
        {"hostile_blob_negative", tableWithBlob(0x80000000)},
        {"hostile_name_2g", tableHead(1).u32(largestInt).raw("art").bytes()},
    };
}

std::vector<File> pictures()
{
    return {
        {"palette_5x3", plainRecord(5, 3).raw(grey(15 + 768)).bytes()},
        {"colour_5x3", plainRecord(5, 3).raw(grey(45)).bytes()},
        {"wide_5x3", wideRecord(5, 3).raw(grey(60)).bytes()},
        {"no_pixels", plainRecord(0, 0).raw(grey(768)).bytes()},
        {"palette_too_short", plainRecord(4, 4).raw(grey(100)).bytes()},
        {"hostile_side_4g", plainRecord(0xffffffff, 1).raw(grey(800)).bytes()},
        {"hostile_product_0", plainRecord(0x10000, 0x10000).raw(grey(800)).bytes()},
        {"hostile_product_1", plainRecord(0xffffffff, 0xffffffff).raw(grey(800)).bytes()},
        {"hostile_wide_side_2g", wideRecord(1, 0x7fffffff).raw(grey(64)).bytes()},
        {"hostile_wide_product_0", wideRecord(0x8000, 0x8000).raw(grey(64)).bytes()},
    };
}

std::vector<File> settings()
{
    return {
        {"sound", "[Global Settings]\r\n\r\nLanguage=1\r\nRavn.dat Text Encoding=\r\n\r\n\r\n"
                  "[Campaign Editor]\r\nPath=C:\\Games\r\n"},
        {"line_without_sign", "[a]\nnote\nkey=1\nk=a=b"},
        {"section_twice", "[a]\nx=1\n[b]\ny=2\n[a]\nz=3\n"},
        {"section_without_end", "[a]\nx=1\n[b"},
        {"brackets_everywhere", "]]x=1[[a]b]\nc=[d]e=]f\n"},
        {"empty_names", "[]\n=\n=v\n[]\n"},
        {"zero_bytes", QByteArray("[a\0b]\nc\0d=e\0f\n", 15)},
        {"hostile_many_sections", QByteArray("[a]b=").repeated(200)},
        {"hostile_many_keys", "[a]\n" + QByteArray("k=1\nl=2\n").repeated(200)},
    };
}

std::vector<File> layouts()
{
    return {
        {"ready_made", "# two regions\r\n0\r\n2\r\n10 20\r\n30 40\r\nNorth\r\na0 a1 a2\r\nb0 b1\r\n"
                       "c0\r\nSouth\r\nd0\r\ne0\r\nf0\r\n"},
        {"computed", "1\r\n1\r\n10 20\r\nNorth\r\nglow.pcx\r\nborder.pcx\r\nfill.pcx\r\nmore\r\n"},
        {"other_type", "2\r\n2\r\n1 1\r\n2 2\r\nNorth\r\nx\r\ny\r\nz\r\nSouth\r\n"},
        {"position_of_three", "0\r\n1\r\n1 2 3\r\nNorth\r\n"},
        {"quotes", "\"a # b\r\nc\" \"\" \"\"\"d\" # note\r\nlast \"open"},
        {"hostile_regions_2g", "0\r\n2147483647\r\n1 1\r\nNorth\r\n"},
        {"hostile_regions_negative", "1\r\n-5\r\n1 1\r\nNorth\r\n"},
        {"hostile_numbers", "99999999999999\r\n1\r\n99999999999 -99999999999\r\nNorth\r\n"},
    };
}

} // namespace corpus
