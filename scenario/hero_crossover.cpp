#include "scenario/hero_crossover.h"

#include "document/map_player.h"
#include "scenario/hero_crossover_dialog.h"
#include "ui_HeroCrossover.h"

#include <QDebug>

namespace {

constexpr int checkedRowHeight = 18; // pixels, until the row is saved or validated

} // namespace

HeroCrossover::HeroCrossover(QWidget *parent)
    : OptionPage(parent), ui(std::make_unique<Ui_HeroCrossover>())
{
    ui->setupUi(this);
    setUpTable(ui->tableWidget, ui->addButton, ui->editButton, ui->removeButton);
    setColumnShare(2, 3);
}

HeroCrossover::~HeroCrossover() = default;

// A scenario without a stored option starts without the adding of rows: updateUI allows it once
// the scenario's map has changed.
void HeroCrossover::initInfo(CampaignData *newCampaign, ScenarioData *newScenario,
                             unsigned int newCampaignMap)
{
    campaign = newCampaign;
    scenario = newScenario;
    campaignMap = newCampaignMap;
    resetTable(2);
    if (scenario->startOptions) {
        if (scenario->startOptions->optionType == CrossoverOption)
            fillRows(scenario->startOptions->optionData.value<HeroCrossoverSet>());
        updateUI();
    }
    checkAdd(nullptr);
}

void HeroCrossover::fillRows(const HeroCrossoverSet &set)
{
    for (const CmpHeroCrossover &option : set.entries) {
        const int row = appendRow()->row();
        table()->setRowHeight(row, rowHeight);
        showHeroCrossover(table(), row, campaign, campaignMap, option);
    }
}

void HeroCrossover::saveScenarioInfo(HeroCrossoverSet *set)
{
    for (int row = 0; row < table()->rowCount(); ++row) {
        if (table()->item(row, 0))
            table()->setRowHeight(row, rowHeight);
    }
    for (const CmpHeroCrossover &option : recordsInRows<CmpHeroCrossover>(table()))
        set->entries.push_back(option);
}

// The walk moves on after a removal too, so that a row behind a removed one waits for the next run.
// A source that is no prerequisite any more stays: that is for whoever changes prerequisites.
void HeroCrossover::validateOptions()
{
    qDebug() << "VALIDATE2: " << table()->rowCount();
    for (int row = 0; row < table()->rowCount(); ++row) {
        table()->setRowHeight(row, rowHeight);
        const auto option = recordOf<CmpHeroCrossover>(table()->item(row, 0));
        if (!attributesOnMap(*scenario, option.player).canHuman)
            table()->removeRow(row);
    }
}

void HeroCrossover::checkAdd(QTableWidgetItem *)
{
    for (int row = 0; row < table()->rowCount(); ++row)
        table()->setRowHeight(row, checkedRowHeight);
    if (freeSources(*scenario, valuesInRows(table(), &CmpHeroCrossover::sourceScenario)).empty())
        addButton()->setEnabled(false);
}

void HeroCrossover::addItem()
{
    qDebug() << "ADD ITEM: " << table()->rowCount();
    HeroCrossoverDialog dialog(this, campaign, scenario, campaignMap, table(), nullptr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    QTableWidgetItem *item = addRow();
    qDebug() << "NEW COUNT: " << table()->rowCount();
    dialog.updateOption(item);
    checkAdd(item);
}

void HeroCrossover::openEditMenu(QTableWidgetItem *item)
{
    HeroCrossoverDialog dialog(this, campaign, scenario, campaignMap, table(), item);
    if (dialog.exec() == QDialog::Accepted)
        dialog.updateOption(item);
}

void HeroCrossover::deleteItem()
{
    OptionPage::deleteItem();
    checkAdd(nullptr);
}
