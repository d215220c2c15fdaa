// Turns a campaign on a map into one on a background, or the reverse. The target is chosen here;
// what becomes of the scenarios stands in document/campaign_conversion.h.
#pragma once

#include <QDialog>

#include <memory>
#include <set>

class CampaignData;
class ScenarioData;
class Ui_ConvertCampaign;

class ConvertCampaign : public QDialog
{
    Q_OBJECT

public:
    ConvertCampaign(QWidget *parent, CampaignData *campaign);
    ~ConvertCampaign() override;

    // Converts the campaign and sets the modified flag, if the user agrees once more.
    void saveInfo();

    // Whether scenarios would be lost for want of regions on this map.
    void updateWarningLabel(unsigned int selectedId);
    void addAllWithPrecondition(int index, std::set<ScenarioData *> &kept);

private slots:
    void changeSelection();

private:
    void fillBackgrounds();
    void fillMaps();
    void addTarget(int row, const QString &name, int id);
    void showTarget(unsigned int id);
    bool losesScenarios(unsigned int selectedId) const;
    bool isConfirmed(unsigned int selectedId);

    CampaignData *campaign; // the document, not owned, changed in place
    const std::unique_ptr<Ui_ConvertCampaign> ui;
};
