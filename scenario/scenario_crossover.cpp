#include "scenario/scenario_crossover.h"

ScenarioCrossover::ScenarioCrossover(QWidget *parent) : QWidget(parent) {}

void ScenarioCrossover::initInfo(ScenarioData *newScenario)
{
    scenario = newScenario;
}

bool ScenarioCrossover::saveScenarioInfo()
{
    return false;
}

void ScenarioCrossover::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

void ScenarioCrossover::enableUI() {}

void ScenarioCrossover::disableUI() {}
