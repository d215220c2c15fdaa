// What the tabs of the scenario dialog may ask of the dialog around them.
#pragma once

#include <QWidget>

class ScenarioData;

class ScenarioHost
{
public:
    ScenarioHost() = default;
    virtual ~ScenarioHost() = default;
    ScenarioHost(const ScenarioHost &) = delete;
    ScenarioHost &operator=(const ScenarioHost &) = delete;

    // Notes that the dialog's campaign differs from the document.
    virtual void setChanged() = 0;
    // The selected scenario in the list, by its name of now.
    virtual void updateCurrentItem() = 0;
    // A scenario that got its first map opens the other tabs; one that lost its map closes them.
    virtual void enableUI() = 0;
    virtual void disableUI() = 0;
    // After an import: the scenario stands in all tabs, the rules follow its new map.
    virtual void updateScenarioData(ScenarioData *scenario) = 0;
    virtual void updateScenarioUI() = 0;
    // Of the tab with the start options: which kind is chosen (0 none), and how many it offers.
    virtual unsigned int getSelectedOption() = 0;
    virtual unsigned int getOptionCount() = 0;
};

// The dialog that a tab stands in; null for a tab by itself.
inline ScenarioHost *hostOf(const QWidget *tab)
{
    return dynamic_cast<ScenarioHost *>(tab->window());
}
