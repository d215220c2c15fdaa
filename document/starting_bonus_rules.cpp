#include "document/starting_bonus_rules.h"

#include "document/map_player.h"
#include "document/start_option_values.h"
#include "gamedata/editor_data.h"

#include <QDebug>

#include <array>

namespace {

template<typename Record>
unsigned int heroOf(const QVariant &data)
{
    return data.value<Record>().heroId;
}

using HeroReader = unsigned int (*)(const QVariant &);

// By bonus type; null for those that go to no hero.
constexpr std::array<HeroReader, 8> heroReaders{
    heroOf<BonusSpell>,
    heroOf<BonusCreature>,
    nullptr,
    heroOf<BonusArtifact>,
    heroOf<BonusScroll>,
    heroOf<BonusPrimarySkill>,
    heroOf<BonusSecondarySkill>,
    nullptr,
};

} // namespace

StartingBonusRules::StartingBonusRules(const ScenarioData &scenario, unsigned int player)
    : heroesOnMap(int(EditorData::heroes.size()))
{
    const PlayerAttributes *attributes = playerOnMap(scenario, player);
    if (!attributes)
        return;
    for (const PlayerAttributesHeroInfo &hero : attributes->heroInfo) {
        if (hero.heroId < heroesOnMap.size())
            heroesOnMap.setBit(hero.heroId);
    }
    generatesHero = attributes->generatesHero != 0;
    hasMainTown = attributes->hasMainTown != 0;
    townType = attributes->mainTownType;
}

bool StartingBonusRules::allows(const CmpStartingBonus &bonus) const
{
    if (bonus.bonusType == quint8(BonusType::Building))
        return allowsBuilding(bonus.bonusData.value<BonusBuilding>().buildingId);
    const HeroReader heroReader =
        bonus.bonusType < heroReaders.size() ? heroReaders[bonus.bonusType] : nullptr;
    return !heroReader || allowsHero(heroReader(bonus.bonusData));
}

bool StartingBonusRules::allowsHero(unsigned int hero) const
{
    if (hero == HeroIdMostPowerful)
        return true;
    if (hero == HeroIdGenerated) {
        const bool comesForth = generatesHero && hasMainTown;
        if (!comesForth)
            qDebug() << "Bad (no generated hero)";
        return comesForth;
    }
    // A random hero is never offered for a bonus: from a file it is one that isn't on the map.
    return hero < unsigned(heroesOnMap.size()) && heroesOnMap.testBit(int(hero));
}

// The random town is asked for first: a map may call one a main town.
bool StartingBonusRules::allowsBuilding(unsigned int building) const
{
    return townType != randomTown && hasMainTown && BuildingIsValidForTown(building, townType);
}
