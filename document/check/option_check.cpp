#include "document/check/option_check.h"

#include "document/campaign_data.h"
#include "document/map_player.h"
#include "document/prerequisites.h"
#include "document/start_option_values.h"
#include "document/starting_bonus_rules.h"
#include "gamedata/editor_data.h"

#include <algorithm>
#include <set>

namespace {

// Whom bonuses go to. Null attributes beyond the map's players.
struct BonusPlayer
{
    const PlayerAttributes *attributes;
    StartingBonusRules rules;
};

class OptionCheck
{
public:
    OptionCheck(const CampaignData &campaign, unsigned int index, Findings &findings)
        : m_campaign(campaign), m_scenario(campaign.scenarios[index]),
          m_header(*m_scenario.mapHeader), m_index(index), m_findings(findings)
    {
    }

    void run()
    {
        const CmpScenarioStartOptions &options = *m_scenario.startOptions;
        if (optionCount(m_campaign, m_index) > unsigned(mostStartOptions))
            find(QStringLiteral("%1 choices, the editor makes at most %2")
                     .arg(optionCount(m_campaign, m_index))
                     .arg(mostStartOptions));
        if (options.optionType == BonusOption)
            checkBonuses(options.optionData.value<StartingBonusSet>());
        else if (options.optionType == CrossoverOption)
            checkCrossovers(options.optionData.value<HeroCrossoverSet>());
        else if (options.optionType == HeroOption)
            checkHeroes(options.optionData.value<StartingHeroSet>());
    }

private:
    // Of the choice at hand, or of all of them.
    void find(const QString &what)
    {
        QString where = placeOf(m_index, "options");
        if (m_choice > 0)
            where += QStringLiteral(".%1").arg(m_choice);
        m_findings.push_back({where, what});
    }

    bool isHuman(unsigned int player) const
    {
        return player < m_header.players.size() && m_header.players[player].canHuman;
    }

    void checkPlayer(unsigned int player)
    {
        if (!isHuman(player))
            find(QStringLiteral("nobody can play player %1 on this map").arg(player + 1));
    }

    static bool standsOnMap(const PlayerAttributes &player, quint16 hero)
    {
        return std::any_of(
            player.heroInfo.begin(), player.heroInfo.end(),
            [&](const PlayerAttributesHeroInfo &info) { return info.heroId == hero; });
    }

    static bool townMakesHero(const PlayerAttributes &player)
    {
        return player.generatesHero && player.hasMainTown;
    }

    template<typename Table>
    void checkNumber(const Table &table, int number, const char *kind)
    {
        if (table.count(number) == 0)
            find(QStringLiteral("the game has no %1 %2").arg(QLatin1String(kind)).arg(number));
    }

    void checkRange(int number, int least, int most, const char *kind)
    {
        if (number < least || number > most) {
            find(QStringLiteral("%1 %2, the editor takes %3 to %4")
                     .arg(number)
                     .arg(QLatin1String(kind))
                     .arg(least)
                     .arg(most));
        }
    }

    void checkBonuses(const StartingBonusSet &set)
    {
        if (set.bonuses.empty())
            return;
        checkPlayer(set.player);
        const BonusPlayer player{playerOnMap(m_scenario, set.player),
                                 StartingBonusRules(m_scenario, set.player)};
        for (const CmpStartingBonus &bonus : set.bonuses) {
            ++m_choice;
            checkBonus(bonus, player);
        }
    }

    void checkBonus(const CmpStartingBonus &bonus, const BonusPlayer &player)
    {
        const QVariant &data = bonus.bonusData;
        switch (BonusType(bonus.bonusType)) {
        case BonusType::Spell:
            checkSpell(data.value<BonusSpell>(), player);
            break;
        case BonusType::Creature:
            checkCreature(data.value<BonusCreature>(), player);
            break;
        case BonusType::Building:
            checkBuilding(data.value<BonusBuilding>(), player);
            break;
        case BonusType::Artifact:
            checkHeroOf(player, data.value<BonusArtifact>().heroId);
            checkNumber(EditorData::artifacts, data.value<BonusArtifact>().artifactId, "artifact");
            break;
        case BonusType::Scroll:
            checkSpell(data.value<BonusScroll>(), player);
            break;
        case BonusType::PrimarySkill:
            checkSkills(data.value<BonusPrimarySkill>(), player);
            break;
        case BonusType::SecondarySkill:
            checkSecondarySkill(data.value<BonusSecondarySkill>(), player);
            break;
        case BonusType::Resource:
            checkResource(data.value<BonusResource>());
            break;
        default:
            find(QStringLiteral("a bonus of the unknown kind %1, over which the editor ends")
                     .arg(bonus.bonusType));
        }
    }

    void checkHeroOf(const BonusPlayer &player, quint16 hero)
    {
        if (!player.attributes || player.rules.allowsHero(hero))
            return;
        if (hero == HeroIdGenerated)
            find(QStringLiteral("the player's main town makes no hero"));
        else if (!standsOnMap(*player.attributes, hero))
            find(QStringLiteral("the player has no hero %1 on this map").arg(hero));
        else
            find(QStringLiteral("the game has no hero %1").arg(hero));
    }

    template<typename Bonus>
    void checkSpell(const Bonus &bonus, const BonusPlayer &player)
    {
        checkHeroOf(player, bonus.heroId);
        checkNumber(EditorData::spells, bonus.spellId, "spell");
    }

    void checkCreature(const BonusCreature &bonus, const BonusPlayer &player)
    {
        checkHeroOf(player, bonus.heroId);
        checkNumber(EditorData::creatures, bonus.creatureId, "creature");
        checkRange(bonus.amount, 1, mostOfACreature, "creatures");
    }

    static bool hasBuilding(int town, int building)
    {
        const auto buildings = EditorData::buildings.find(town);
        return buildings != EditorData::buildings.end() && buildings->second.count(building) > 0;
    }

    void checkBuilding(const BonusBuilding &bonus, const BonusPlayer &player)
    {
        if (!player.attributes)
            return;
        const int town = player.attributes->mainTownType;
        if (!player.attributes->hasMainTown || town == randomTown)
            find(QStringLiteral("a building, but the player has no main town of a known kind"));
        else if (!player.rules.allowsBuilding(bonus.buildingId))
            find(QStringLiteral("the player's main town can't have building %1")
                     .arg(bonus.buildingId));
        else if (!hasBuilding(town, bonus.buildingId))
            find(QStringLiteral("the game has no building %1 in that town").arg(bonus.buildingId));
    }

    void checkSkills(const BonusPrimarySkill &bonus, const BonusPlayer &player)
    {
        checkHeroOf(player, bonus.heroId);
        const auto [least, most] = std::minmax_element(bonus.skills.begin(), bonus.skills.end());
        checkRange(*most, 0, mostOfASkill, "points of a skill");
        if (*least == 0 && *most == 0)
            find(QStringLiteral("a bonus of skills that adds none"));
    }

    void checkSecondarySkill(const BonusSecondarySkill &bonus, const BonusPlayer &player)
    {
        checkHeroOf(player, bonus.heroId);
        checkNumber(EditorData::secondarySkills, bonus.skillId, "secondary skill");
        checkNumber(EditorData::skillLevels, bonus.skillLevel, "level of skills");
    }

    void checkResource(const BonusResource &bonus)
    {
        if (bonus.resourceId != woodAndOre && bonus.resourceId != rareResources)
            checkNumber(EditorData::resources, bonus.resourceId, "resource");
        checkRange(bonus.amount, 1, mostOfAResource, "of a resource");
    }

    void checkCrossovers(const HeroCrossoverSet &set)
    {
        std::set<unsigned int> used;
        for (const CmpHeroCrossover &entry : set.entries) {
            ++m_choice;
            checkPlayer(entry.player);
            const unsigned int source = entry.sourceScenario;
            if (source >= m_campaign.scenarios.size())
                find(QStringLiteral("there is no scenario %1").arg(source + 1));
            else if (!hasPrerequisite(m_scenario, source))
                find(QStringLiteral("scenario %1 isn't required for this one").arg(source + 1));
            if (!used.insert(source).second)
                find(QStringLiteral("scenario %1 was offered before").arg(source + 1));
        }
    }

    // Only the first player that a person can play decides whether heroes are offered at all.
    bool allowsHeroes() const
    {
        const auto first =
            std::find_if(m_header.players.begin(), m_header.players.end(),
                         [](const PlayerAttributes &player) { return player.canHuman != 0; });
        return first != m_header.players.end() &&
               (first->generatesHero || !first->heroInfo.empty());
    }

    bool isDisabled(quint16 hero) const
    {
        const HeaderHeroes &heroes = m_header.headerHeroes;
        if (hero < heroes.available.size() && heroes.available.testBit(hero))
            return false;
        return std::none_of(heroes.customHeroes.begin(), heroes.customHeroes.end(),
                            [&](const HeaderHero &custom) { return custom.heroId == hero; });
    }

    void checkHeroes(const StartingHeroSet &set)
    {
        if (!set.entries.empty() && !allowsHeroes())
            find(QStringLiteral("the first player offers no hero on this map"));
        std::set<quint16> used;
        for (const StartingHero &entry : set.entries) {
            ++m_choice;
            checkPlayer(entry.player);
            if (entry.player < m_header.players.size())
                checkStartingHero(m_header.players[entry.player], entry.heroId);
            if (!used.insert(entry.heroId).second)
                find(QStringLiteral("hero %1 was offered before").arg(entry.heroId));
        }
    }

    void checkStartingHero(const PlayerAttributes &player, quint16 hero)
    {
        if (standsOnMap(player, hero))
            return;
        if (!townMakesHero(player))
            find(QStringLiteral("the player has no hero %1 on this map").arg(hero));
        else if (hero != HeroIdRandom && EditorData::heroes.count(hero) == 0)
            find(QStringLiteral("the game has no hero %1").arg(hero));
        else if (hero != HeroIdRandom && isDisabled(hero))
            find(QStringLiteral("this map doesn't allow hero %1").arg(hero));
    }

    const CampaignData &m_campaign;
    const ScenarioData &m_scenario;
    const MapHeader &m_header;
    const unsigned int m_index;
    Findings &m_findings;
    int m_choice = 0; // the one at hand, from 1
};

} // namespace

void checkOptions(const CampaignData &campaign, unsigned int index, Findings &findings)
{
    const ScenarioData &scenario = campaign.scenarios[index];
    if (scenario.mapHeader && scenario.startOptions)
        OptionCheck(campaign, index, findings).run();
}

unsigned int optionCount(const CampaignData &campaign, unsigned int index)
{
    const auto &options = campaign.scenarios[index].startOptions;
    if (!options)
        return 0;
    const QVariant &data = options->optionData;
    switch (options->optionType) {
    case BonusOption:
        return unsigned(data.value<StartingBonusSet>().bonuses.size());
    case CrossoverOption:
        return unsigned(data.value<HeroCrossoverSet>().entries.size());
    case HeroOption:
        return unsigned(data.value<StartingHeroSet>().entries.size());
    default:
        return 0;
    }
}
