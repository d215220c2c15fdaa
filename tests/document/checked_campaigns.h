// Campaigns for the search for damage, put together by hand: sound ones on the tiny game, in which
// each test breaks one thing.
#pragma once

#include "document/check/campaign_check.h"
#include "gamedata/editor_data.h"
#include "tests/document/samples.h"

#include <QStringList>

#include <vector>

namespace checked {

constexpr int creatureBytes = 24; // 186 bits
constexpr int artifactBytes = 20; // 160 bits
constexpr unsigned mapByte = 25;  // map 24, with three regions

struct Record
{
    QByteArray mapFileName;
    QByteArray map;
    qint64 promised = -1; // bytes of the map, those that are there unless told
    QByteArray prerequisites = QByteArray(1, '\0');
    unsigned colour = 2;
    unsigned difficulty = 1;
    QByteArray regionText;
    QByteArray stories = QByteArray(6, '\0'); // three prologues and three epilogues
    unsigned heroKeeps = 15;
    QByteArray creatures = QByteArray(creatureBytes, '\0');
    QByteArray options = QByteArray(1, '\0');
};

struct Campaign
{
    quint32 version = 10;
    quint32 subversion = 1;
    unsigned hasMap = 1;
    qint32 background = 0;
    quint32 count = 0;
    unsigned mapId = mapByte;
    QByteArray name = "Ember Road";
    QByteArray description = "Three steps";
    unsigned choice = 0;
    unsigned music = 0;
    std::vector<Record> records;
    QByteArray behindRecords;
    QByteArray behindMaps;
};

inline QByteArray map(const QByteArray &name = "Frostmere")
{
    return samples::pack(samples::mapHeader(28).replace("Frostmere", name) + samples::noise(600));
}

// The first and the third scenario have maps, and the third requires the first.
inline Campaign sound()
{
    Campaign campaign;
    campaign.records.resize(3);
    campaign.records[0].mapFileName = "one.e3m";
    campaign.records[0].map = map();
    campaign.records[2].mapFileName = "three.e3m";
    campaign.records[2].map = map("Ironmoors");
    campaign.records[2].prerequisites = QByteArray(1, '\1');
    return campaign;
}

inline Campaign soundWithoutMap()
{
    Campaign campaign = sound();
    campaign.hasMap = 0;
    campaign.count = 3;
    return campaign;
}

inline QByteArray header(const Campaign &campaign)
{
    ByteWriter out;
    out.u32(campaign.version).u32(campaign.subversion).u8(campaign.hasMap);
    out.i32(campaign.background).u32(campaign.count).u8(campaign.mapId);
    out.text(campaign.name).text(campaign.description);
    out.u8(campaign.choice).u8(campaign.music);
    for (const Record &record : campaign.records) {
        const qint64 size = record.promised < 0 ? record.map.size() : record.promised;
        out.text(record.mapFileName).u32(quint32(size)).raw(record.prerequisites);
        out.u8(record.colour).u8(record.difficulty).text(record.regionText).raw(record.stories);
        out.u8(record.heroKeeps).raw(record.creatures).zeros(artifactBytes).raw(record.options);
    }
    return out.raw(campaign.behindRecords).bytes();
}

inline QByteArray maps(const Campaign &campaign)
{
    QByteArray bytes;
    for (const Record &record : campaign.records)
        bytes += record.map;
    return bytes + campaign.behindMaps;
}

inline QByteArray bytesOf(const Campaign &campaign)
{
    return samples::pack(header(campaign)) + maps(campaign);
}

// Writes the file and searches it: the message if it can't be read, else a line for each finding.
inline QStringList told(const QString &path, const QByteArray &bytes)
{
    QFile file(samples::writeFile(path, bytes));
    if (!file.open(QIODevice::ReadOnly))
        return {file.errorString()};
    Findings findings;
    if (const std::optional<QString> failure = checkCampaign(file, findings))
        return {*failure};
    QStringList lines;
    for (const Finding &finding : findings)
        lines << finding.where + ": " + finding.what;
    return lines;
}

inline QByteArray story(unsigned video, unsigned music)
{
    return ByteWriter().u8(1).u8(video).u8(music).text("Once").bytes();
}

// Start options of bonuses for a player. Player 0 has heroes 41 and 42 on the map, a main town of
// kind 6 and a hero made there; player 2 has neither heroes nor a town.
constexpr unsigned richPlayer = 0;
constexpr unsigned poorPlayer = 2;
constexpr unsigned ownHero = 41;
constexpr unsigned heroBeyondTable = 42;

// Gives the tiny game's table of heroes as many as the map's first one takes, and not the second.
inline void addHeroes()
{
    for (unsigned hero = 0; hero <= ownHero; ++hero)
        EditorData::heroes.emplace(int(hero), "Hero");
}

inline ByteWriter bonuses(unsigned count, unsigned player = richPlayer)
{
    return ByteWriter().u8(1).u8(player).u8(count);
}

} // namespace checked
