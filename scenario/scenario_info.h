// The scenario properties: a list of the campaign's scenarios, and five tabs for the selected one.
//
// Works on its own copy of the campaign. Whoever has run it and finds it accepted calls
// saveScenarioInfo, looks at hasChanged, and takes editedCampaign over; a rejected one is thrown
// away. The copy's scenarioCount isn't kept: it follows the vector's size when taken over.
//
// Rows of the list and scenarios are in step: the item in row i holds i under Qt::UserRole.
#pragma once

#include "document/campaign_data.h"
#include "scenario/scenario_host.h"

#include <QDialog>

#include <memory>

class QListWidgetItem;
class ScenarioCrossover;
class ScenarioGeneral;
class ScenarioPrologue;
class ScenarioStartOptions;
class Ui_ScenarioInfo;

class ScenarioInfo : public QDialog, public ScenarioHost
{
    Q_OBJECT

public:
    static constexpr int mostScenarios = 30000;

    // Copies the campaign. `campaignMap` is the key of EditorData::campaignInfo, `region` the
    // scenario that is selected first.
    ScenarioInfo(QWidget *parent, CampaignData *campaign, unsigned int campaignMap,
                 unsigned int region);
    ~ScenarioInfo() override;

    // Stores what the tabs show; true if one of them changed something.
    bool saveScenarioInfo();
    // The copy differs from the document. What the tabs show and have not stored doesn't count.
    bool hasChanged() const { return changed; }
    CampaignData &editedCampaign() { return campaign; }

    // Of the selected scenario: its index, 0 without one, and itself, null without one.
    unsigned int getCurrentRegion();
    ScenarioData *selectedScenarioData();

    // From the campaign's file names.
    void resetItemText(QListWidgetItem *item);
    void updateProloguesEpilogues(unsigned int count);
    // Enables the buttons that the list and its selection allow.
    void updateItemSelection();
    // Shows a scenario, the selected one, in all tabs.
    void loadScenarioToInterface(ScenarioData *scenario);
    // Tells the tabs where their scenario is now, and nothing else.
    void refreshScenarioData(ScenarioData *scenario);

    void setChanged() override;
    void updateCurrentItem() override;
    void enableUI() override;
    void disableUI() override;
    void updateScenarioData(ScenarioData *scenario) override;
    void updateScenarioUI() override;
    unsigned int getSelectedOption() override;
    unsigned int getOptionCount() override;

private slots:
    void selectListboxItem(QListWidgetItem *current, QListWidgetItem *previous);
    void tabChanged(int index);
    void buttonUp();
    void buttonDown();
    void buttonAdd();
    void buttonDelete();
    void buttonDeleteAll();

private:
    void initSlotsAndSignals();
    void fillList();
    void createTabs();
    void putButtonsLast();
    void loadCurrentScenario();
    void resetItemTexts(int firstRow);
    void moveCurrentTo(int row);
    void removeRows(int first, int count);

    CampaignData campaign;
    const unsigned int campaignMap;
    const unsigned int initialRegion;
    bool changed = false;
    int lastTab = 0;
    ScenarioGeneral *general = nullptr; // Qt owns these five
    ScenarioPrologue *prologue = nullptr;
    ScenarioPrologue *epilogue = nullptr;
    ScenarioCrossover *crossover = nullptr;
    ScenarioStartOptions *startOptions = nullptr;
    const std::unique_ptr<Ui_ScenarioInfo> ui;
};
