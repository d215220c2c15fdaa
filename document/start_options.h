// What a player may choose before a scenario: a bonus, a hero carried over, or a hero to start
// with. The payload of an option and of a bonus travels in a QVariant that holds the value class
// of its type, so the classes are Qt meta types.
//
// The layout on the disk stands in start_options_file.cpp.
#pragma once

#include <QMetaType>
#include <QVariant>

#include <array>
#include <set>
#include <vector>

class ScenarioData;

struct BonusSpell
{
    quint16 heroId = 0;
    quint8 spellId = 0;
};

struct BonusCreature
{
    quint16 heroId = 0;
    quint16 creatureId = 0;
    quint16 amount = 0;
};

struct BonusBuilding
{
    quint8 buildingId = 0;
};

struct BonusArtifact
{
    quint16 heroId = 0;
    quint16 artifactId = 0;
};

struct BonusScroll
{
    quint16 heroId = 0;
    quint8 spellId = 0;
};

struct BonusPrimarySkill
{
    quint16 heroId = 0;
    std::array<quint8, 4> skills{};
};

struct BonusSecondarySkill
{
    quint16 heroId = 0;
    quint8 skillId = 0;
    quint8 skillLevel = 0;
};

struct BonusResource
{
    quint8 resourceId = 0;
    qint32 amount = 0;
};

struct CmpStartingBonus
{
    quint8 bonusType = 0; // 0 to 7 in the order of the classes above; others carry no data
    QVariant bonusData;
};

struct StartingBonusSet
{
    quint8 player = 0; // colour index
    std::vector<CmpStartingBonus> bonuses;
};

struct CmpHeroCrossover
{
    quint8 player = 0;
    quint8 sourceScenario = 0;
};

struct HeroCrossoverSet
{
    std::vector<CmpHeroCrossover> entries;
};

struct StartingHero
{
    quint8 player = 0;
    quint16 heroId = 0;
};

struct StartingHeroSet
{
    std::vector<StartingHero> entries;
};

struct CmpScenarioStartOptions
{
    quint32 optionType = 0; // 0 none, 1 StartingBonusSet, 2 HeroCrossoverSet, 3 StartingHeroSet
    QVariant optionData;
};

// Makes the classes below known to Qt's meta types by name too. Does its work once.
void registerStartOptionTypes();

// True if the player can still be given a hero to start with: one that stands on the map for it
// and isn't among `used`, or one that its main town brings forth. False without a map.
bool playerCanTakeHero(const ScenarioData &scenario, const std::set<int> &used,
                       unsigned int player);

// Every field is compared. One exception stands: two building bonuses inside CmpStartingBonus
// are always equal, whatever their buildings, and a bonus type above 7 equals nothing.
bool operator==(CmpHeroCrossover &a, CmpHeroCrossover &b);
bool operator==(StartingHero &a, StartingHero &b);
bool operator==(BonusArtifact &a, BonusArtifact &b);
bool operator==(BonusBuilding &a, BonusBuilding &b);
bool operator==(BonusCreature &a, BonusCreature &b);
bool operator==(BonusPrimarySkill &a, BonusPrimarySkill &b);
bool operator==(BonusResource &a, BonusResource &b);
bool operator==(BonusSpell &a, BonusSpell &b);
bool operator==(BonusScroll &a, BonusScroll &b);
bool operator==(BonusSecondarySkill &a, BonusSecondarySkill &b);
bool operator==(CmpStartingBonus &a, CmpStartingBonus &b);

bool operator!=(CmpHeroCrossover &a, CmpHeroCrossover &b);
bool operator!=(StartingHero &a, StartingHero &b);
bool operator!=(BonusArtifact &a, BonusArtifact &b);
bool operator!=(BonusBuilding &a, BonusBuilding &b);
bool operator!=(BonusCreature &a, BonusCreature &b);
bool operator!=(BonusPrimarySkill &a, BonusPrimarySkill &b);
bool operator!=(BonusResource &a, BonusResource &b);
bool operator!=(BonusSpell &a, BonusSpell &b);
bool operator!=(BonusScroll &a, BonusScroll &b);
bool operator!=(BonusSecondarySkill &a, BonusSecondarySkill &b);
bool operator!=(CmpStartingBonus &a, CmpStartingBonus &b);

Q_DECLARE_METATYPE(StartingBonusSet)
Q_DECLARE_METATYPE(StartingHeroSet)
Q_DECLARE_METATYPE(HeroCrossoverSet)
Q_DECLARE_METATYPE(BonusCreature)
Q_DECLARE_METATYPE(BonusSpell)
Q_DECLARE_METATYPE(BonusBuilding)
Q_DECLARE_METATYPE(BonusArtifact)
Q_DECLARE_METATYPE(BonusScroll)
Q_DECLARE_METATYPE(BonusPrimarySkill)
Q_DECLARE_METATYPE(BonusSecondarySkill)
Q_DECLARE_METATYPE(BonusResource)
Q_DECLARE_METATYPE(CmpHeroCrossover)
Q_DECLARE_METATYPE(StartingHero)
