// The tab with the start options by itself, on a scenario that allows every kind.
#pragma once

#include "scenario/hero_crossover.h"
#include "scenario/scenario_start_options.h"
#include "scenario/starting_bonus.h"
#include "scenario/starting_hero_options.h"
#include "tests/scenario/hero_map.h"
#include "tests/scenario/scenario_fixture.h"
#include "tests/scenario/shown_page.h"

#include <QRadioButton>
#include <QStackedWidget>

// As they are stored.
enum Type
{
    NoType,
    BonusKind,
    CrossoverKind,
    HeroKind
};

constexpr const char *bonusButton = "startingBonusBtn";
constexpr const char *crossoverButton = "heroCrosssoverBtn";
constexpr const char *heroButton = "startingHeroBtn";

inline CmpStartingBonus resource(int amount)
{
    return {7, QVariant::fromValue(BonusResource{2, amount})};
}

inline StartingBonusSet bonuses(int player, const std::vector<CmpStartingBonus> &rows)
{
    StartingBonusSet set;
    set.player = quint8(player);
    set.bonuses = rows;
    return set;
}

// The tab by itself on the second scenario of a campaign, which requires the first, on heroMap().
class StartOptionsTab
{
public:
    StartOptionsTab() : tab(nullptr)
    {
        campaign = campaignOf(true, {"ford", "weir", "pass"});
        require(campaign, {"000", "100", "000"});
        giveMap(scenario(), heroMap());
        scenario().startOptions.reset();
        tab.resize(460, 400);
    }

    ScenarioData &scenario() { return campaign.scenarios[1]; }

    void load() { tab.initInfo(nullptr, &campaign, &scenario(), homeMap); }

    void show() { bringOnShow(tab); }

    QRadioButton *button(const char *name) { return childOf<QRadioButton>(&tab, name); }

    // Of each kind in the order of their types.
    QList<QWidget *> editors()
    {
        return {tab.findChild<StartingBonus *>(), tab.findChild<HeroCrossover *>(),
                tab.findChild<StartingHeroOptions *>()};
    }
    QTableWidget *table(int type)
    {
        return childOf<QTableWidget>(editors()[type - 1], "tableWidget");
    }

    // The type whose editor is on show.
    int shownType()
    {
        return 1 +
               editors().indexOf(childOf<QStackedWidget>(&tab, "stackedWidget")->currentWidget());
    }

    QList<int> rowCounts()
    {
        return {table(1)->rowCount(), table(2)->rowCount(), table(3)->rowCount()};
    }

    bool allows(const char *name) { return button(name)->isEnabled(); }

    CampaignData campaign;
    ScenarioStartOptions tab;
};
