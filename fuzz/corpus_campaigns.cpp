// Seeds of campaigns, their scenarios and start options: of every version, and hostile ones.
#include "fuzz/corpus.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

namespace corpus {

namespace {

using packing::gzip;

constexpr int stored = 0; // level of packing: the fuzzer can change what isn't packed

// The widths of the tables that the target fills, and those of the older formats.
struct Widths
{
    int creatures;
    int artifacts;
};

Widths widthsOf(quint32 version)
{
    switch (version) {
    case 5:
        return {145, 129};
    case 6:
        return {145, 144};
    default:
        return {186, 160};
    }
}

QByteArray bits(int count)
{
    return QByteArray((count + 7) / 8, '\x5a');
}

// In the place of an option type: bonuses without the one that nobody knows.
constexpr unsigned knownBonuses = 255;
// And no hero at all.
constexpr unsigned noHeroes = 254;

// One of each kind, by option type; bonuses of every type and of one that nobody knows.
QByteArray startOptions(unsigned type)
{
    ByteWriter options;
    options.u8(type);
    switch (type) {
    case 1:
    case knownBonuses:
        options = ByteWriter().u8(1).u8(0).u8(type == 1 ? 9 : 8);
        options.u8(0).u16(1).u8(2);
        options.u8(1).u16(1).u16(2).u16(3);
        options.u8(2).u8(7);
        options.u8(3).u16(1).u16(8);
        options.u8(4).u16(0xfffd).u8(4);
        options.u8(5).u16(1).u8(1).u8(2).u8(3).u8(4);
        options.u8(6).u16(1).u8(5).u8(3);
        options.u8(7).u8(6).i32(-1000);
        return type == 1 ? options.u8(8).bytes() : options.bytes();
    case 2:
        return options.u8(2).u8(0).u8(0).u8(1).u8(1).bytes();
    case noHeroes:
        return ByteWriter().u8(3).u8(0).bytes();
    case 3:
        return options.u8(1).u8(0).u16(12).bytes();
    default:
        return options.bytes();
    }
}

void writeStories(ByteWriter &file, quint32 version)
{
    const int stories = version == 10 ? 6 : 2;
    for (int i = 0; i < stories; ++i) {
        if (i % 2 == 0)
            file.u8(1).u8(3).u8(4).text("Long ago...");
        else
            file.u8(0);
    }
}

QByteArray scenario(quint32 version, int count, const QByteArray &map, unsigned optionType)
{
    const Widths widths = widthsOf(version);
    ByteWriter file;
    file.text(map.isEmpty() ? "" : "ash.e3m").u32(quint32(map.size()));
    file.raw(bits(count)).u8(2).u8(1).text("A region");
    writeStories(file, version);
    file.raw(bits(5)).raw(bits(widths.creatures)).raw(bits(widths.artifacts));
    return file.raw(startOptions(optionType)).bytes();
}

ByteWriter head(quint32 version, bool hasMap, quint32 scenarioCount, unsigned mapByte)
{
    ByteWriter file;
    file.u32(version);
    if (version == 10)
        file.u32(1).u8(hasMap ? 1 : 0).u32(0).u32(scenarioCount);
    return file.u8(mapByte).text("The Long Road").text("").u8(1).u8(34);
}

// A campaign on the map of three regions, the first of which has a map.
QByteArray onMap(quint32 version)
{
    const QByteArray map = gzip(mapHeader(28));
    ByteWriter file = head(version, true, 0, 25);
    file.raw(scenario(version, 3, map, 1));
    file.raw(scenario(version, 3, {}, 2)).raw(scenario(version, 3, {}, 3));
    return gzip(file.bytes()) + map;
}

QByteArray withoutMap()
{
    const QByteArray map = gzip(mapHeader(14));
    ByteWriter file = head(10, false, 2, 25);
    file.raw(scenario(10, 2, map, 0)).raw(scenario(10, 2, map, 9));
    return gzip(file.bytes()) + map + map;
}

// Neither the header nor its map is packed, so that the fuzzer changes their fields.
QByteArray plain(quint32 version, unsigned optionType)
{
    const QByteArray map = packing::pack(mapHeader(28), stored);
    ByteWriter file = head(version, true, 0, 25);
    file.raw(scenario(version, 3, map, optionType)).raw(scenario(version, 3, {}, optionType));
    return file.raw(scenario(version, 3, map, optionType)).bytes() + map + map;
}

QByteArray plainWithoutMap(int windowBits)
{
    const QByteArray map = packing::pack(mapHeader(14), stored, windowBits);
    ByteWriter file = head(10, false, 2, 25);
    return file.raw(scenario(10, 2, map, 3)).raw(scenario(10, 2, map, 1)).bytes() + map + map;
}

QByteArray withScenarioCount(quint32 count)
{
    return gzip(head(10, false, count, 25).raw(scenario(10, 8, {}, 0)).bytes());
}

QByteArray withMapSize(quint32 size)
{
    ByteWriter file = head(10, false, 1, 25);
    file.text("ash.e3m").u32(size).raw(bits(1)).u8(2).u8(1).text("").zeros(6);
    file.raw(bits(5)).raw(bits(186)).raw(bits(160)).u8(0);
    return gzip(file.bytes()) + gzip(mapHeader(28));
}

QByteArray withNameLength(quint32 length)
{
    return gzip(ByteWriter().u32(10).u32(1).u8(1).u32(0).u32(0).u8(1).u32(length).raw("x").bytes());
}

QByteArray withDamagedMap()
{
    QByteArray map = gzip(mapHeader(28));
    for (int i = 20; i < map.size(); i += 3)
        map[i] = '\x55';
    ByteWriter file = head(10, false, 1, 25);
    return gzip(file.raw(scenario(10, 1, map, 0)).bytes()) + map;
}

} // namespace

std::vector<File> campaigns()
{
    const QByteArray longName(200000, 'a');
    const QByteArray bombMap = gzip(mapHeader(28) + QByteArray(1000000, '\0'));
    return {
        {"version_5", onMap(5)},
        {"version_6", onMap(6)},
        {"version_10", onMap(10)},
        {"version_10_plain", head(10, true, 0, 25).raw(scenario(10, 3, {}, 1)).bytes()},
        {"version_10_stored", plain(10, 1)},
        {"version_6_stored", plain(6, 2)},
        {"version_5_stored", plain(5, 3)},
        {"without_map", withoutMap()},
        {"without_map_stored", plainWithoutMap(packing::gzipBits)},
        {"without_map_stored_zlib", plainWithoutMap(packing::zlibBits)},
        {"version_11", gzip(ByteWriter().u32(11).zeros(40).bytes())},
        {"subversion_2", gzip(ByteWriter().u32(10).u32(2).zeros(40).bytes())},
        {"map_number_absent", gzip(head(10, true, 0, 200).zeros(100).bytes())},
        {"damaged_map", withDamagedMap()},
        {"hostile_scenarios_4g", withScenarioCount(0xffffffff)},
        {"hostile_scenarios_30001", withScenarioCount(30001)},
        {"hostile_scenarios_3000", withScenarioCount(3000)},
        {"hostile_map_size_4g", withMapSize(0xffffffff)},
        {"hostile_map_size_2g", withMapSize(0x7fffffff)},
        {"hostile_map_size_3", withMapSize(3)},
        {"hostile_name_2g", withNameLength(0x7fffffff)},
        {"hostile_name_negative", withNameLength(0xffffffff)},
        {"hostile_bomb_name",
         gzip(ByteWriter().u32(10).u32(1).u8(1).zeros(8).u8(1).text(longName).bytes())},
        {"hostile_bomb_map",
         gzip(head(10, false, 1, 25).raw(scenario(10, 1, bombMap, 0)).bytes()) + bombMap},
    };
}

// Those above, and one that the program doesn't end over, with a map in every region.
std::vector<File> campaignsToShow()
{
    const QByteArray map = packing::pack(mapHeader(28), stored);
    ByteWriter known = head(10, true, 0, 25);
    for (const unsigned options : {knownBonuses, 2U, noHeroes})
        known.raw(scenario(10, 3, map, options));
    std::vector<File> files = campaigns();
    files.push_back({"known_bonuses", known.bytes() + map + map + map});
    return files;
}

// A byte that chooses format and kind of campaign, and a record.
std::vector<File> scenarioRecords()
{
    const QByteArray map = gzip(mapHeader(28));
    return {
        {"version_10", char(0) + scenario(10, 3, map, 1)},
        {"version_10_without_map", char(1) + scenario(10, 3, map, 2)},
        {"version_6", char(2) + scenario(6, 3, map, 3)},
        {"version_6_without_map", char(3) + scenario(6, 3, {}, 0)},
        {"version_5", char(4) + scenario(5, 3, map, 1)},
        {"version_5_without_map", char(5) + scenario(5, 3, {}, 9)},
    };
}

std::vector<File> optionLists()
{
    return {
        {"bonuses", startOptions(1)},
        {"heroes_crossing", startOptions(2)},
        {"heroes", startOptions(3)},
        {"none", startOptions(0)},
        {"unknown", startOptions(9)},
        {"no_heroes", ByteWriter().u8(3).u8(0).bytes()},
        {"no_bonuses", ByteWriter().u8(1).u8(7).u8(0).bytes()},
        {"hostile_bonuses_255", ByteWriter().u8(1).u8(7).u8(255).u8(8).bytes()},
    };
}

} // namespace corpus
