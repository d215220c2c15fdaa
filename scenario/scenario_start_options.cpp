#include "scenario/scenario_start_options.h"

ScenarioStartOptions::ScenarioStartOptions(QWidget *parent) : QWidget(parent) {}

void ScenarioStartOptions::initInfo(ScenarioInfo *, CampaignData *, ScenarioData *newScenario,
                                    unsigned int)
{
    scenario = newScenario;
}

bool ScenarioStartOptions::saveScenarioInfo()
{
    return false;
}

void ScenarioStartOptions::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

void ScenarioStartOptions::updateScenarioUI() {}

unsigned int ScenarioStartOptions::getSelectedOption()
{
    return 0;
}

unsigned int ScenarioStartOptions::getOptionCount()
{
    return 0;
}

void ScenarioStartOptions::enableUI() {}

void ScenarioStartOptions::disableUI() {}
