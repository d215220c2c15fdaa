// Makes or changes one offer of a hero carried over.
//
// Lists the scenarios that this one requires, without those that other rows of the table carry a
// hero from, and all players whom a human can play.
#pragma once

#include <QDialog>

#include <memory>
#include <set>
#include <vector>

class CampaignData;
class QTableWidget;
class QTableWidgetItem;
class ScenarioData;
class Ui_HeroCrossoverDialog;
struct CmpHeroCrossover;

// Puts an offer and its texts into both items of a row.
void showHeroCrossover(QTableWidget *table, int row, CampaignData *campaign,
                       unsigned int campaignMap, const CmpHeroCrossover &option);

// The scenarios that this one requires, apart from those used. A record's source is a byte, so one
// past 255 can't be a source.
std::vector<int> freeSources(const ScenarioData &scenario, const std::set<int> &used);

class HeroCrossoverDialog : public QDialog
{
    Q_OBJECT

public:
    // `item` is the row to edit, null for a new one. Only the item in column 0 leaves the row's
    // own source to choose. The table is asked here and not kept.
    HeroCrossoverDialog(QWidget *parent, CampaignData *campaign, ScenarioData *scenario,
                        unsigned int campaignMap, QTableWidget *table, QTableWidgetItem *item);
    ~HeroCrossoverDialog() override;

    // Writes what is chosen into the item's row.
    void updateOption(QTableWidgetItem *item);

private:
    void addSources(const QTableWidget *table, const QTableWidgetItem *item);
    void addPlayers();

    CampaignData *campaign; // these two belong to the scenario dialog
    ScenarioData *scenario;
    unsigned int campaignMap; // key of EditorData::campaignInfo
    const std::unique_ptr<Ui_HeroCrossoverDialog> ui;
};
