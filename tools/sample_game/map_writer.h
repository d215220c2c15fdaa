// Writes scenario maps (.e3m): one gzip member with a header, and behind it a body that no editor
// reads. The header's fields stand in map_writer.cpp in the order of the file; which of them a
// version has is told there. Texts are stored in UTF-8.
#pragma once

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

namespace sample {

constexpr int kPlayers = 8;
constexpr int kNoHero = 255;
constexpr int kNoCondition = 255; // victory and loss without a special condition
constexpr int kRandomTown = 255;

struct MapHero
{
    int id = 0;
    QString name = {}; // empty: the game's own name
};

struct MapPlayer
{
    bool human = false;
    bool computer = false;
    int behaviour = 0;
    int towns = 0;     // bits of the town types that may be chosen
    int mainTown = -1; // -1: none; otherwise the town's type, or kRandomTown
    bool heroInTown = false;
    std::array<int, 3> townPosition = {};
    int mainHero = kNoHero;
    int mainHeroPortrait = kNoHero;
    QString mainHeroName = {};
    int placeholders = 0;
    std::vector<MapHero> heroes = {};
};

struct CustomHero
{
    int id = 0;
    int portrait = 0;
    QString name = {};
    int playerMask = 0;
};

struct Condition
{
    int type = kNoCondition;
    QByteArray payload = {}; // as stored, behind the type and the victory's two flags
};

struct MapPlan
{
    QString fileName;
    QString name;
    QString description;
    int version = 28;
    int subVersion = 0; // only of version 32
    bool anyPlayers = true;
    int dimension = 72;
    bool underground = false;
    int difficulty = 1;
    int levelLimit = 0;
    std::array<MapPlayer, kPlayers> players = {};
    Condition victory = {};
    Condition loss = {};
    std::vector<int> teams = {};        // eight numbers, or none
    std::vector<int> lockedHeroes = {}; // all others may be hired
    std::vector<int> placeholders = {};
    std::vector<CustomHero> customHeroes = {};
    int bodySize = 24 * 1024;
    quint32 seed = 1;
};

// The unpacked content.
QByteArray mapContent(const MapPlan &plan);

// The file as it stands on the disk.
QByteArray mapFile(const MapPlan &plan);

} // namespace sample
