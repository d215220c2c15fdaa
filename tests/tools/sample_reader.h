// Small readers for what the sample game holds, written for its test alone and from the formats
// alone. They check as they go: ok turns false at the first thing that can't be.
#pragma once

#include <QByteArray>
#include <QStringList>
#include <QVector>

#include <array>

// Little-endian numbers and counted texts from a byte array; zeros past its end.
class ByteCursor
{
public:
    explicit ByteCursor(const QByteArray &bytes) : m_bytes(bytes) {}

    quint32 number(int size);
    int u8() { return int(number(1)); }
    int u16() { return int(number(2)); }
    qint32 i32() { return qint32(number(4)); }
    QByteArray raw(qint64 size);
    QByteArray text() { return raw(i32()); }
    QVector<int> bits(int count);

    qint64 position() const { return m_position; }
    qint64 left() const { return m_bytes.size() - m_position; }
    bool ok() const { return m_ok; }
    void fail() { m_ok = false; }

private:
    QByteArray m_bytes;
    qint64 m_position = 0;
    bool m_ok = true;
};

struct Inflated
{
    QByteArray content;
    qint64 packedSize = 0; // bytes taken, the framing included
    bool complete = false;
};

// One gzip member or zlib stream from the given place.
Inflated inflated(const QByteArray &file, qint64 from = 0);

struct ArchiveEntry
{
    QByteArray name;
    QByteArray content;
    bool packed = false;
    bool sound = false; // lies in the file and unpacks to its size
};

QVector<ArchiveEntry> readArchive(const QByteArray &file, bool &ok);

struct DatEntry
{
    QByteArray name;
    QVector<QByteArray> strings;
    QVector<qint32> ints;
    QByteArray blob;
    bool hasBlob = false;

    QByteArray kind() const; // the name without its number
    int id() const;          // -1 without a number
};

QVector<DatEntry> readTableFile(const QByteArray &file, bool &ok);

struct StoryRecord
{
    bool present = false;
    int video = 0;
    int music = 0;
};

struct ScenarioRecord
{
    QString mapFileName;
    qint64 mapSize = 0;
    QVector<int> prerequisites;
    int colour = 0;
    std::array<StoryRecord, 3> prologues, epilogues;
    QVector<int> heroKeeps, creatures, artifacts;
    int optionType = 0;
    QVector<int> bonusTypes;
    int offers = 0;
};

struct CampaignRecord
{
    int version = 0, subVersion = 0;
    bool hasMap = true;
    int background = 0, scenarioCount = 0, mapId = 0;
    QString name, description;
    int musicId = 0;
    QVector<ScenarioRecord> scenarios;
    bool exact = false; // the header ends with the last scenario
};

// An unpacked first member; the count is that of the campaign map's regions.
CampaignRecord readCampaign(const QByteArray &header, int regions, int creatures, int artifacts);

struct MapPlayerRecord
{
    bool human = false;
    int mainTown = -1; // its type, 255 for a random one; -1 for none and in the oldest maps
    bool heroInTown = false;
    QStringList heroes; // on the map, "2" or "2 Name"
};

struct MapRecord
{
    int version = 0, subVersion = 0, anyPlayers = 0;
    QString name, description;
    int humans = 0, heroesOnMap = 0, availableBits = 0;
    QVector<MapPlayerRecord> players;
    QVector<int> available, customHeroes;
    bool exact = false; // the reserved zeros stand where the fields lead to
};

MapRecord readMap(const QByteArray &content);
