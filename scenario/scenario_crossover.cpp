#include "scenario/scenario_crossover.h"

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "ui_ScenarioCrossover.h"

#include <algorithm>

namespace {

// What a new scenario keeps, by the bits of the details.
constexpr std::array<bool, 5> keptByDefault{true, true, true, true, false};

// The game itself deals with these when a hero comes in.
constexpr std::array<unsigned int, 3> boundArtifacts{0, 1, 3};

bool bitOf(const QBitArray &bits, int index)
{
    return index >= 0 && index < bits.size() && bits.testBit(index);
}

// Answers whether the bit was another one before. An array that is too short reads as clear.
bool storeBit(QBitArray &bits, int index, bool value)
{
    if (index < 0 || bitOf(bits, index) == value)
        return false;
    if (index >= bits.size())
        bits.resize(index + 1);
    bits.setBit(index, value);
    return true;
}

int numberOf(const QListWidgetItem *item)
{
    return item->data(Qt::UserRole).toInt();
}

void setChecked(QListWidgetItem *item, bool checked)
{
    item->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
}

template<typename Number>
QListWidgetItem *checkableItem(const QString &text, Number number)
{
    auto *item = new QListWidgetItem(text);
    item->setData(Qt::UserRole, number);
    item->setFlags((item->flags() | Qt::ItemIsUserCheckable) & ~Qt::ItemIsDragEnabled);
    item->setTextAlignment(Qt::AlignLeft);
    setChecked(item, false);
    return item;
}

void checkAll(QListWidget *list, bool checked)
{
    for (int row = 0; row < list->count(); ++row)
        setChecked(list->item(row), checked);
}

void showBits(QListWidget *list, const QBitArray &bits)
{
    for (int row = 0; row < list->count(); ++row)
        setChecked(list->item(row), bitOf(bits, numberOf(list->item(row))));
}

bool storeBits(const QListWidget *list, QBitArray &bits)
{
    bool changed = false;
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        changed |= storeBit(bits, numberOf(item), item->checkState() == Qt::Checked);
    }
    return changed;
}

} // namespace

ScenarioCrossover::ScenarioCrossover(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_ScenarioCrossover>())
{
    ui->setupUi(this);
    initSlotsAndSignals();
    fillArtifacts();
    fillCreatures();
}

ScenarioCrossover::~ScenarioCrossover() = default;

void ScenarioCrossover::initSlotsAndSignals()
{
    connect(ui->allButton, &QPushButton::clicked, this, &ScenarioCrossover::clickAll);
    connect(ui->noneButton, &QPushButton::clicked, this, &ScenarioCrossover::clickNone);
    connect(ui->allButtonArts, &QPushButton::clicked, this, &ScenarioCrossover::clickAllArts);
    connect(ui->noneButtonArts, &QPushButton::clicked, this, &ScenarioCrossover::clickNoneArts);
}

// Alphabetical, unlike the creatures, whose order is the game's. Only items that come after the
// sorting was turned on find their place.
void ScenarioCrossover::fillArtifacts()
{
    ui->crosssoverArtsListWidget->setSortingEnabled(true);
    for (const auto &[number, name] : EditorData::artifacts) {
        if (artIsGoodForCrossoverList(unsigned(number)))
            ui->crosssoverArtsListWidget->addItem(checkableItem(name, number));
    }
}

void ScenarioCrossover::fillCreatures()
{
    for (const unsigned int number : EditorData::creature_ordering) {
        ui->creaturesListWidget->addItem(
            checkableItem(nameOf(EditorData::creatures, int(number)), number));
    }
}

std::array<QCheckBox *, 5> ScenarioCrossover::details() const
{
    return {ui->experienceComboBox, ui->primarySkillsCombobox, ui->secSkillsCombobox,
            ui->spellsCombobox, ui->artifactsCombobox};
}

void ScenarioCrossover::initInfo(ScenarioData *newScenario)
{
    scenario = newScenario;
    const bool hasMap = scenario->mapHeader != nullptr;
    const CmpScenarioCrossover &record = scenario->crossover;
    const std::array<QCheckBox *, 5> boxes = details();
    for (std::size_t bit = 0; bit < boxes.size(); ++bit)
        boxes[bit]->setChecked(hasMap ? bitOf(record.heroKeeps, int(bit)) : keptByDefault[bit]);
    updateUI(hasMap);
    if (!hasMap)
        return;
    showBits(ui->creaturesListWidget, record.creatures);
    showBits(ui->crosssoverArtsListWidget, record.artifacts);
}

// Without a map too: what the tab shows then is what the scenario holds when it gets one.
bool ScenarioCrossover::saveScenarioInfo()
{
    CmpScenarioCrossover &record = scenario->crossover;
    bool changed = false;
    const std::array<QCheckBox *, 5> boxes = details();
    for (std::size_t bit = 0; bit < boxes.size(); ++bit)
        changed |= storeBit(record.heroKeeps, int(bit), boxes[bit]->isChecked());
    changed |= storeBits(ui->crosssoverArtsListWidget, record.artifacts);
    changed |= storeBits(ui->creaturesListWidget, record.creatures);
    return changed;
}

void ScenarioCrossover::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

void ScenarioCrossover::updateUI(bool enable)
{
    for (QCheckBox *box : details())
        box->setEnabled(enable);
    const std::array<QWidget *, 8> others{ui->allButton,           ui->noneButton,
                                          ui->allButtonArts,       ui->noneButtonArts,
                                          ui->creatureTypesLabel,  ui->crossoverArtifacts,
                                          ui->creaturesListWidget, ui->crosssoverArtsListWidget};
    for (QWidget *control : others)
        control->setEnabled(enable);
    if (enable)
        return;
    checkAll(ui->creaturesListWidget, false);
    checkAll(ui->crosssoverArtsListWidget, false);
}

void ScenarioCrossover::enableUI()
{
    updateUI(true);
}

void ScenarioCrossover::disableUI()
{
    updateUI(false);
}

bool ScenarioCrossover::artIsGoodForCrossoverList(unsigned int artifact)
{
    return std::find(boundArtifacts.begin(), boundArtifacts.end(), artifact) ==
           boundArtifacts.end();
}

bool ScenarioCrossover::monsterIsGoodForCrossoverList(unsigned int creature)
{
    return ::monsterIsGoodForCrossoverList(creature);
}

void ScenarioCrossover::clickAll()
{
    checkAll(ui->creaturesListWidget, true);
}

void ScenarioCrossover::clickNone()
{
    checkAll(ui->creaturesListWidget, false);
}

void ScenarioCrossover::clickAllArts()
{
    checkAll(ui->crosssoverArtsListWidget, true);
}

void ScenarioCrossover::clickNoneArts()
{
    checkAll(ui->crosssoverArtsListWidget, false);
}
