// What the editor keeps of a scenario map's header: players, heroes, name and size.
//
// The layout on the disk stands in map_header.cpp. A record is made whole by the reader, shared
// behind std::shared_ptr and never written through; fields that a map's version doesn't store
// are zero.
#pragma once

#include <QBitArray>
#include <QString>

#include <array>
#include <vector>

struct PlayerAttributesHeroInfo
{
    quint8 heroId = 0;
    QString name;
};

struct PlayerAttributes
{
    quint8 canHuman = 0;
    quint8 canComputer = 0;
    quint8 behaviour = 0;
    quint8 allowedTownsLow = 0;
    quint16 allowedTowns = 0;
    quint8 townIsRandom = 0;
    quint8 hasMainTown = 0; // decides the layout only by being 1; elsewhere any non-zero is set
    quint8 generatesHero = 0;
    quint8 mainTownType = 0;
    std::array<quint8, 3> mainTownPosition{}; // x, y, level
    quint8 randomHero = 0;
    quint8 mainHeroId = 0;
    quint8 mainHeroPortrait = 0;
    QString mainHeroName;
    quint8 placeholderCount = 0;
    std::vector<PlayerAttributesHeroInfo> heroInfo;
};

struct VictoryCondition
{
    quint8 type = 0; // 255 none
    std::array<quint8, 2> flags{};
    quint16 object = 0;               // types 0 and 1: what is to be had
    quint8 kind = 0;                  // types 2, 3 and 10: the byte in front
    quint8 extra = 0;                 // type 3: the byte behind the other
    qint32 amount = 0;                // types 1, 2 and 12
    std::array<quint8, 3> position{}; // types 3 to 7 and 10
};

struct LossCondition
{
    quint8 type = 0; // 255 none
    std::array<quint8, 3> position{};
    quint16 days = 0;
};

struct HeaderHero
{
    HeaderHero();

    quint8 heroId; // the last hero of the game's table unless read
    quint8 portrait = 0;
    QString name;
    quint8 playerMask = 0;
};

struct HeaderHeroes
{
    QBitArray available; // one bit a hero
    quint32 availableCount = 0;
    std::vector<quint8> placeholders;
    std::vector<HeaderHero> customHeroes;
};

struct MapHeader
{
    quint32 version = 0;
    quint32 subVersion = 0;
    quint8 extFlagA = 0;
    quint8 extFlagB = 0;
    qint32 extValueA = 0;
    qint32 extValueB = 0;
    quint8 extFlagC = 0;
    quint8 extFlagD = 0;
    quint8 anyPlayers = 0;
    qint32 mapDimension = 0;
    quint8 hasUnderground = 0;
    QString mapName;
    QString mapDescription;
    quint8 difficulty = 0;
    quint8 levelLimit = 0;
    std::array<PlayerAttributes, 8> players; // by player colour
    VictoryCondition victory;
    LossCondition loss;
    quint8 teamCount = 0;
    std::array<quint8, 8> teams{};
    HeaderHeroes headerHeroes;
};
