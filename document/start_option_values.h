// The numbers of start options: the kinds of options and of bonuses, the heroes and resources that
// the game's tables don't hold, and how much the editor lets an author give.
#pragma once

#include <QtGlobal>

// The kinds of start options, as they are stored; 0 is none.
enum StartOptionType : unsigned int
{
    BonusOption = 1,
    CrossoverOption = 2,
    HeroOption = 3,
};

// The kinds of bonus, as they are stored.
enum class BonusType : unsigned char
{
    Spell,
    Creature,
    Building,
    Artifact,
    Scroll,
    PrimarySkill,
    SecondarySkill,
    Resource,
};

// Hero numbers of bonuses and starting heroes that are no heroes of the game's table.
constexpr unsigned short HeroIdMostPowerful = 0xFFFD; // the player's strongest hero
constexpr unsigned short HeroIdGenerated = 0xFFFE;    // the one that the main town brings forth
constexpr unsigned short HeroIdRandom = 0xFFFF;

// Numbers of a resource bonus that stand for several resources at once.
constexpr quint8 woodAndOre = 0xFD;
constexpr quint8 rareResources = 0xFE;

// What the dialogs take at most, by choice and by bonus.
constexpr int mostStartOptions = 3;
constexpr int mostOfACreature = 9999;
constexpr int mostOfASkill = 99;
constexpr int mostOfAResource = 99999;
