// The tab for what the player may choose when the scenario starts.
//
// It has no controls yet: the page is empty and leaves the scenario alone.
#pragma once

#include <QWidget>

class CampaignData;
class ScenarioData;
class ScenarioInfo;

class ScenarioStartOptions : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioStartOptions(QWidget *parent);

    // `campaignMap` is the key of EditorData::campaignInfo.
    void initInfo(ScenarioInfo *info, CampaignData *campaign, ScenarioData *scenario,
                  unsigned int campaignMap);
    // True if the stored option differs from the one before.
    bool saveScenarioInfo();
    void updateScenarioData(ScenarioData *scenario);
    // The scenario's map has changed.
    void updateScenarioUI();
    // The kind chosen as it is stored, 0 for none; and how many options of it there are.
    unsigned int getSelectedOption();
    unsigned int getOptionCount();
    void enableUI();
    void disableUI();

private:
    ScenarioData *scenario = nullptr; // not owned
};
