#include "tests/tools/sample_reader.h"

#include <zlib.h>

quint32 ByteCursor::number(int size)
{
    const QByteArray bytes = raw(size);
    quint32 value = 0;
    for (int i = 0; i < bytes.size(); ++i)
        value |= quint32(uchar(bytes.at(i))) << (8 * i);
    return value;
}

QByteArray ByteCursor::raw(qint64 size)
{
    if (size < 0 || size > left()) {
        m_ok = false;
        return {};
    }
    QByteArray bytes = m_bytes.mid(int(m_position), int(size));
    m_position += size;
    return bytes;
}

QVector<int> ByteCursor::bits(int count)
{
    const QByteArray bytes = raw((count + 7) / 8);
    QVector<int> set;
    for (int i = 0; i < bytes.size() * 8; ++i) {
        if ((uchar(bytes.at(i / 8)) >> (i % 8) & 1) == 0)
            continue;
        if (i >= count)
            m_ok = false; // padding is clear
        set.push_back(i);
    }
    return set;
}

Inflated inflated(const QByteArray &file, qint64 from)
{
    constexpr int kEitherFraming = 47;
    Inflated result;
    z_stream stream = {};
    if (inflateInit2(&stream, kEitherFraming) != Z_OK)
        return result;
    QByteArray input = file.mid(int(from));
    stream.next_in = reinterpret_cast<Bytef *>(input.data());
    stream.avail_in = uInt(input.size());
    QByteArray piece(1 << 16, '\0');
    int status = Z_OK;
    while (status == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_out = uInt(piece.size());
        status = inflate(&stream, Z_NO_FLUSH);
        result.content += piece.left(piece.size() - int(stream.avail_out));
    }
    result.packedSize = qint64(stream.total_in);
    result.complete = status == Z_STREAM_END;
    inflateEnd(&stream);
    return result;
}

QVector<ArchiveEntry> readArchive(const QByteArray &file, bool &ok)
{
    ByteCursor cursor(file);
    ok = cursor.raw(4) == QByteArray("LOD\0", 4);
    cursor.i32();
    const int count = cursor.i32();
    cursor.raw(80);
    QVector<ArchiveEntry> entries;
    for (int i = 0; i < count && cursor.ok(); ++i) {
        ArchiveEntry entry;
        const QByteArray name = cursor.raw(16);
        entry.name = QByteArray(name.constData());
        const qint64 offset = cursor.i32();
        const int size = cursor.i32();
        cursor.i32();
        const int packedSize = cursor.i32();
        entry.packed = packedSize != 0;
        const qint64 stored = entry.packed ? packedSize : size;
        entry.sound =
            name.endsWith('\0') && offset >= 92 + 32 * count && offset + stored <= file.size();
        entry.content = file.mid(int(offset), int(stored));
        if (entry.packed) {
            const Inflated plain = inflated(entry.content);
            entry.sound = entry.sound && plain.complete && plain.packedSize == packedSize &&
                          plain.content.size() == size;
            entry.content = plain.content;
        }
        entries.push_back(entry);
    }
    ok = ok && cursor.ok();
    return entries;
}

QByteArray DatEntry::kind() const
{
    QByteArray base = name;
    while (!base.isEmpty() && base.back() >= '0' && base.back() <= '9')
        base.chop(1);
    return base;
}

int DatEntry::id() const
{
    const QByteArray digits = name.mid(kind().size());
    return digits.isEmpty() ? -1 : digits.toInt();
}

QVector<DatEntry> readTableFile(const QByteArray &file, bool &ok)
{
    ByteCursor cursor(file);
    ok = cursor.raw(4) == "RDAT";
    cursor.i32();
    const int count = cursor.i32();
    QVector<DatEntry> entries;
    for (int i = 0; i < count && cursor.ok(); ++i) {
        DatEntry entry;
        entry.name = cursor.text();
        cursor.text();
        const int strings = cursor.i32();
        for (int s = 0; s < strings && cursor.ok(); ++s)
            entry.strings.push_back(cursor.text());
        entry.hasBlob = cursor.u8() != 0;
        if (entry.hasBlob)
            entry.blob = cursor.text();
        const int ints = cursor.i32();
        for (int n = 0; n < ints && cursor.ok(); ++n)
            entry.ints.push_back(cursor.i32());
        entries.push_back(entry);
    }
    ok = ok && cursor.ok() && cursor.left() == 0 && entries.size() == count;
    return entries;
}

namespace {

void readStories(ByteCursor &cursor, std::array<StoryRecord, 3> &stories, int version)
{
    for (int i = 0; i < (version == 10 ? 3 : 1); ++i) {
        StoryRecord &story = stories[size_t(i)];
        story.present = cursor.u8() == 1;
        if (!story.present)
            continue;
        story.video = cursor.u8();
        story.music = cursor.u8();
        cursor.text();
    }
}

void readStartOptions(ByteCursor &cursor, ScenarioRecord &scenario)
{
    constexpr std::array<int, 8> kBonusSizes = {3, 6, 1, 4, 3, 6, 4, 5};
    scenario.optionType = cursor.u8();
    if (scenario.optionType == 1) {
        cursor.u8();
        const int count = cursor.u8();
        for (int i = 0; i < count; ++i) {
            const int type = cursor.u8();
            scenario.bonusTypes.push_back(type);
            if (type >= int(kBonusSizes.size()))
                cursor.fail();
            else
                cursor.raw(kBonusSizes[size_t(type)]);
        }
    } else if (scenario.optionType == 2 || scenario.optionType == 3) {
        scenario.offers = cursor.u8();
        cursor.raw(qint64(scenario.offers) * scenario.optionType);
    } else if (scenario.optionType != 0) {
        cursor.fail();
    }
}

ScenarioRecord readScenario(ByteCursor &cursor, int version, int scenarios, int creatures,
                            int artifacts)
{
    ScenarioRecord scenario;
    scenario.mapFileName = QString::fromUtf8(cursor.text());
    scenario.mapSize = cursor.i32();
    scenario.prerequisites = cursor.bits(scenarios);
    scenario.colour = cursor.u8();
    cursor.u8();
    cursor.text();
    readStories(cursor, scenario.prologues, version);
    readStories(cursor, scenario.epilogues, version);
    scenario.heroKeeps = cursor.bits(5);
    scenario.creatures = cursor.bits(creatures);
    scenario.artifacts = cursor.bits(artifacts);
    readStartOptions(cursor, scenario);
    return scenario;
}

} // namespace

CampaignRecord readCampaign(const QByteArray &header, int regions, int creatures, int artifacts)
{
    ByteCursor cursor(header);
    CampaignRecord campaign;
    campaign.version = cursor.i32();
    if (campaign.version == 10) {
        campaign.subVersion = cursor.i32();
        campaign.hasMap = cursor.u8() != 0;
        campaign.background = cursor.i32();
        campaign.scenarioCount = cursor.i32();
    } else {
        creatures = 145;
        artifacts = campaign.version == 5 ? 129 : 144;
    }
    campaign.mapId = cursor.u8() - 1;
    campaign.name = QString::fromUtf8(cursor.text());
    campaign.description = QString::fromUtf8(cursor.text());
    cursor.u8();
    campaign.musicId = cursor.u8();
    const int count = campaign.hasMap ? regions : campaign.scenarioCount;
    for (int i = 0; i < count && cursor.ok(); ++i)
        campaign.scenarios.push_back(
            readScenario(cursor, campaign.version, count, creatures, artifacts));
    campaign.exact = cursor.ok() && cursor.left() == 0;
    return campaign;
}

namespace {

void readPlayer(ByteCursor &cursor, MapRecord &map)
{
    map.players.push_back({});
    MapPlayerRecord &player = map.players.last();
    player.human = cursor.u8() != 0;
    map.humans += player.human ? 1 : 0;
    cursor.raw(2);
    if (map.version != 21)
        cursor.u8();
    if (map.version > 14)
        cursor.u16();
    cursor.u8();
    if (cursor.u8() == 1) {
        if (map.version > 14) {
            player.heroInTown = cursor.u8() != 0;
            player.mainTown = cursor.u8();
        }
        cursor.raw(3);
    }
    cursor.u8();
    if (cursor.u8() != 255) {
        cursor.u8();
        cursor.text();
    }
    if (map.version <= 14)
        return;
    cursor.u8();
    const int heroes = cursor.i32();
    for (int i = 0; i < heroes && cursor.ok(); ++i) {
        const QString hero = QString::number(cursor.u8());
        const QString name = QString::fromUtf8(cursor.text());
        player.heroes += name.isEmpty() ? hero : hero + QLatin1Char(' ') + name;
    }
    map.heroesOnMap += heroes;
}

void readConditions(ByteCursor &cursor, int version)
{
    const int count = version == 14 ? 1 : 2;
    const std::array<int, 13> victory = {count, count + 4, 5, 5, 3, 3, 3, 3, 0, 0, 4, 0, 4};
    const int type = cursor.u8();
    if (type != 255)
        cursor.raw(2);
    if (type < int(victory.size()))
        cursor.raw(victory[size_t(type)]);
    const int loss = cursor.u8();
    if (loss <= 2)
        cursor.raw(loss == 2 ? 2 : 3);
}

void readHeroLists(ByteCursor &cursor, MapRecord &map)
{
    map.availableBits = map.version == 14 ? 128 : 160;
    if (map.version >= 32)
        map.availableBits = cursor.i32();
    map.available = cursor.bits(map.availableBits);
    if (map.version > 14)
        cursor.raw(cursor.i32());
    if (map.version > 21) {
        const int heroes = cursor.u8();
        for (int i = 0; i < heroes && cursor.ok(); ++i) {
            map.customHeroes.push_back(cursor.u8());
            cursor.raw(1);
            cursor.text();
            cursor.u8();
        }
    }
}

} // namespace

MapRecord readMap(const QByteArray &content)
{
    ByteCursor cursor(content);
    MapRecord map;
    map.version = cursor.i32();
    if (map.version >= 32) {
        map.subVersion = cursor.i32();
        cursor.raw((map.subVersion >= 1 ? 2 : 0) + (map.subVersion >= 2 ? 4 : 0) +
                   (map.subVersion >= 4 ? 5 : 0) + (map.subVersion >= 7 ? 1 : 0));
    }
    map.anyPlayers = cursor.u8();
    cursor.raw(5);
    map.name = QString::fromUtf8(cursor.text());
    map.description = QString::fromUtf8(cursor.text());
    cursor.u8();
    if (map.version > 14)
        cursor.u8();
    for (int player = 0; player < 8; ++player)
        readPlayer(cursor, map);
    readConditions(cursor, map.version);
    if (cursor.u8() != 0)
        cursor.raw(8);
    readHeroLists(cursor, map);
    map.exact = cursor.raw(31) == QByteArray(31, '\0') && cursor.ok();
    return map;
}
