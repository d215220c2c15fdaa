// The tab for what a hero carries over into the scenario.
//
// It has no controls yet: the page is empty and leaves the scenario alone.
#pragma once

#include <QWidget>

class ScenarioData;

class ScenarioCrossover : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioCrossover(QWidget *parent);

    void initInfo(ScenarioData *scenario);
    // True if something changed.
    bool saveScenarioInfo();
    void updateScenarioData(ScenarioData *scenario);
    void enableUI();
    void disableUI();

private:
    ScenarioData *scenario = nullptr; // not owned
};
