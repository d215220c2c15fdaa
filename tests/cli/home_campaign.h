// A campaign on the tiny game's map 24, put together by hand, and the file of its texts.
#pragma once

#include "tests/document/samples.h"

#include <array>

inline constexpr unsigned homeMapByte = 25; // map 24
inline constexpr int creatureBytes = 24;
inline constexpr int artifactBytes = 20;

// A map of this name, of nine letters.
inline QByteArray mapNamed(const QByteArray &name, unsigned anyPlayers = 1)
{
    return samples::pack(samples::mapHeader(28, 0, anyPlayers).replace("Frostmere", name) +
                         samples::noise(600));
}

struct Record
{
    QByteArray mapFileName;
    QByteArray map;
    QByteArray regionText;
    QByteArray firstPrologue; // null for none
};

// Home Shores with maps in the first and the third region.
inline QByteArray homeCampaign(const QByteArray &regionText = "Beware\nof wolves",
                               const QByteArray &firstMap = mapNamed("Ironmoors"))
{
    const std::array<Record, 3> records{
        Record{"one.e3m", firstMap, regionText, "Once\nupon"},
        Record{"", "", "Nobody", QByteArray()},
        Record{"three.e3m", mapNamed("Stonegate"), "", QByteArray()}};
    ByteWriter out;
    out.u32(10).u32(1).u8(1).i32(0).u32(0).u8(homeMapByte);
    out.text("Ember Road").text("Three steps").u8(0).u8(34);
    QByteArray maps;
    for (const Record &record : records) {
        out.text(record.mapFileName).u32(quint32(record.map.size())).u8(0).u8(2).u8(1);
        out.text(record.regionText);
        samples::writeStory(out, record.firstPrologue);
        out.zeros(5).u8(15).zeros(creatureBytes).zeros(artifactBytes).u8(0);
        maps += record.map;
    }
    return packing::gzip(out.bytes()) + maps;
}

// The file of its texts.
inline const QByteArray exported = "Name:\r\n\r\n\r\nDescription:\r\n\r\n\r\n"
                                   "\r\nIronmoors \xE2\x80\x94 Alder Bay\r\n\r\n"
                                   "Right-click text:\r\nBeware\tof wolves\r\n\r\n"
                                   "Prologue:\r\nOnce\tupon\r\n\r\n"
                                   "\r\nStonegate \xE2\x80\x94 Cedar Fen\r\n\r\n"
                                   "Right-click text:\r\n\r\n\r\n";

inline QByteArray translated()
{
    return QByteArray(exported)
        .replace("Name:\r\n\r\n", "Name:\r\nRoad of embers\r\n")
        .replace("Beware\tof wolves", "Wolves\tabout")
        .replace("Once\tupon", "Long\tago");
}
