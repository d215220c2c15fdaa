#include "scenario/scenario_prologue.h"

#include "gamedata/editor_data.h"
#include "scenario/scenario_host.h"
#include "shell/choice_box.h"
#include "shell/chosen_button.h"
#include "shell/shown_text.h"
#include "ui_ScenarioPrologue.h"

#include <algorithm>

namespace {

constexpr unsigned int storyCount = std::tuple_size<ScenarioData::Prologues>::value;

} // namespace

ScenarioPrologue::ScenarioPrologue(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_ScenarioPrologue>())
{
    ui->setupUi(this);
    fillChoices();
    setMovieImage(nameOf(EditorData::movieImages, 0));
    setMusicBtn(false);
    QSizePolicy keepsItsPlace = ui->horizontalLayoutWidget->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    ui->horizontalLayoutWidget->setSizePolicy(keepsItsPlace);
    int ix = 0;
    for (QPushButton *button : {ui->btn1, ui->btn2, ui->btn3})
        button->setProperty("ix", ix++);
    keepRightClicksOff({ui->videoCombobox}, this);
    initSlotsAndSignals();
}

void ScenarioPrologue::fillChoices()
{
    for (const auto &[key, name] : EditorData::musicNames) {
        auto *item = new QListWidgetItem(name, ui->musicListWidget);
        item->setData(Qt::UserRole, key);
    }
    for (const auto &[key, name] : EditorData::videoNames)
        ui->videoCombobox->addItem(name, key);
}

void ScenarioPrologue::initSlotsAndSignals()
{
    connect(ui->videoCombobox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &ScenarioPrologue::videoIndexChanged);
    connect(ui->musicListWidget, &QListWidget::itemSelectionChanged, this,
            &ScenarioPrologue::musicSelectionChanged);
    connect(ui->hasPrologueCheckbox, &QCheckBox::clicked, this,
            &ScenarioPrologue::statusBoxClicked);
    connect(ui->settingsCheckbox, &QCheckBox::clicked, this, &ScenarioPrologue::settingsBoxClicked);
    for (const QPushButton *button : {ui->btn1, ui->btn2, ui->btn3})
        connect(button, &QPushButton::clicked, this, &ScenarioPrologue::numberBtnPressed);
    connect(ui->playMusicBtn, &QPushButton::pressed, this, &ScenarioPrologue::playPauseMusic);
}

std::vector<QSignalBlocker> ScenarioPrologue::blockControls() const
{
    const std::initializer_list<QWidget *> controls{
        ui->hasPrologueCheckbox, ui->settingsCheckbox, ui->btn1,         ui->btn2,    ui->btn3,
        ui->videoCombobox,       ui->musicListWidget,  ui->playMusicBtn, ui->textEdit};
    std::vector<QSignalBlocker> blockers;
    for (QWidget *control : controls)
        blockers.emplace_back(control);
    return blockers;
}

// The music of the story that goes must not play on behind a button that may be disabled then.
void ScenarioPrologue::initInfo(ScenarioData *newScenario, bool isPrologue, unsigned int ix,
                                bool resetButtons)
{
    if (musicPlaying)
        pausePlayer();
    for (QPushButton *button : {ui->btn1, ui->btn2, ui->btn3})
        button->blockSignals(false); // the story may change under a button that was left blocked
    const std::vector<QSignalBlocker> blockers = blockControls();
    scenario = newScenario;
    prologuePage = isPrologue;
    index = std::min(ix, storyCount - 1);
    ui->hasPrologueCheckbox->setText(prologuePage ? tr("Has prologue") : tr("Has epilogue"));
    nameNumbers();
    uncheckNumbers();
    if (resetButtons)
        resetIxButtons();
    ui->settingsCheckbox->setChecked(false);
    if (!scenario->mapHeader) {
        disableUI();
        return;
    }
    if (resetButtons)
        initIxButtons(getPrologueCount());
    loadStory();
}

void ScenarioPrologue::loadStory()
{
    const CmpPrologue *story = stories()[index].get();
    ui->settingsCheckbox->setVisible(index != 0);
    ui->settingsCheckbox->setChecked(index != 0 && story);
    const std::array<QPushButton *, storyCount> buttons{ui->btn1, ui->btn2, ui->btn3};
    chooseButton(buttons[index]);
    enableUI();
    ui->hasPrologueCheckbox->setChecked(stories()[0] != nullptr);
    if (!story) {
        disableUIpartial();
        return;
    }
    enableAllUI();
    setMovieImage(nameOf(EditorData::movieImages, story->videoId));
    selectVideo(story->videoId);
    selectMusic(story->musicIndex);
    setEditedText(ui->textEdit, story->text);
    videoChosen = false;
    musicChosen = false;
    loadedText = ui->textEdit->toPlainText();
}

bool ScenarioPrologue::saveScenarioInfo(unsigned int ix)
{
    if (!scenario || ix >= storyCount)
        return false;
    const QCheckBox *box = ix == 0 ? ui->hasPrologueCheckbox : ui->settingsCheckbox;
    std::shared_ptr<CmpPrologue> &story = stories()[ix];
    if (box->isChecked())
        return storeStory(story, ix == index);
    if (!story)
        return false;
    dropStory(ix);
    return !prologuePage;
}

// The text control turns line ends, hard spaces and the like into its own, so its text is compared
// with what it showed at first.
bool ScenarioPrologue::storeStory(std::shared_ptr<CmpPrologue> &story, bool onShow)
{
    CmpPrologue edited = story ? *story : CmpPrologue();
    const bool loaded = story && onShow;
    bool changed = !story;
    if (!loaded || videoChosen)
        changed |= storeChoice(ui->videoCombobox, edited.videoId);
    if (!loaded || musicChosen)
        changed |= storeMusic(edited.musicIndex);
    const QString text = ui->textEdit->toPlainText();
    if (!loaded || loadedText != text) {
        changed |= edited.text != text;
        edited.text = text;
    }
    if (onShow)
        loadedText = text;
    story = std::make_shared<CmpPrologue>(edited);
    return changed;
}

// The campaign differs then, even where saveScenarioInfo answers that nothing changed.
void ScenarioPrologue::dropStory(unsigned int ix)
{
    if (!stories()[ix])
        return;
    stories()[ix].reset();
    setChanged();
}

ScenarioData::Prologues &ScenarioPrologue::stories()
{
    return prologuePage ? scenario->prologues : scenario->epilogues;
}

void ScenarioPrologue::updatePrologue(unsigned int count)
{
    if (!scenario || !scenario->mapHeader)
        return;
    for (unsigned int ix = std::max(count, 1U); ix < storyCount; ++ix)
        dropStory(ix);
    initInfo(scenario, prologuePage, 0, true);
}

void ScenarioPrologue::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
}

bool ScenarioPrologue::canHaveMultiplePrologues()
{
    ScenarioHost *host = hostOf(this);
    return host && host->getSelectedOption() != 0 && host->getOptionCount() > 1;
}

unsigned int ScenarioPrologue::getPrologueCount()
{
    ScenarioHost *host = hostOf(this);
    return host && host->getSelectedOption() != 0 ? host->getOptionCount() : 1;
}

void ScenarioPrologue::setChanged()
{
    if (ScenarioHost *host = hostOf(this))
        host->setChanged();
}
