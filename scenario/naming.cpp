#include "scenario/naming.h"

#include "document/campaign_data.h"
#include "document/map_player.h"
#include "gamedata/editor_data.h"
#include "shell/shown_text.h"

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
                return inOneLine(info.name) + mapPlace;
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
