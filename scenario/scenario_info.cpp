#include "scenario/scenario_info.h"

#include "scenario/naming.h"
#include "scenario/scenario_crossover.h"
#include "scenario/scenario_general.h"
#include "scenario/scenario_prologue.h"
#include "scenario/scenario_start_options.h"
#include "shell/dialog_look.h"
#include "shell/readable_icon.h"
#include "shell/shown_text.h"
#include "ui_ScenarioInfo.h"

namespace {

constexpr int prologueTab = 1;
constexpr int epilogueTab = 2;

// Shares of the dialog's width.
constexpr int listStretch = 2;
constexpr int tabsStretch = 5;

} // namespace

ScenarioInfo::ScenarioInfo(QWidget *parent, CampaignData *document, unsigned int map,
                           unsigned int region)
    : QDialog(parent), campaign(*document), campaignMap(map), initialRegion(region),
      ui(std::make_unique<Ui_ScenarioInfo>())
{
    ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    initSlotsAndSignals();
    const QSignalBlocker listBlocker(ui->listWidget);
    const QSignalBlocker tabBlocker(ui->tabWidget);
    fillList();
    createTabs();
    loadCurrentScenario();
    for (QWidget *button : {ui->addBtn, ui->deleteBtn, ui->deleteAllBtn})
        button->setEnabled(!campaign.hasMap);
    for (QPushButton *arrow : {ui->upBtn, ui->downBtn})
        arrow->setIcon(readableIcon(arrow->icon()));
    ui->horizontalLayout->setStretch(0, listStretch);
    ui->horizontalLayout->setStretch(1, tabsStretch);
    updateItemSelection();
    lastTab = ui->tabWidget->currentIndex();
    fixDialog(this);
}

ScenarioInfo::~ScenarioInfo() = default;

void ScenarioInfo::initSlotsAndSignals()
{
    connect(ui->listWidget, &QListWidget::currentItemChanged, this,
            &ScenarioInfo::selectListboxItem);
    connect(ui->tabWidget, &QTabWidget::currentChanged, this, &ScenarioInfo::tabChanged);
    connect(ui->upBtn, &QPushButton::clicked, this, &ScenarioInfo::buttonUp);
    connect(ui->downBtn, &QPushButton::clicked, this, &ScenarioInfo::buttonDown);
    connect(ui->addBtn, &QPushButton::clicked, this, &ScenarioInfo::buttonAdd);
    connect(ui->deleteBtn, &QPushButton::clicked, this, &ScenarioInfo::buttonDelete);
    connect(ui->deleteAllBtn, &QPushButton::clicked, this, &ScenarioInfo::buttonDeleteAll);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void ScenarioInfo::createTabs()
{
    general = new ScenarioGeneral(this);
    prologue = new ScenarioPrologue(this);
    epilogue = new ScenarioPrologue(this);
    crossover = new ScenarioCrossover(this);
    startOptions = new ScenarioStartOptions(this);
    ui->tabWidget->addTab(general, tr("General"));
    ui->tabWidget->addTab(prologue, tr("Prologue"));
    ui->tabWidget->addTab(epilogue, tr("Epilogue"));
    ui->tabWidget->addTab(crossover, tr("Crossover Options"));
    ui->tabWidget->addTab(startOptions, tr("Starting Options"));
    ui->tabWidget->setCurrentWidget(general);
    // A screen reader tells a control's page, by which two of one name are told apart.
    for (int tab = 0; tab < ui->tabWidget->count(); ++tab)
        ui->tabWidget->widget(tab)->setAccessibleName(ui->tabWidget->tabText(tab));
    putButtonsLast();
}

// The Tab key goes in the order in which controls come into the window, which would leave the pages
// behind the buttons below them. So the buttons come in once more.
void ScenarioInfo::putButtonsLast()
{
    ui->verticalLayout->removeWidget(ui->buttonBox);
    ui->buttonBox->setParent(nullptr);
    ui->verticalLayout->addWidget(ui->buttonBox);
}

unsigned int ScenarioInfo::getCurrentRegion()
{
    const QListWidgetItem *item = ui->listWidget->currentItem();
    return item ? item->data(Qt::UserRole).toUInt() : 0;
}

ScenarioData *ScenarioInfo::selectedScenarioData()
{
    const bool selected = ui->listWidget->currentItem() != nullptr;
    return selected ? &campaign.scenarios[getCurrentRegion()] : nullptr;
}

bool ScenarioInfo::saveScenarioInfo()
{
    if (!selectedScenarioData())
        return false;
    bool stored = general->saveScenarioInfo();
    stored |= prologue->saveScenarioInfo(prologue->currentIndex());
    stored |= epilogue->saveScenarioInfo(epilogue->currentIndex());
    stored |= crossover->saveScenarioInfo();
    stored |= startOptions->saveScenarioInfo();
    return stored;
}

// Rows are taken out and put in with the list's signals blocked, so that what is left behind here
// always is a scenario.
void ScenarioInfo::selectListboxItem(QListWidgetItem *, QListWidgetItem *previous)
{
    general->ignorePrerequisites();
    if (previous) {
        changed |= saveScenarioInfo();
        updateProloguesEpilogues(prologue->getPrologueCount());
    }
    loadCurrentScenario();
    updateItemSelection();
}

// A campaign may come without any scenario: then there is nothing to edit until one is added.
void ScenarioInfo::loadCurrentScenario()
{
    ScenarioData *scenario = selectedScenarioData();
    ui->tabWidget->setEnabled(scenario);
    if (scenario)
        loadScenarioToInterface(scenario);
}

void ScenarioInfo::loadScenarioToInterface(ScenarioData *scenario)
{
    refreshScenarioData(scenario);
    general->initInfo(&campaign, scenario, campaignMap, getCurrentRegion());
    startOptions->initInfo(this, &campaign, scenario, campaignMap);
    prologue->initInfo(scenario, true, 0, true);
    epilogue->initInfo(scenario, false, 0, true);
    crossover->initInfo(scenario);
}

void ScenarioInfo::refreshScenarioData(ScenarioData *scenario)
{
    general->updateScenarioData(scenario, getCurrentRegion());
    startOptions->updateScenarioData(scenario);
    prologue->updateScenarioData(scenario);
    epilogue->updateScenarioData(scenario);
    crossover->updateScenarioData(scenario);
}

void ScenarioInfo::tabChanged(int index)
{
    prologue->pausePlayer();
    epilogue->pausePlayer();
    if (lastTab == prologueTab)
        changed |= prologue->saveScenarioInfo(prologue->currentIndex());
    else if (lastTab == epilogueTab)
        changed |= epilogue->saveScenarioInfo(epilogue->currentIndex());
    if (index == prologueTab || index == epilogueTab)
        updateProloguesEpilogues(prologue->getPrologueCount());
    lastTab = index;
}

void ScenarioInfo::updateProloguesEpilogues(unsigned int count)
{
    prologue->updatePrologue(count);
    epilogue->updatePrologue(count);
}

void ScenarioInfo::setChanged()
{
    changed = true;
}

void ScenarioInfo::updateCurrentItem()
{
    if (QListWidgetItem *item = ui->listWidget->currentItem())
        resetItemText(item);
}

void ScenarioInfo::resetItemText(QListWidgetItem *item)
{
    const unsigned int index = item->data(Qt::UserRole).toUInt();
    item->setText(inOneLine(getScenarioFilename(&campaign, campaignMap, index)));
}

// The tab with the map stays as it is in both: it is there that maps come and go.
void ScenarioInfo::enableUI()
{
    prologue->enableUI();
    epilogue->enableUI();
    crossover->enableUI();
    startOptions->enableUI();
}

void ScenarioInfo::disableUI()
{
    updateCurrentItem();
    prologue->disableUI();
    epilogue->disableUI();
    crossover->disableUI();
    startOptions->disableUI();
}

void ScenarioInfo::updateScenarioData(ScenarioData *scenario)
{
    refreshScenarioData(scenario);
}

void ScenarioInfo::updateScenarioUI()
{
    startOptions->updateScenarioUI();
}

unsigned int ScenarioInfo::getSelectedOption()
{
    return startOptions->getSelectedOption();
}

unsigned int ScenarioInfo::getOptionCount()
{
    return startOptions->getOptionCount();
}
