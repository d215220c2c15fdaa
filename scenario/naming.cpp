#include "scenario/naming.h"

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "scenario/map_player.h"

#include <QComboBox>
#include <QObject>

#include <algorithm>

namespace {

QString inTown()
{
    return QObject::tr(" (in town)");
}

QString onTheMap()
{
    return QObject::tr(" (on map)");
}

// Null if the campaign lacks it.
const ScenarioData *scenarioOf(const CampaignData &campaign, unsigned int scenario)
{
    return scenario < campaign.scenarios.size() ? &campaign.scenarios[scenario] : nullptr;
}

QString regionName(unsigned int campaignMap, unsigned int region)
{
    const QVector<CampaignRegion> &regions = EditorData::campaignMap(campaignMap).regions;
    return region < unsigned(regions.size()) ? regions[int(region)].name : QString();
}

QString nameAndRegion(const QString &name, unsigned int campaignMap, unsigned int region)
{
    return QObject::tr("%1 — %2").arg(name, regionName(campaignMap, region));
}

// Not for translators: a number and a name.
QString numbered(unsigned int number, const QString &name)
{
    return QStringLiteral("%1. %2").arg(QString::number(number), name);
}

} // namespace

QString colourName(unsigned int player)
{
    return player < EditorData::colors.size() ? EditorData::colors[player] : QString();
}

QString getFullPlayerName(unsigned int player)
{
    return QObject::tr("Player %1 (%2)").arg(QString::number(player + 1), colourName(player));
}

QString getHeroName(ScenarioData *scenario, unsigned int player, unsigned short hero,
                    bool showPlace)
{
    if (hero == HeroIdMostPowerful)
        return QObject::tr("Most powerful hero");
    if (hero == HeroIdGenerated)
        return QObject::tr("Generated hero") + inTown();
    if (hero == HeroIdRandom)
        return QObject::tr("Random hero") + inTown();

    const QString mapPlace = showPlace ? onTheMap() : QString();
    bool onMap = false;
    if (const PlayerAttributes *attributes = playerOnMap(*scenario, player)) {
        for (const PlayerAttributesHeroInfo &info : attributes->heroInfo) {
            if (info.heroId != hero)
                continue;
            if (!info.name.isEmpty())
                return info.name + mapPlace;
            onMap = true;
        }
    }
    return nameOf(EditorData::heroes, hero) + (onMap ? mapPlace : inTown());
}

void addHeroToCombobox(QComboBox *box, ScenarioData *scenario, unsigned int player,
                       unsigned int hero)
{
    box->addItem(getHeroName(scenario, player, quint16(hero), true), hero);
}

void addHeroesToCombobox(QComboBox *box, ScenarioData *scenario, unsigned int player,
                         bool withSpecial)
{
    const PlayerAttributes *attributes = playerOnMap(*scenario, player);
    if (withSpecial) {
        addHeroToCombobox(box, scenario, player, HeroIdMostPowerful);
        if (attributes && attributes->generatesHero)
            addHeroToCombobox(box, scenario, player, HeroIdGenerated);
    }
    if (!attributes)
        return;
    for (const PlayerAttributesHeroInfo &info : attributes->heroInfo)
        addHeroToCombobox(box, scenario, player, info.heroId);
}

QBitArray getDisabledHeroes(ScenarioData *scenario, unsigned int /*player*/)
{
    QBitArray disabled(int(EditorData::heroes.size()), true);
    if (!scenario->mapHeader)
        return disabled;
    const HeaderHeroes &heroes = scenario->mapHeader->headerHeroes;
    for (int hero = 0; hero < std::min(disabled.size(), heroes.available.size()); ++hero) {
        if (heroes.available.testBit(hero))
            disabled.clearBit(hero);
    }
    for (const HeaderHero &hero : heroes.customHeroes) {
        if (hero.heroId < disabled.size())
            disabled.clearBit(hero.heroId);
    }
    return disabled;
}

bool HeroIsDisabled(QBitArray &disabled, unsigned int hero)
{
    if (hero == HeroIdMostPowerful || hero == HeroIdGenerated || hero == HeroIdRandom)
        return false;
    return hero < unsigned(disabled.size()) && disabled.testBit(int(hero));
}

QString getScenarioFilename(CampaignData *campaign, unsigned int campaignMap, unsigned int scenario)
{
    const ScenarioData *data = scenarioOf(*campaign, scenario);
    const QString name = data ? data->mapFileName : QString();
    if (campaign->hasMap)
        return nameAndRegion(name.isEmpty() ? QObject::tr("Empty") : name, campaignMap, scenario);
    if (name.isEmpty())
        return QObject::tr("%1. Empty").arg(scenario + 1);
    return numbered(scenario + 1, name);
}

QString getScenarioName(CampaignData *campaign, unsigned int campaignMap, unsigned int scenario)
{
    const ScenarioData *data = scenarioOf(*campaign, scenario);
    const QString name =
        data && data->mapHeader ? data->mapHeader->mapName : QObject::tr("No scenario");
    return campaign->hasMap ? nameAndRegion(name, campaignMap, scenario) : numbered(scenario, name);
}
