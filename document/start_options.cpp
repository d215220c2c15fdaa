#include "document/start_options.h"

#include "document/campaign_data.h"

#include <algorithm>

namespace {

template<typename Bonus>
bool samePayload(const QVariant &a, const QVariant &b)
{
    Bonus first = a.value<Bonus>();
    Bonus second = b.value<Bonus>();
    return first == second;
}

using PayloadComparison = bool (*)(const QVariant &, const QVariant &);

// By bonus type. Kept: buildings are compared as artifacts, which they aren't, so that both sides
// read as zero and any two buildings are equal.
constexpr std::array<PayloadComparison, 8> payloadComparisons{
    samePayload<BonusSpell>,          samePayload<BonusCreature>, samePayload<BonusArtifact>,
    samePayload<BonusArtifact>,       samePayload<BonusScroll>,   samePayload<BonusPrimarySkill>,
    samePayload<BonusSecondarySkill>, samePayload<BonusResource>,
};

bool registerAll()
{
    qRegisterMetaType<StartingBonusSet>();
    qRegisterMetaType<StartingHeroSet>();
    qRegisterMetaType<HeroCrossoverSet>();
    qRegisterMetaType<BonusCreature>();
    qRegisterMetaType<BonusSpell>();
    qRegisterMetaType<BonusBuilding>();
    qRegisterMetaType<BonusArtifact>();
    qRegisterMetaType<BonusScroll>();
    qRegisterMetaType<BonusPrimarySkill>();
    qRegisterMetaType<BonusSecondarySkill>();
    qRegisterMetaType<BonusResource>();
    qRegisterMetaType<CmpHeroCrossover>();
    qRegisterMetaType<StartingHero>();
    return true;
}

} // namespace

void registerStartOptionTypes()
{
    static const bool done = registerAll();
    Q_UNUSED(done)
}

bool playerCanTakeHero(const ScenarioData &scenario, const std::set<int> &used, unsigned int player)
{
    if (!scenario.mapHeader || player >= scenario.mapHeader->players.size())
        return false;
    const PlayerAttributes &attributes = scenario.mapHeader->players[player];
    if (!attributes.canHuman)
        return false;
    const bool heroLeft =
        std::any_of(attributes.heroInfo.begin(), attributes.heroInfo.end(),
                    [&](const auto &hero) { return used.count(hero.heroId) == 0; });
    return heroLeft || attributes.generatesHero;
}

bool operator==(CmpHeroCrossover &a, CmpHeroCrossover &b)
{
    return a.player == b.player && a.sourceScenario == b.sourceScenario;
}

bool operator==(StartingHero &a, StartingHero &b)
{
    return a.player == b.player && a.heroId == b.heroId;
}

bool operator==(BonusArtifact &a, BonusArtifact &b)
{
    return a.heroId == b.heroId && a.artifactId == b.artifactId;
}

bool operator==(BonusBuilding &a, BonusBuilding &b)
{
    return a.buildingId == b.buildingId;
}

bool operator==(BonusCreature &a, BonusCreature &b)
{
    return a.heroId == b.heroId && a.creatureId == b.creatureId && a.amount == b.amount;
}

bool operator==(BonusPrimarySkill &a, BonusPrimarySkill &b)
{
    return a.heroId == b.heroId && a.skills == b.skills;
}

bool operator==(BonusResource &a, BonusResource &b)
{
    return a.resourceId == b.resourceId && a.amount == b.amount;
}

bool operator==(BonusSpell &a, BonusSpell &b)
{
    return a.heroId == b.heroId && a.spellId == b.spellId;
}

bool operator==(BonusScroll &a, BonusScroll &b)
{
    return a.heroId == b.heroId && a.spellId == b.spellId;
}

bool operator==(BonusSecondarySkill &a, BonusSecondarySkill &b)
{
    return a.heroId == b.heroId && a.skillId == b.skillId && a.skillLevel == b.skillLevel;
}

bool operator==(CmpStartingBonus &a, CmpStartingBonus &b)
{
    return a.bonusType == b.bonusType && a.bonusType < payloadComparisons.size() &&
           payloadComparisons[a.bonusType](a.bonusData, b.bonusData);
}

bool operator!=(CmpHeroCrossover &a, CmpHeroCrossover &b)
{
    return !(a == b);
}

bool operator!=(StartingHero &a, StartingHero &b)
{
    return !(a == b);
}

bool operator!=(BonusArtifact &a, BonusArtifact &b)
{
    return !(a == b);
}

bool operator!=(BonusBuilding &a, BonusBuilding &b)
{
    return !(a == b);
}

bool operator!=(BonusCreature &a, BonusCreature &b)
{
    return !(a == b);
}

bool operator!=(BonusPrimarySkill &a, BonusPrimarySkill &b)
{
    return !(a == b);
}

bool operator!=(BonusResource &a, BonusResource &b)
{
    return !(a == b);
}

bool operator!=(BonusSpell &a, BonusSpell &b)
{
    return !(a == b);
}

bool operator!=(BonusScroll &a, BonusScroll &b)
{
    return !(a == b);
}

bool operator!=(BonusSecondarySkill &a, BonusSecondarySkill &b)
{
    return !(a == b);
}

bool operator!=(CmpStartingBonus &a, CmpStartingBonus &b)
{
    return !(a == b);
}
