// Writes campaign files (.e3c): a gzip member with the campaign's header and its scenario records,
// and behind it each scenario's map, the file's bytes as they stand. Versions 5, 6 and 10; the
// fields stand in campaign_writer.cpp in the order of the file. Texts are stored in UTF-8.
#pragma once

#include "tools/sample_game/deflate.h"

#include <QByteArray>
#include <QString>

#include <array>
#include <vector>

namespace sample {

struct Story
{
    int video = 0;
    int music = 0;
    QString text;
};

// The kinds of bonus, by their number in the file.
enum class BonusKind
{
    Spell,
    Creature,
    Building,
    Artifact,
    Scroll,
    PrimarySkill,
    SecondarySkill,
    Resource
};

constexpr int kMostPowerfulHero = 0xfffd;
constexpr int kGeneratedHero = 0xfffe;
constexpr int kRandomHero = 0xffff;

struct Bonus
{
    BonusKind kind = BonusKind::Resource;
    int hero = 0;   // nothing for buildings and resources
    int what = 0;   // spell, creature, building, artifact, skill or resource
    int amount = 0; // of creatures or a resource, or the level of a secondary skill
    std::array<int, 4> skills = {};
};

// A player and a hero, or a player and the scenario whose hero comes over.
struct Offer
{
    int player = 0;
    int source = 0;
};

enum class StartKind
{
    None,
    Bonus,
    Crossover,
    Hero
};

struct StartOptions
{
    StartKind kind = StartKind::None;
    int player = 0;                  // who gets the bonuses
    std::vector<Bonus> bonuses = {}; // at most three, as for the offers
    std::vector<Offer> offers = {};
};

struct ScenarioPlan
{
    QString mapFileName = {};
    QByteArray mapFile = {}; // empty: no map
    std::vector<int> prerequisites = {};
    int colour = 2;
    int difficulty = 1;
    QString regionText = {};
    std::vector<Story> prologues = {}; // at most three; the first alone in versions 5 and 6
    std::vector<Story> epilogues = {};
    std::vector<int> heroKeeps = {0, 1, 2, 3};
    std::vector<int> creatures = {};
    std::vector<int> artifacts = {};
    StartOptions start = {};
};

struct CampaignPlan
{
    int version = 10;
    int subVersion = 1;
    bool hasMap = true;
    int background = 0; // of a campaign without a map
    int mapId = 24;
    QString name;
    QString description;
    bool difficultySelectable = false;
    int music = 34;
    std::vector<ScenarioPlan> scenarios = {};
    int deflateLevel = kDefaultLevel; // of the first member
};

// How wide the bit arrays of version 10 are: a property of the game's tables.
struct TableSizes
{
    int creatures = 0;
    int artifacts = 0;
};

// The first member, unpacked.
QByteArray campaignHeader(const CampaignPlan &plan, const TableSizes &sizes);

// The file as it stands on the disk.
QByteArray campaignFile(const CampaignPlan &plan, const TableSizes &sizes);

} // namespace sample
