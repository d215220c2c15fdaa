// What the tests of the scenario dialog share: the tiny game, loaded once, campaigns made in
// memory, and the dialog on one of them.
#pragma once

#include "document/campaign_data.h"
#include "scenario/scenario_info.h"
#include "tests/shell/editor_fixture.h"
#include "tests/support/stored_options.h"
#include "tests/support/widgets.h"

#include <QListWidget>
#include <QTabWidget>

#include <memory>
#include <vector>

// Map 24 of the tiny game has the regions "Alder Bay", "Birch Hill" and "Cedar Fen".
constexpr unsigned int homeMap = 24;

using ScenarioFixture = EditorFixture;

// A scenario on a map of this file and this name, as the dialog leaves one. The map's bytes are
// nobody's but its own, and a human can play the first player.
inline ScenarioData scenarioWithMap(const QString &fileName, const QString &mapName)
{
    auto header = std::make_shared<MapHeader>();
    header->anyPlayers = 1;
    header->players[0].canHuman = 1;
    header->mapName = mapName;
    ScenarioData scenario;
    scenario.mapFileName = fileName;
    scenario.mapHeader = std::move(header);
    scenario.compressedMap = "packed " + fileName.toUtf8();
    scenario.mapSize = quint32(scenario.compressedMap.size());
    scenario.startOptions = resourceBonuses(0);
    return scenario;
}

// Where the name is empty, a scenario without a map; else on "NAME.e3m", called "NAME map".
inline std::vector<ScenarioData> scenariosNamed(const QStringList &names)
{
    std::vector<ScenarioData> scenarios;
    for (const QString &name : names) {
        scenarios.push_back(name.isEmpty() ? ScenarioData()
                                           : scenarioWithMap(name + ".e3m", name + " map"));
    }
    return scenarios;
}

// Every scenario gets a clear bit for each of them.
inline CampaignData campaignFrom(bool hasMap, std::vector<ScenarioData> scenarios)
{
    CampaignData campaign;
    campaign.initDummyCampaign(homeMap, hasMap, 0, hasMap ? 0 : unsigned(scenarios.size()));
    campaign.scenarios = std::move(scenarios);
    const QBitArray none(int(campaign.scenarios.size()));
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.prerequisites = none;
    return campaign;
}

inline CampaignData campaignOf(bool hasMap, const QStringList &names)
{
    return campaignFrom(hasMap, scenariosNamed(names));
}

// Gives the scenarios their prerequisites: a row of "0" and "1" for each, scenario 0 first.
inline void require(CampaignData &campaign, const QStringList &rows)
{
    for (int i = 0; i < rows.size(); ++i) {
        QBitArray bits(rows[i].size());
        for (int j = 0; j < bits.size(); ++j)
            bits.setBit(j, rows[i][j] == '1');
        campaign.scenarios[std::size_t(i)].prerequisites = bits;
    }
}

inline QStringList requiredIn(const CampaignData &campaign)
{
    QStringList rows;
    for (const ScenarioData &scenario : campaign.scenarios) {
        QString row;
        for (int j = 0; j < scenario.prerequisites.size(); ++j)
            row += scenario.prerequisites.testBit(j) ? '1' : '0';
        rows << row;
    }
    return rows;
}

// Fills what the first tab doesn't show: three start options, as many stories, crossover.
inline void addStories(ScenarioData &scenario, const QString &text)
{
    for (std::size_t i = 0; i < scenario.prologues.size(); ++i) {
        scenario.prologues[i] = std::make_shared<CmpPrologue>(CmpPrologue{1, 2, text + " begins"});
        scenario.epilogues[i] = std::make_shared<CmpPrologue>(CmpPrologue{2, 1, text + " ends"});
    }
    scenario.startOptions = resourceBonuses(3);
    scenario.crossover.heroKeeps.fill(false);
    scenario.crossover.heroKeeps.setBit(2);
    scenario.crossover.artifacts.setBit(7);
    scenario.crossover.creatures.setBit(9);
}

// All of a campaign, to be held against another: its file's bytes, and what they don't tell, since
// a file without a map holds a chain in the place of prerequisites.
inline QByteArrayList stateOf(CampaignData campaign)
{
    QByteArrayList state{QByteArray::number(campaign.scenarioCount),
                         requiredIn(campaign).join(' ').toLatin1()};
    for (const ScenarioData &scenario : campaign.scenarios)
        state << QByteArray::number(quintptr(scenario.mapHeader.get()));
    for (const QByteArray &piece : campaign.toPieces())
        state << piece;
    return state;
}

// The dialog on a campaign, on show until it goes out of scope.
class OpenScenarioDialog
{
public:
    explicit OpenScenarioDialog(CampaignData &campaign, unsigned int region = 0)
        : dialog(nullptr, &campaign, homeMap, region)
    {
        bringOnShow(dialog);
    }

    template<typename Widget>
    Widget *find(const char *name)
    {
        return childOf<Widget>(&dialog, name);
    }

    QListWidget *list() { return find<QListWidget>("listWidget"); }
    QTabWidget *tabs() { return find<QTabWidget>("tabWidget"); }
    CampaignData &copy() { return dialog.editedCampaign(); }

    void click(const char *button) { clickOn(find<QWidget>(button)); }

    // Clicks on a row of the list of scenarios.
    void select(int row)
    {
        QListWidgetItem *item = list()->item(row);
        list()->scrollToItem(item);
        clickOn(list()->viewport(), list()->visualItemRect(item).center());
    }

    QStringList texts()
    {
        QStringList rows;
        for (int row = 0; row < list()->count(); ++row)
            rows << list()->item(row)->text();
        return rows;
    }

    ScenarioInfo dialog;
};
