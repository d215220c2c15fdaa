#include "scenario/starting_bonus.h"

#include "document/campaign_data.h"
#include "document/starting_bonus_rules.h"
#include "scenario/bonus_dialog.h"
#include "scenario/bonus_text.h"
#include "scenario/bonus_type.h"
#include "scenario/naming.h"
#include "shell/choice_box.h"
#include "ui_StartingBonus.h"

#include <QDebug>
#include <QScopedValueRollback>

namespace {

CmpStartingBonus bonusOf(const QTableWidgetItem *item)
{
    return {item->data(bonusTypeRole).value<quint8>(), item->data(Qt::UserRole)};
}

} // namespace

StartingBonus::StartingBonus(QWidget *parent)
    : OptionPage(parent), ui(std::make_unique<Ui_StartingBonus>())
{
    ui->setupUi(this);
    setUpTable(ui->tableWidget, ui->addButton, ui->editButton, ui->removeButton);
    resetTable(1);
    keepRightClicksOff({ui->playerCombobox}, this);
    ready = true;
    initSlotsAndSignals();
}

StartingBonus::~StartingBonus() = default;

// Those of the table and its buttons are connected by the base.
void StartingBonus::initSlotsAndSignals()
{
    connect(ui->playerCombobox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &StartingBonus::playerChanged);
}

void StartingBonus::initUI()
{
    addButton()->setEnabled(true);
    editButton()->setEnabled(false);
    removeButton()->setEnabled(false);
    if (scenario && scenario->mapHeader) // without a map, the players stay as they are
        fillPlayers();
}

void StartingBonus::initInfo(ScenarioData *newScenario, unsigned int newCampaignMap)
{
    const QScopedValueRollback<bool> unready(ready, false);
    scenario = newScenario;
    campaignMap = newCampaignMap;
    resetTable(1);
    fillPlayers();
    const CmpScenarioStartOptions *options = scenario->startOptions.get();
    if (options && options->optionType == BonusOption)
        loadBonuses(options->optionData.value<StartingBonusSet>());
    updateUI();
}

void StartingBonus::loadBonuses(const StartingBonusSet &set)
{
    selectChoice(ui->playerCombobox, set.player);
    for (CmpStartingBonus bonus : set.bonuses) {
        QTableWidgetItem *item = appendRow();
        table()->setRowHeight(item->row(), rowHeight);
        item->setData(Qt::UserRole, bonus.bonusData);
        item->setData(bonusTypeRole, QVariant::fromValue(bonus.bonusType));
        item->setText(getBonusStringFromRawData(scenario, set.player, bonus));
    }
}

void StartingBonus::fillPlayers()
{
    ui->playerCombobox->clear();
    if (!scenario || !scenario->mapHeader)
        return;
    const auto &players = scenario->mapHeader->players;
    for (unsigned int player = 0; player < players.size(); ++player) {
        if (players[player].canHuman)
            ui->playerCombobox->addItem(colourName(player), int(player));
    }
}

unsigned int StartingBonus::currentPlayer() const
{
    return unsigned(choiceOf(ui->playerCombobox));
}

void StartingBonus::clearUI()
{
    OptionPage::clearUI();
    ui->playerCombobox->clear();
}

void StartingBonus::saveScenarioInfo(StartingBonusSet *set)
{
    const unsigned int player = currentPlayer();
    qDebug() << "SAVE PLAYER COLOR: " << player;
    set->player = quint8(player);
    for (int row = 0; row < table()->rowCount(); ++row) {
        if (const QTableWidgetItem *item = table()->item(row, 0)) {
            table()->setRowHeight(row, rowHeight);
            set->bonuses.push_back(bonusOf(item));
        }
    }
}

// The rows are judged for the player they were made for, even where the new map takes that one off
// the list and the box shows another: only a choice of the author's hands them to somebody else.
void StartingBonus::validateBonuses()
{
    const QScopedValueRollback<bool> unready(ready, false);
    const unsigned int saved = currentPlayer();
    fillPlayers();
    const int index = ui->playerCombobox->findData(saved);
    if (index >= 0)
        ui->playerCombobox->setCurrentIndex(index);
    validateForPlayer(saved);
}

void StartingBonus::validateForPlayer(unsigned int player)
{
    const StartingBonusRules rules(*scenario, player);
    int row = 0;
    while (row < table()->rowCount()) {
        QTableWidgetItem *item = table()->item(row, 0);
        CmpStartingBonus bonus = item ? bonusOf(item) : CmpStartingBonus();
        if (item && !rules.allows(bonus)) {
            table()->removeRow(row);
            continue;
        }
        // Another town has another name for the same building.
        if (item && bonus.bonusType == quint8(BonusType::Building))
            item->setText(getBonusStringFromRawData(scenario, player, bonus));
        ++row;
    }
}

void StartingBonus::playerChanged(int /*index*/)
{
    if (!ready || ui->playerCombobox->currentIndex() < 0)
        return;
    validateForPlayer(currentPlayer());
    updateUI();
    if (table()->currentRow() < 0) {
        removeButton()->setEnabled(false);
        editButton()->setEnabled(false);
    }
}

// The row keeps the table's own height until the next save.
void StartingBonus::addItem()
{
    const QScopedValueRollback<bool> unready(ready, false);
    BonusDialog dialog(this, scenario, campaignMap, currentPlayer(), nullptr);
    if (dialog.exec() == QDialog::Accepted)
        dialog.updateBonus(appendRow());
    if (table()->rowCount() >= mostStartOptions)
        addButton()->setEnabled(false);
}

void StartingBonus::openEditMenu(QTableWidgetItem *item)
{
    BonusDialog dialog(this, scenario, campaignMap, currentPlayer(), item);
    if (dialog.exec() == QDialog::Accepted)
        dialog.updateBonus(item);
}
