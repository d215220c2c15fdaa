// The first tab of the scenario dialog: the scenario's map, its region's colour and text, the
// difficulty, and which scenarios have to be won before.
//
// Edits the campaign that it is given, of which it owns nothing. Prerequisites and the map change
// there at once; colour, difficulty and text when saveScenarioInfo is called.
#pragma once

#include <QWidget>

#include <memory>

class CampaignData;
class QBitArray;
class QListWidgetItem;
class ScenarioData;
class Ui_scenarioGeneral;

class ScenarioGeneral : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioGeneral(QWidget *parent);
    ~ScenarioGeneral() override;

    // Loads a scenario: `region` is its index, `campaignMap` the key of EditorData::campaignInfo.
    // From then on clicks on prerequisites count.
    void initInfo(CampaignData *campaign, ScenarioData *scenario, unsigned int campaignMap,
                  unsigned int region);
    // Stores colour, difficulty and text; true if one of them changed. What nobody touched stays
    // as it is, even where a control can't show it.
    bool saveScenarioInfo();

    // The scenario has another place in memory, or in the list.
    void updateScenarioData(ScenarioData *scenario, unsigned int region);
    // Clicks on prerequisites change nothing until the next initInfo.
    void ignorePrerequisites();

    void addDifficulty(const QString &name, unsigned int difficulty);
    void addRegionColor(const QString &name, unsigned int color);

    // Fills the list with all that this scenario may require. Those that require it themselves are
    // left out; those required through others are checked and disabled.
    void addPrerequisiteUI();
    // Shows the map's names, and which of its commands are possible.
    void updateUI();

    // What scenario x requires, directly or through others, becomes direct here and can be taken
    // away again; or is implied by x and no longer stored.
    void loopAndAllow(unsigned int x);
    void loopAndForbid(unsigned int x);

private slots:
    void refreshMap();
    void exportMap();
    void removeMap();
    void checkPrereq(QListWidgetItem *item);
    void regionTextChanged();

private:
    void loadRegion();
    QListWidgetItem *prerequisiteItem(unsigned int index, const QBitArray &required) const;
    void requireAlongWith(unsigned int x, bool required);
    void setImpliedBy(unsigned int x, bool direct);
    QString startPath() const;
    bool importFrom(const QString &path);
    void passPrerequisitesOn();
    void setChanged();

    CampaignData *campaign = nullptr; // these two belong to the dialog
    ScenarioData *scenario = nullptr;
    unsigned int campaignMap = 0;
    unsigned int region = 0;
    bool guard = false; // while false, clicks on prerequisites are ignored
    QString loadedText; // the region's text as the control showed it at first
    const std::unique_ptr<Ui_scenarioGeneral> ui;
};
