// Small game tables, maps and campaigns for the tests of this folder, put together by hand.
#pragma once

#include "gamedata/editor_data.h"
#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <QByteArray>
#include <QFile>

namespace samples {

// Widths that are no multiple of 8, three regions on map 3, none on map 24, 163 heroes.
inline void setTables()
{
    EditorData::info = {};
    EditorData::nArtifacts = 150;
    EditorData::nCreatures = 147;
    EditorData::campaignInfo.clear();
    EditorData::campaignInfo[3].regionCount = 3;
    EditorData::campaignInfo[4].regionCount = 9;
    EditorData::campaignInfo[24].regionCount = 0;
    EditorData::heroes.clear();
    for (int hero = 0; hero < 163; ++hero)
        EditorData::heroes[hero] = QStringLiteral("hero");
}

using packing::pack;

// A member of `count` zeros behind `head`.
inline QByteArray packWithZeros(const QByteArray &head, qint64 count)
{
    return packing::gzipWithZeros(head, count);
}

// Bytes that deflate can't shrink, the same for the same seed.
inline QByteArray noise(int size, quint32 seed = 1)
{
    QByteArray bytes(size, '\0');
    for (char &byte : bytes) {
        seed = seed * 1664525u + 1013904223u;
        byte = char(seed >> 24);
    }
    return bytes;
}

// A fresh file each time: some file systems wait for the disk when an old one is written over.
inline QString writeFile(const QString &path, const QByteArray &bytes)
{
    QFile::remove(path);
    QFile file(path);
    file.open(QIODevice::WriteOnly);
    file.write(bytes);
    return path;
}

// The header of a map in which every field has a value of its own. Player 0 has a main town and a
// main hero, player 1 a main town of flag 2, the others neither.
inline QByteArray mapHeader(quint32 version, quint32 subVersion = 0, unsigned anyPlayers = 1)
{
    ByteWriter w;
    w.u32(version);
    if (version >= 32) {
        w.u32(subVersion);
        if (subVersion >= 1)
            w.u8(11).u8(12); // extFlagB, extFlagA
        if (subVersion >= 2)
            w.i32(-13);
        if (subVersion >= 4)
            w.i32(14).u8(15);
        if (subVersion >= 7)
            w.u8(16);
    }
    w.u8(anyPlayers).i32(72).u8(1).text("Frostmere").text("A cold shore").u8(3);
    if (version > 14)
        w.u8(40);
    for (unsigned player = 0; player < 8; ++player) {
        w.u8(player + 1).u8(player + 2).u8(player + 3);
        if (version != 21)
            w.u8(player + 4);
        if (version > 14)
            w.u16(0x1200 + player);
        w.u8(player + 5);
        const unsigned mainTown = player == 0 ? 1 : player == 1 ? 2 : 0;
        w.u8(mainTown);
        if (mainTown == 1) {
            if (version > 14)
                w.u8(1).u8(6);
            w.u8(21).u8(22).u8(1);
        }
        w.u8(player + 6).u8(player == 0 ? 33 : 255);
        if (player == 0)
            w.u8(34).text("Orla");
        if (version > 14) {
            w.u8(player + 7).u32(player == 0 ? 2 : 0);
            if (player == 0)
                w.u8(41).text("Tamsin").u8(42).text("");
        }
    }
    w.u8(12).u8(1).u8(0).i32(5000);  // victory by an amount
    w.u8(2).u16(0x0305);             // loss by days
    w.u8(2).raw("\1\2\1\2\1\2\1\2"); // teams
    const unsigned bits = version == 14 ? 128 : version >= 32 ? 163 : 160;
    if (version >= 32)
        w.u32(bits);
    QByteArray available(int(bits + 7) / 8, '\0');
    available[0] = 5; // heroes 0 and 2
    available[available.size() - 1] = char(0x80 >> (available.size() * 8 - int(bits)));
    w.raw(available);
    if (version > 14)
        w.u32(3).raw("\7\10\11");
    if (version > 21)
        w.u8(2).u8(50).u8(51).text("Brannoc").u8(52).u8(60).u8(61).text("").u8(62);
    return w.zeros(31).bytes();
}

inline QByteArray mapFile(quint32 version, quint32 subVersion = 0, unsigned anyPlayers = 1)
{
    return pack(mapHeader(version, subVersion, anyPlayers) + noise(600));
}

struct Scenario
{
    QByteArray fileName;
    quint32 mapSize = 0;
    QByteArray prerequisites = QByteArray(1, '\0');
    QByteArray regionText = QByteArray();
    QByteArray startOptions = QByteArray(1, '\0');
};

inline void writeStory(ByteWriter &w, const QByteArray &text)
{
    if (text.isNull())
        w.u8(0);
    else
        w.u8(1).u8(7).u8(9).text(text);
}

// A scenario's record: first prologue and, in version 10, third epilogue are there; creatures 0
// and 144, artifacts 1 and the last of the version's are set; the heroes keep bits 0 and 4.
inline QByteArray record(quint32 version, const Scenario &scenario)
{
    ByteWriter w;
    w.text(scenario.fileName).u32(scenario.mapSize).raw(scenario.prerequisites);
    w.u8(5).u8(4).text(scenario.regionText);
    writeStory(w, "Once");
    if (version == 10)
        w.u8(0).u8(0);
    writeStory(w, {});
    if (version == 10) {
        w.u8(0);
        writeStory(w, "At last");
    }
    w.u8(0x11);
    QByteArray creatures(19, '\0'); // 145 and 147 bits alike
    creatures[0] = 1;
    creatures[18] = 1;
    const int artifactBits = version == 5 ? 129 : version == 6 ? 144 : 150;
    QByteArray artifacts((artifactBits + 7) / 8, '\0');
    artifacts[0] = 2;
    artifacts[(artifactBits - 1) / 8] = char(1 << ((artifactBits - 1) % 8));
    return w.raw(creatures).raw(artifacts).raw(scenario.startOptions).bytes();
}

struct Head
{
    quint32 version = 10;
    quint32 subversion = 1;
    unsigned hasMap = 1;
    qint32 customValue = 0;
    quint32 scenarioCount = 0;
    unsigned mapIdByte = 4; // map 3
    QByteArray name = "Ember Road";
    QByteArray description = "Three steps";
    unsigned difficultySelectable = 1;
    unsigned musicId = 34;
};

inline QByteArray head(const Head &fields)
{
    ByteWriter w;
    w.u32(fields.version);
    if (fields.version == 10)
        w.u32(fields.subversion)
            .u8(fields.hasMap)
            .i32(fields.customValue)
            .u32(fields.scenarioCount);
    return w.u8(fields.mapIdByte)
        .text(fields.name)
        .text(fields.description)
        .u8(fields.difficultySelectable)
        .u8(fields.musicId)
        .bytes();
}

// Player 2 may take 513 of resource 3.
inline QByteArray bonusOfResources()
{
    return ByteWriter().u8(1).u8(2).u8(1).u8(7).u8(3).i32(513).bytes();
}

// Three scenarios on map 3: the first and the last have maps.
inline QByteArray campaignRecords(quint32 version, quint32 firstMap, quint32 lastMap)
{
    Head fields;
    fields.version = version;
    return head(fields) +
           record(version,
                  {"one.e3m", firstMap, QByteArray(1, '\0'), "Begin", bonusOfResources()}) +
           record(version, {"", 0, QByteArray(1, '\1'), ""}) +
           record(version, {"three.e3m", lastMap, QByteArray(1, '\3'), "End"});
}

inline QByteArray campaign(quint32 version, const QByteArray &firstMap, const QByteArray &lastMap,
                           int level = packing::usualLevel)
{
    const QByteArray records =
        campaignRecords(version, quint32(firstMap.size()), quint32(lastMap.size()));
    return pack(records, level) + firstMap + lastMap;
}

} // namespace samples
