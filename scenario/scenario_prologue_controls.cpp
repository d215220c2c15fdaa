// The stories' controls: which of them can be used, the boxes that say whether there is a story,
// and the buttons that choose among several.
#include "gamedata/editor_data.h"
#include "scenario/scenario_prologue.h"
#include "ui_ScenarioPrologue.h"

#include <QDebug>
#include <QSignalBlocker>

namespace {

// The buttons exclude each other, and the checked one of such a group refuses to be unchecked.
void uncheck(QPushButton *button)
{
    button->setAutoExclusive(false);
    button->setChecked(false);
    button->setAutoExclusive(true);
}

} // namespace

void ScenarioPrologue::uncheckNumbers()
{
    for (QPushButton *button : {ui->btn1, ui->btn2, ui->btn3})
        uncheck(button);
}

// A number alone tells a screen reader's user little.
void ScenarioPrologue::nameNumbers()
{
    const QString name = prologuePage ? tr("Prologue %1") : tr("Epilogue %1");
    for (QPushButton *button : {ui->btn1, ui->btn2, ui->btn3})
        button->setAccessibleName(name.arg(button->text()));
}

void ScenarioPrologue::initIxButtons(unsigned int count)
{
    if (count <= 1)
        return;
    const bool third = count >= 3;
    numberButtons = {ui->btn1, ui->btn2};
    if (third)
        numberButtons.push_back(ui->btn3);
    ui->btn3->setVisible(third);
    ui->horizontalLayoutWidget->show();
}

void ScenarioPrologue::resetIxButtons()
{
    numberButtons.clear();
    ui->horizontalLayoutWidget->hide();
    ui->settingsCheckbox->hide();
}

// A button whose story is on show already is left blocked: pressed again it has nothing to say. The
// next other button releases it, so no blocker that restores the old state would do here.
void ScenarioPrologue::numberBtnPressed()
{
    auto *pressed = qobject_cast<QPushButton *>(sender());
    if (!pressed || !scenario)
        return;
    pressed->blockSignals(true);
    for (QPushButton *button : numberButtons) {
        if (button == pressed)
            continue;
        button->blockSignals(true);
        uncheck(button);
        button->blockSignals(false);
    }
    pressed->setChecked(true);
    const unsigned int ix = pressed->property("ix").toUInt();
    if (ix == index)
        return;
    if (saveScenarioInfo(index))
        setChanged();
    initInfo(scenario, prologuePage, ix, false); // releases the button
}

// Behind a number, the box of that story goes along with the one for all of them: it decides
// whether what stands here is stored.
void ScenarioPrologue::statusBoxClicked(bool checked)
{
    qDebug() << "CLICK";
    if (!scenario)
        return;
    ui->settingsCheckbox->setChecked(checked && index != 0);
    if (checked) {
        enableUIpartial();
        ui->horizontalLayoutWidget->setVisible(getPrologueCount() > 1);
        return;
    }
    disableUIpartial();
    ui->horizontalLayoutWidget->hide();
    for (unsigned int ix = 0; ix < stories().size(); ++ix) {
        if (ix != index)
            dropStory(ix);
    }
}

void ScenarioPrologue::settingsBoxClicked(bool checked)
{
    if (checked)
        enableUIpartial();
    else
        disableUIpartial();
}

void ScenarioPrologue::enableUI()
{
    ui->hasPrologueCheckbox->setEnabled(true);
}

// Back to the first story, as a scenario without a map is loaded.
void ScenarioPrologue::disableUI()
{
    index = 0;
    ui->hasPrologueCheckbox->setEnabled(false);
    ui->hasPrologueCheckbox->setChecked(false);
    ui->settingsCheckbox->setChecked(false);
    resetIxButtons();
    disableUIpartial();
}

void ScenarioPrologue::enableAllUI()
{
    enableUI();
    enableUIpartial();
}

void ScenarioPrologue::enableUIpartial()
{
    setMovieImage(nameOf(EditorData::movieImages, 0));
    setStoryEnabled(true);
    ui->musicListWidget->setCurrentRow(0);
    showMusicName();
    ui->textEdit->clear();
    forgetStory();
}

void ScenarioPrologue::disableUIpartial()
{
    if (musicPlaying)
        pausePlayer();
    const std::vector<QSignalBlocker> blockers = blockControls();
    ui->prologueImage->clear();
    setStoryEnabled(false);
    ui->musicListWidget->setCurrentRow(0);
    ui->musicListWidget->clearSelection();
    showMusicName();
    selectVideo(0);
    ui->textEdit->clear();
    forgetStory();
}

void ScenarioPrologue::setStoryEnabled(bool enabled)
{
    const std::initializer_list<QWidget *> controls{
        ui->videoCombobox,      ui->videoLabel,   ui->musicListWidget, ui->musicLabel,
        ui->selectedMusicLabel, ui->messageLabel, ui->textEdit,        ui->playMusicBtn};
    for (QWidget *control : controls)
        control->setEnabled(enabled);
}

// From now on all that the controls show is meant to be stored.
void ScenarioPrologue::forgetStory()
{
    videoChosen = true;
    musicChosen = true;
    loadedText.reset();
}
