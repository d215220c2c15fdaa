// What the tests of the scenario dialog's list share.
#pragma once

#include "tests/scenario/scenario_fixture.h"

#include <QComboBox>
#include <QLabel>

// Scenarios "a" to "e" in a chain, each with a difficulty of its own.
inline CampaignData fiveInAChain()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c", "d", "e"});
    for (std::size_t i = 0; i < campaign.scenarios.size(); ++i)
        campaign.scenarios[i].defaultDifficulty = quint8(i);
    return campaign;
}

inline QComboBox *difficulty(OpenScenarioDialog &open)
{
    return open.find<QComboBox>("difficultyCombobox");
}

inline bool isEnabled(OpenScenarioDialog &open, const char *button)
{
    return open.find<QWidget>(button)->isEnabled();
}

// Rows and the indexes under their items are in step, and the tabs show the row that is selected.
inline void checkSteps(OpenScenarioDialog &open)
{
    QCOMPARE(open.list()->count(), int(open.copy().scenarios.size()));
    for (int row = 0; row < open.list()->count(); ++row)
        QCOMPARE(open.list()->item(row)->data(Qt::UserRole), QVariant(row));
    const ScenarioData *scenario = open.dialog.selectedScenarioData();
    QCOMPARE(scenario, &open.copy().scenarios[std::size_t(open.list()->currentRow())]);
    QCOMPARE(difficulty(open)->currentData().toInt(), int(scenario->defaultDifficulty));
    QCOMPARE(open.find<QLabel>("scenarioNameLabelMain")->text(),
             scenario->mapHeader ? scenario->mapHeader->mapName : QString("(None)"));
}
