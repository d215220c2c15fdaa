// Seeds of maps: headers of every version, and hostile ones.
#include "fuzz/corpus.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

namespace corpus {

namespace {

using packing::gzip;

constexpr quint32 absurdCount = 0xffffffff;
constexpr quint32 absurdLength = 0x7fffffff;

void writeExtension(ByteWriter &map, quint32 subVersion)
{
    map.u32(subVersion);
    if (subVersion >= 1)
        map.u8(1).u8(0);
    if (subVersion >= 2)
        map.u32(7);
    if (subVersion >= 4)
        map.u32(9).u8(1);
    if (subVersion >= 7)
        map.u8(1);
}

// Up to and including the level limit.
ByteWriter mapHead(quint32 version, quint32 subVersion)
{
    ByteWriter map;
    map.u32(version);
    if (version >= 32)
        writeExtension(map, subVersion);
    map.u8(1).u32(72).u8(1).text("Ash Valley").text("A quiet valley.").u8(2);
    if (version > 14)
        map.u8(0);
    return map;
}

void writePlayer(ByteWriter &map, quint32 version, bool withTown)
{
    map.u8(1).u8(1).u8(0);
    if (version != 21)
        map.u8(0xff);
    if (version > 14)
        map.u16(0x01ff);
    map.u8(0).u8(withTown ? 1 : 0);
    if (withTown && version > 14)
        map.u8(1).u8(3);
    if (withTown)
        map.u8(10).u8(20).u8(0);
    map.u8(0);
    if (withTown)
        map.u8(12).u8(5).text("Orsa");
    else
        map.u8(255);
    if (version > 14)
        map.u8(0).u32(1).u8(12).text("Orsa");
}

ByteWriter mapUpToHeroes(quint32 version, quint32 subVersion)
{
    ByteWriter map = mapHead(version, subVersion);
    for (int player = 0; player < 8; ++player)
        writePlayer(map, version, player % 2 == 0);
    map.u8(12).u8(1).u8(0).u32(30); // victory by time
    map.u8(2).u16(90);              // loss by time
    map.u8(2).raw(QByteArray(8, '\1'));
    return map;
}

QByteArray withPlaceholders(quint32 count)
{
    ByteWriter map = mapUpToHeroes(28, 0);
    return map.raw(QByteArray(20, '\xff')).u32(count).u8(3).bytes();
}

QByteArray withHeroes(quint32 count)
{
    ByteWriter map = mapHead(28, 0);
    return map.u8(1).u8(1).u8(0).u8(1).u16(1).u8(0).u8(0).u8(0).u8(255).u8(0).u32(count).bytes();
}

QByteArray withAvailable(quint32 count)
{
    ByteWriter map = mapUpToHeroes(32, 0);
    return map.u32(count).raw(QByteArray(20, '\xff')).bytes();
}

QByteArray withName(quint32 length)
{
    return ByteWriter().u32(28).u8(1).u32(72).u8(0).u32(length).raw("Ash").bytes();
}

QByteArray withVictory(unsigned type)
{
    ByteWriter map = mapHead(28, 0);
    for (int player = 0; player < 8; ++player)
        writePlayer(map, 28, false);
    return map.u8(type).zeros(12).u8(255).u8(0).zeros(64).bytes();
}

} // namespace

QByteArray mapHeader(quint32 version, quint32 subVersion)
{
    ByteWriter map = mapUpToHeroes(version, subVersion);
    const quint32 heroes = version == 14 ? 128 : version >= 32 ? 180 : 160;
    if (version >= 32)
        map.u32(heroes);
    map.raw(QByteArray(int(heroes + 7) / 8, '\xff'));
    if (version > 14)
        map.u32(1).u8(3);
    if (version > 21)
        map.u8(1).u8(12).u8(7).text("Orsa the Grey").u8(1);
    return map.zeros(31).bytes();
}

std::vector<File> maps()
{
    return {
        {"version_14", mapHeader(14)},
        {"version_21", mapHeader(21)},
        {"version_28", mapHeader(28)},
        {"version_32", mapHeader(32)},
        {"version_32_sub_1", mapHeader(32, 1)},
        {"version_32_sub_2", mapHeader(32, 2)},
        {"version_32_sub_4", mapHeader(32, 4)},
        {"version_32_sub_7", mapHeader(32, 7)},
        {"version_32_sub_9", mapHeader(32, 9)},
        {"version_28_gzip", gzip(mapHeader(28))},
        {"version_28_stored", packing::pack(mapHeader(28), 0)}, // whose fields a fuzzer can change
        {"two_members",
         packing::pack(mapHeader(14).left(40), 0) + packing::pack(mapHeader(14).mid(40), 0)},
        {"no_players", ByteWriter().u32(28).u8(0).zeros(40).bytes()},
        {"victory_3", withVictory(3)},
        {"victory_10", withVictory(10)},
        {"victory_200", withVictory(200)},
        {"hostile_placeholders_4g", withPlaceholders(absurdCount)},
        {"hostile_placeholders_2g", withPlaceholders(absurdLength)},
        {"hostile_hero_list_4g", withHeroes(absurdCount)},
        {"hostile_hero_list_2g", withHeroes(absurdLength)},
        {"hostile_available_4g", withAvailable(absurdCount)},
        {"hostile_available_2g", withAvailable(absurdLength)},
        {"hostile_name_2g", withName(absurdLength)},
        {"hostile_name_negative", withName(absurdCount)},
        {"hostile_bomb_gzip", gzip(mapHeader(28) + QByteArray(1000000, '\0'))},
    };
}

} // namespace corpus
