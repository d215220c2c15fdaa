// The list of scenarios and its buttons: filling, adding, deleting, moving. All of it runs with
// the list's signals blocked, so that no tab is saved to half-made state.
#include "document/prerequisites.h"
#include "scenario/ask_delete_all.h"
#include "scenario/naming.h"
#include "scenario/scenario_info.h"
#include "shell/shown_text.h"
#include "ui_ScenarioInfo.h"

#include <algorithm>

namespace {

using Row = std::vector<ScenarioData>::difference_type;

// A longer list isn't measured item by item; its texts are short then, a number and a file name.
constexpr int longList = 1000;

} // namespace

void ScenarioInfo::fillList()
{
    QListWidget &list = *ui->listWidget;
    const auto count = unsigned(campaign.scenarios.size());
    list.setUniformItemSizes(count > longList);
    for (unsigned int i = 0; i < count; ++i) {
        auto *item = new QListWidgetItem(inOneLine(getScenarioFilename(&campaign, campaignMap, i)));
        item->setData(Qt::UserRole, int(i));
        list.addItem(item);
    }
    list.setCurrentRow(initialRegion < count ? int(initialRegion) : 0);
}

void ScenarioInfo::updateItemSelection()
{
    const int row = ui->listWidget->currentRow();
    const int count = ui->listWidget->count();
    ui->upBtn->setEnabled(row > 0);
    ui->downBtn->setEnabled(row < count - 1);
    if (campaign.hasMap)
        return;
    ui->deleteBtn->setEnabled(count > 1);
    ui->deleteAllBtn->setEnabled(count > 1);
    ui->addBtn->setEnabled(count < mostScenarios);
}

// The view is told once: asked to follow each text it takes longer than all the rest.
void ScenarioInfo::resetItemTexts(int firstRow)
{
    const QSignalBlocker modelBlocker(ui->listWidget->model());
    for (int row = firstRow; row < ui->listWidget->count(); ++row)
        resetItemText(ui->listWidget->item(row));
    ui->listWidget->doItemsLayout();
}

void ScenarioInfo::buttonAdd()
{
    const QSignalBlocker blocker(ui->listWidget);
    changed = true;
    campaign.scenarios.emplace_back();
    resizePrerequisites(campaign);
    ++campaign.scenarioCount;
    auto *item = new QListWidgetItem;
    item->setData(Qt::UserRole, ui->listWidget->count());
    resetItemText(item);
    ui->listWidget->addItem(item);
    if (ScenarioData *scenario = selectedScenarioData()) {
        refreshScenarioData(scenario);
    } else {
        ui->listWidget->setCurrentItem(item);
        loadCurrentScenario();
    }
    updateItemSelection();
}

void ScenarioInfo::buttonDelete()
{
    const int row = ui->listWidget->currentRow();
    if (ui->listWidget->count() < 2 || row < 0)
        return;
    const QSignalBlocker blocker(ui->listWidget);
    changed = true;
    removeRows(row, 1);
    campaign.removePrecondition(unsigned(row));
    ui->listWidget->setCurrentRow(std::max(row - 1, 0));
    resetItemTexts(row);
    loadCurrentScenario();
    updateItemSelection();
}

// The selected scenario stays, as the only one. What the arrays say of others is left in them.
void ScenarioInfo::buttonDeleteAll()
{
    AskDeleteAll question(this);
    const bool confirmed = question.exec() == QDialog::Accepted;
    const int row = ui->listWidget->currentRow();
    if (!confirmed || ui->listWidget->count() < 2 || row < 0)
        return;
    const QSignalBlocker blocker(ui->listWidget);
    changed = true;
    saveScenarioInfo(); // of the one that stays
    removeRows(row + 1, ui->listWidget->count() - row - 1);
    removeRows(0, row);
    ui->listWidget->setCurrentRow(0);
    resetItemTexts(0);
    loadCurrentScenario();
    updateItemSelection();
}

// An item stands for a row, not for a scenario, so it is the last ones that go: those behind a
// gap would each have to be looked for in the whole list.
void ScenarioInfo::removeRows(int first, int count)
{
    ui->listWidget->model()->removeRows(ui->listWidget->count() - count, count);
    const auto from = campaign.scenarios.begin() + Row(first);
    campaign.scenarios.erase(from, from + Row(count));
}

void ScenarioInfo::buttonUp()
{
    moveCurrentTo(ui->listWidget->currentRow() - 1);
}

void ScenarioInfo::buttonDown()
{
    moveCurrentTo(ui->listWidget->currentRow() + 1);
}

// Exchanges the selected scenario with its neighbour. What the tabs hold is stored first and shown
// again for the new place, whose region may have another name and other prerequisites.
void ScenarioInfo::moveCurrentTo(int row)
{
    QListWidget &list = *ui->listWidget;
    const int from = list.currentRow();
    if (from < 0 || row < 0 || row >= list.count())
        return;
    const QSignalBlocker blocker(&list);
    changed = true;
    saveScenarioInfo();
    if (campaign.hasMap) {
        // An array may be shorter than the list; a bit that moves past its end would be lost.
        for (ScenarioData &scenario : campaign.scenarios) {
            if (scenario.prerequisites.size() < int(campaign.scenarios.size()))
                scenario.prerequisites.resize(int(campaign.scenarios.size()));
        }
        campaign.switchPreconditions(unsigned(from), unsigned(row));
    }
    std::swap(campaign.scenarios[std::size_t(from)], campaign.scenarios[std::size_t(row)]);
    list.setCurrentRow(row);
    for (const int changedRow : {from, row})
        resetItemText(list.item(changedRow));
    loadCurrentScenario();
    updateItemSelection();
}
