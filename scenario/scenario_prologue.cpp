#include "scenario/scenario_prologue.h"

#include "scenario/scenario_host.h"

ScenarioPrologue::ScenarioPrologue(QWidget *parent) : QWidget(parent) {}

void ScenarioPrologue::initInfo(ScenarioData *newScenario, bool, unsigned int ix, bool)
{
    scenario = newScenario;
    index = ix;
}

bool ScenarioPrologue::saveScenarioInfo(unsigned int)
{
    return false;
}

void ScenarioPrologue::updatePrologue(unsigned int)
{
    index = 0;
}

unsigned int ScenarioPrologue::getPrologueCount()
{
    ScenarioHost *host = hostOf(this);
    return host && host->getSelectedOption() != 0 ? host->getOptionCount() : 1;
}

void ScenarioPrologue::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

void ScenarioPrologue::enableUI() {}

void ScenarioPrologue::disableUI() {}

void ScenarioPrologue::pausePlayer() {}
