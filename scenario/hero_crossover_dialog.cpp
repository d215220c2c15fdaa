#include "scenario/hero_crossover_dialog.h"

#include "document/map_player.h"
#include "gamedata/editor_data.h"
#include "scenario/naming.h"
#include "scenario/option_dialog.h"
#include "scenario/option_page.h"
#include "shell/choice_box.h"
#include "shell/shown_text.h"
#include "ui_HeroCrossoverDialog.h"

#include <algorithm>
#include <limits>

void showHeroCrossover(QTableWidget *table, int row, CampaignData *campaign,
                       unsigned int campaignMap, const CmpHeroCrossover &option)
{
    setRowRecord(table, row, option,
                 {inOneLine(getScenarioName(campaign, campaignMap, option.sourceScenario)),
                  getFullPlayerName(option.player)});
}

std::vector<int> freeSources(const ScenarioData &scenario, const std::set<int> &used)
{
    constexpr int sources = std::numeric_limits<quint8>::max() + 1;
    std::vector<int> free;
    for (int source = 0; source < std::min(scenario.prerequisites.size(), sources); ++source) {
        if (scenario.prerequisites.testBit(source) && used.count(source) == 0)
            free.push_back(source);
    }
    return free;
}

HeroCrossoverDialog::HeroCrossoverDialog(QWidget *parent, CampaignData *newCampaign,
                                         ScenarioData *newScenario, unsigned int newCampaignMap,
                                         QTableWidget *table, QTableWidgetItem *item)
    : QDialog(parent), campaign(newCampaign), scenario(newScenario), campaignMap(newCampaignMap),
      ui(std::make_unique<Ui_HeroCrossoverDialog>())
{
    ui->setupUi(this);
    addSources(table, item);
    addPlayers();
    if (item) {
        const auto option = recordOf<CmpHeroCrossover>(item);
        selectChoice(ui->scenarioCombobox, option.sourceScenario);
        selectChoice(ui->playerCombobox, option.player);
    }
    setUpOptionDialog(this, {ui->scenarioCombobox, ui->playerCombobox}, ui->buttonBox);
}

HeroCrossoverDialog::~HeroCrossoverDialog() = default;

void HeroCrossoverDialog::addSources(const QTableWidget *table, const QTableWidgetItem *item)
{
    const std::set<int> used = valuesInRows(table, &CmpHeroCrossover::sourceScenario, item);
    for (const int source : freeSources(*scenario, used)) {
        const QString name = inOneLine(getScenarioName(campaign, campaignMap, unsigned(source)));
        ui->scenarioCombobox->addItem(name, source);
    }
}

// Several rows may name the same player.
void HeroCrossoverDialog::addPlayers()
{
    for (unsigned int player = 0; player < playerCount; ++player) {
        if (attributesOnMap(*scenario, player).canHuman)
            ui->playerCombobox->addItem(colourName(player), int(player));
    }
}

void HeroCrossoverDialog::updateOption(QTableWidgetItem *item)
{
    const CmpHeroCrossover option{quint8(choiceOf(ui->playerCombobox)),
                                  quint8(choiceOf(ui->scenarioCombobox))};
    showHeroCrossover(item->tableWidget(), item->row(), campaign, campaignMap, option);
}
