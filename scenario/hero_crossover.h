// The editor of start options for heroes carried over: up to three offers, each an earlier
// scenario whose hero comes in for a player.
//
// Both items of a row hold the same CmpHeroCrossover under Qt::UserRole. No source scenario stands
// in two rows.
#pragma once

#include "scenario/option_page.h"

#include <memory>

class CampaignData;
class Ui_HeroCrossover;
struct HeroCrossoverSet;

class HeroCrossover : public OptionPage
{
    Q_OBJECT

public:
    explicit HeroCrossover(QWidget *parent);
    ~HeroCrossover() override;

    void initInfo(CampaignData *campaign, ScenarioData *scenario, unsigned int campaignMap);
    void saveScenarioInfo(HeroCrossoverSet *set);
    // Removes the rows of players whom no human can play; one behind a removed row waits for the
    // next time.
    void validateOptions();
    // Disables the adding of a row if every prerequisite has one. Never enables it.
    void checkAdd(QTableWidgetItem *item);

private:
    void addItem() override;
    void openEditMenu(QTableWidgetItem *item) override;
    void deleteItem() override;
    void fillRows(const HeroCrossoverSet &set);

    const std::unique_ptr<Ui_HeroCrossover> ui;
    CampaignData *campaign = nullptr; // not owned
};
