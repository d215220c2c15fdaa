// The tab for what the player may choose when the scenario starts: one of three kinds of options,
// each with an editor of its own, or nothing while there is no map.
//
// A thin host: it shows the editor of the kind chosen, offers the two hero kinds where the map and
// the prerequisites allow them, and stores the rows of one editor. Edits nothing of the scenario
// before saveScenarioInfo, and then replaces its record of start options.
#pragma once

#include <QWidget>

#include <array>
#include <memory>

class CampaignData;
class HeroCrossover;
class OptionPage;
class QRadioButton;
class QVariant;
class ScenarioData;
class ScenarioInfo;
class StartingBonus;
class StartingHeroOptions;
class Ui_ScenarioStartOptions;

class ScenarioStartOptions : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioStartOptions(QWidget *parent);
    ~ScenarioStartOptions() override;

    void initSlotsAndSignals();
    // Loads a scenario; one without a map leaves everything empty and disabled. `campaignMap` is
    // the key of EditorData::campaignInfo.
    void initInfo(ScenarioInfo *info, CampaignData *campaign, ScenarioData *scenario,
                  unsigned int campaignMap);
    // Stores the kind chosen with its rows; true if they differ from the ones before. Does nothing
    // without a map.
    bool saveScenarioInfo();
    // The scenario has another place in memory.
    void updateScenarioData(ScenarioData *scenario);
    // The scenario's map has changed: kinds and rows that it doesn't allow are gone.
    void updateScenarioUI();
    // The kind chosen as it is stored, 0 for none; and how many rows its editor has.
    unsigned int getSelectedOption();
    unsigned int getOptionCount();
    // Whether anything here can be used, whatever the kinds allowed.
    void setUIstatus(bool enable);
    // All three kinds may be chosen, and bonuses are.
    void enableUI();
    // Nothing can be chosen, and no editor has a row.
    void disableUI();

private slots:
    void clickStartingBonus();
    void clickStartingHero();
    void clickHeroCrossover();

private:
    // One of the three, as it is stored and shown.
    struct Kind
    {
        unsigned int type;
        QRadioButton *button;
        OptionPage *editor;
    };

    std::array<Kind, 3> kinds() const;
    void choose(const Kind &kind);
    void forgetOptions(ScenarioInfo *info, CampaignData *campaign, unsigned int campaignMap);
    void showStoredKind();
    void refreshButtonStates();
    bool mapOffersHero() const;
    bool somebodyCanTakeHero() const;
    void allow(const Kind &kind, bool allowed);
    QVariant rowsOfKind(unsigned int type);

    StartingBonus *startingBonus = nullptr; // these three belong to the stacked widget
    HeroCrossover *heroCrossover = nullptr;
    StartingHeroOptions *startingHero = nullptr;
    ScenarioData *scenario = nullptr; // not owned
    const std::unique_ptr<Ui_ScenarioStartOptions> ui;
};
