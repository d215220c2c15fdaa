// The tabs for a scenario's prologues and for its epilogues: the same page twice, on which one
// story stands at a time, a video, a piece of music and a text.
//
// A scenario has three prologues and three epilogues, one for each of its start options. The
// scenario's records are shared and never written through: saveScenarioInfo puts a new one in
// their place. What nobody touched since a story was loaded stays as the file has it, even where
// a control can't show it. Stories that nothing asks for any more are dropped at once, and the
// dialog around the page is told that the campaign has changed.
#pragma once

#include "document/campaign_data.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QPushButton;
class QSignalBlocker;
class Ui_ScenarioPrologue;

class ScenarioPrologue : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioPrologue(QWidget *parent);
    // Stops the music.
    ~ScenarioPrologue() override;

    // Loads the story `ix`, 0 to 2, of a scenario; without a map nothing can be edited.
    // `resetButtons` says that the number of stories may have changed.
    void initInfo(ScenarioData *scenario, bool isPrologue, unsigned int ix, bool resetButtons);
    // Stores the page as story `ix`, or removes that story. True if something changed, but for a
    // prologue that was removed.
    bool saveScenarioInfo(unsigned int ix);
    // The number of start options has changed: stories beyond it are dropped, but for the first,
    // which is loaded.
    void updatePrologue(unsigned int count);

    // The story on show.
    unsigned int currentIndex() const { return index; }
    // The scenario has another place in memory.
    void updateScenarioData(ScenarioData *scenario);

    bool canHaveMultiplePrologues();
    // How many stories the start options ask for; may be 0.
    unsigned int getPrologueCount();

    // Shows as many number buttons as there are stories to choose from, or none.
    void initIxButtons(unsigned int count);
    void resetIxButtons();

    // A scenario may have stories now, or none any more.
    void enableUI();
    void disableUI();
    // A story can be edited, and begins empty.
    void enableAllUI();
    void enableUIpartial();
    void disableUIpartial();

    // Shows a picture of the archives. One that they lack ends the process with exit code 1; no
    // name, and a picture that can't be read, show nothing.
    void setMovieImage(const QString &name);
    void setMusicBtn(bool playing);
    void pausePlayer();

private slots:
    void videoIndexChanged(int row);
    void musicSelectionChanged();
    void statusBoxClicked(bool checked);
    void settingsBoxClicked(bool checked);
    void numberBtnPressed();
    void playPauseMusic();

private:
    void fillChoices();
    void initSlotsAndSignals();
    std::vector<QSignalBlocker> blockControls() const;
    void uncheckNumbers();
    void nameNumbers();
    void loadStory();
    bool storeStory(std::shared_ptr<CmpPrologue> &story, bool onShow);
    bool storeMusic(quint8 &musicIndex) const;
    void dropStory(unsigned int ix);
    ScenarioData::Prologues &stories();
    void forgetStory();
    void setStoryEnabled(bool enabled);
    void selectVideo(int key);
    void selectMusic(int key);
    void showMusicName();
    void setChanged();

    ScenarioData *scenario = nullptr; // not owned
    bool prologuePage = true;
    bool musicPlaying = false;
    unsigned int index = 0;
    std::vector<QPushButton *> numberButtons; // those on show
    const std::unique_ptr<Ui_ScenarioPrologue> ui;

    // Whether the user chose since the story was loaded. A number that the tables lack can't be
    // shown, so that what the control shows instead means nothing.
    bool videoChosen = true;
    bool musicChosen = true;
    std::optional<QString> loadedText; // as the control showed it
};
