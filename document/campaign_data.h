// The records of a campaign: plain value classes with public fields.
//
// CampaignData owns its scenarios by value. Prologues, start options and map headers are shared
// records behind std::shared_ptr: a copy of a scenario points at the same ones, so whoever edits
// replaces the pointer by a new record and never writes through it.
//
// The widths of the bit arrays come from EditorData, so records are made after its tables.
#pragma once

#include "document/map_header.h"
#include "document/start_options.h"
#include "gamedata/safe_save.h"

#include <QBitArray>
#include <QByteArray>
#include <QString>

#include <array>
#include <memory>
#include <optional>
#include <vector>

class CampaignData;
class QDataStream;
class QFile;
struct UnpackedFile; // in document/gzip_member.h

constexpr quint32 newestCampaignVersion = 10; // of the file format: what is written
constexpr int heroKeepsBits = 5;

struct CmpPrologue
{
    quint8 videoId = 0;
    quint8 musicIndex = 0;
    QString text;
};

struct CmpScenarioCrossover
{
    QBitArray heroKeeps; // heroKeepsBits
    QBitArray artifacts; // EditorData::nArtifacts bits
    QBitArray creatures; // EditorData::nCreatures bits
};

class ScenarioData
{
public:
    using Prologues = std::array<std::shared_ptr<CmpPrologue>, 3>;

    QString mapFileName; // bare, without a folder
    quint32 mapSize = 0; // bytes of compressedMap; 0 means no map
    QBitArray prerequisites;
    quint8 regionColor = 2;
    quint8 defaultDifficulty = 1;
    QString regionText;
    Prologues prologues; // null means absent
    Prologues epilogues;
    CmpScenarioCrossover crossover;
    std::shared_ptr<CmpScenarioStartOptions> startOptions; // null reads as option type 0
    std::shared_ptr<MapHeader> mapHeader;                  // set exactly when there is a map
    QByteArray compressedMap; // the map file's bytes as imported, still packed

    ScenarioData();

    // Back to an empty scenario, but for defaultDifficulty and startOptions, which stay.
    void clear();
    // Gives the bit arrays their widths and sets the four hero bits; clears no bit.
    void setBasicBitsets();

    void ReadFromStream(QDataStream &stream, CampaignData *campaign);
    void WriteToStream(QDataStream &stream, CampaignData *campaign);

    // Imports a map from an open file: 1 done, 0 not readable or empty, -1 no player on it. The
    // scenario changes only when the answer is 1.
    int ReadMapFromFile(QFile *file);
    // With `check` reads up to anyPlayers, stores nothing and answers 1, or -1 if it is 0.
    // Otherwise replaces mapHeader and answers the map's dimension. The stream is little-endian;
    // what lies past its end reads as zeros.
    unsigned int ReadMapHeader(QDataStream &stream, bool check);

    void ReadStartOptions(QDataStream &stream);
    void WriteStartOptions(QDataStream &stream);
};

// The fixed head of a campaign.
struct CmpHeader
{
    quint32 version = 0; // of the file format
    quint8 mapId = 0;    // key of EditorData::campaignInfo; without a map 24, or 0 if converted
    QString name;
    QString description;
    bool difficultySelectable = false;
    quint8 musicId = 0;
};

class CampaignData : public CmpHeader
{
public:
    std::vector<ScenarioData> scenarios; // index is the region's index
    bool hasMap = true;
    bool spareFlag = false;
    qint32 customValue = 0;    // the background's number in a campaign without a map
    quint32 scenarioCount = 0; // of a campaign without a map
    qint32 spareCounter = 0;

    CampaignData();

    // Destroys the scenarios; everything else stays.
    void clear();
    // Makes this an empty campaign on a map, or one without a map on a background.
    void initDummyCampaign(unsigned int mapId, bool hasMap, unsigned int customValue,
                           unsigned int scenarioCount);

    // How many scenarios the campaign has: its map's regions, or scenarioCount. The vector may
    // differ from it while the document is in work.
    unsigned int countOfScenarios() const;

    // Reads a campaign from a file opened at its start and tells a failure by a message. The
    // scenarios are empty afterwards if it answers false; other fields keep what they held.
    bool ReadFromFile(QFile *file);
    // The same without a word: the message that belongs to the failure, or nothing if all is well.
    std::optional<QString> readCampaign(QFile *file);

    // Writes the newest format to the file of that name, silently and safely.
    void WriteToFile(QFile *file);
    // The same, telling how it went. What could not be read again isn't written: a campaign with
    // more text than the reader takes, or on a map that the game's tables lack.
    SaveResult saveTo(const QString &path);
    // The file for somebody else to pack and write; nothing where saveTo wouldn't write it.
    std::optional<UnpackedFile> unpacked();
    // The file's bytes in order: the packed header, then every map as imported.
    std::vector<QByteArray> toPieces();

    // Clears bit `index` of every scenario's prerequisites. No bit moves: whoever takes a scenario
    // out of the vector leaves the bits above it where they stood.
    void removePrecondition(unsigned int index);
    // Exchanges the bits a and b of every scenario's prerequisites, for two scenarios that change
    // places in the vector. A bit that would come to stand past an array's end is dropped.
    void switchPreconditions(unsigned int a, unsigned int b);
};
