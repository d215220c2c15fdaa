#include "scenario/scenario_general.h"

#include "document/campaign_data.h"
#include "document/text_catalogue.h"
#include "gamedata/editor_data.h"
#include "scenario/scenario_host.h"
#include "shell/choice_box.h"
#include "shell/shown_text.h"
#include "ui_scenarioGeneral.h"

#include <array>

namespace {

// The game's texts for the five difficulties, easiest first.
constexpr std::array<int, 5> difficultyTexts{25, 26, 27, 28, 29};

} // namespace

ScenarioGeneral::ScenarioGeneral(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_scenarioGeneral>())
{
    ui->setupUi(this);
    for (unsigned int i = 0; i < difficultyTexts.size(); ++i)
        addDifficulty(textOf(EditorData::editorText, difficultyTexts[i]), i);
    for (unsigned int i = 0; i < EditorData::colors.size(); ++i)
        addRegionColor(EditorData::colors[i], i);
    connect(ui->refreshButton, &QPushButton::clicked, this, &ScenarioGeneral::refreshMap);
    connect(ui->exportButton, &QPushButton::clicked, this, &ScenarioGeneral::exportMap);
    connect(ui->removeButton, &QPushButton::clicked, this, &ScenarioGeneral::removeMap);
    connect(ui->prereqListWidget, &QListWidget::itemChanged, this, &ScenarioGeneral::checkPrereq);
    connect(ui->regionTextEdit, &QTextEdit::textChanged, this, &ScenarioGeneral::regionTextChanged);
}

ScenarioGeneral::~ScenarioGeneral() = default;

void ScenarioGeneral::addDifficulty(const QString &name, unsigned int difficulty)
{
    ui->difficultyCombobox->addItem(name, difficulty);
}

void ScenarioGeneral::addRegionColor(const QString &name, unsigned int color)
{
    ui->regionColorCombobox->addItem(name, color);
}

void ScenarioGeneral::initInfo(CampaignData *newCampaign, ScenarioData *newScenario,
                               unsigned int newCampaignMap, unsigned int newRegion)
{
    guard = false;
    campaign = newCampaign;
    scenario = newScenario;
    campaignMap = newCampaignMap;
    region = newRegion;
    loadRegion();
    selectChoice(ui->regionColorCombobox, scenario->regionColor);
    selectChoice(ui->difficultyCombobox, scenario->defaultDifficulty);
    addPrerequisiteUI();
    updateUI();
    guard = true;
}

void ScenarioGeneral::loadRegion()
{
    const std::array<QWidget *, 8> controls{ui->regionNameLabel,       ui->regionNameLabelMain,
                                            ui->regionColorLabel,      ui->regionColorCombobox,
                                            ui->prereqLabel,           ui->prereqListWidget,
                                            ui->regionRightClickLabel, ui->regionTextEdit};
    for (QWidget *control : controls)
        control->setVisible(campaign->hasMap);
    if (!campaign->hasMap)
        return;
    const QVector<CampaignRegion> &regions = EditorData::campaignMap(campaignMap).regions;
    ui->regionNameLabelMain->setText(region < unsigned(regions.size()) ? regions[int(region)].name
                                                                       : QString());
    ui->regionTextEdit->setPlainText(
        headOf(scenario->regionText, longestText(TextKind::RegionText)));
    loadedText = ui->regionTextEdit->toPlainText();
}

void ScenarioGeneral::updateUI()
{
    const MapHeader *header = scenario->mapHeader.get();
    const bool named = header && !scenario->mapFileName.isEmpty();
    ui->exportButton->setEnabled(header);
    ui->removeButton->setEnabled(header);
    ui->scenarioNameLabelMain->setText(header ? header->mapName : tr("(None)"));
    ui->mapFileIdentifier->setText(named ? scenario->mapFileName : tr("(None)"));
}

// The control turns line ends, hard spaces and the like into its own, so its text is compared with
// what it showed at first: a text that nobody edited stays exact.
bool ScenarioGeneral::saveScenarioInfo()
{
    bool changed = false;
    if (campaign->hasMap) {
        const QString text = ui->regionTextEdit->toPlainText();
        if (text != loadedText) {
            scenario->regionText = text;
            loadedText = text;
            changed = true;
        }
        changed |= storeChoice(ui->regionColorCombobox, scenario->regionColor);
    }
    changed |= storeChoice(ui->difficultyCombobox, scenario->defaultDifficulty);
    return changed;
}

void ScenarioGeneral::updateScenarioData(ScenarioData *newScenario, unsigned int newRegion)
{
    scenario = newScenario;
    region = newRegion;
}

void ScenarioGeneral::ignorePrerequisites()
{
    guard = false;
}

void ScenarioGeneral::regionTextChanged()
{
    keepWithin(ui->regionTextEdit, longestText(TextKind::RegionText));
}

void ScenarioGeneral::setChanged()
{
    if (ScenarioHost *host = hostOf(this))
        host->setChanged();
}
