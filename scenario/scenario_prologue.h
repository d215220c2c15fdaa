// The tabs for a scenario's prologues and its epilogues.
//
// The stories have no controls yet: the page is empty and leaves them alone.
#pragma once

#include <QWidget>

class ScenarioData;

class ScenarioPrologue : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioPrologue(QWidget *parent);

    // Loads the story `ix`, 0 to 2, of a scenario. `resetButtons` says that the number of stories
    // may have changed.
    void initInfo(ScenarioData *scenario, bool isPrologue, unsigned int ix, bool resetButtons);
    // Stores the page as story `ix`; true if something changed.
    bool saveScenarioInfo(unsigned int ix);
    // The number of start options has changed, and with it the number of stories.
    void updatePrologue(unsigned int count);
    // How many stories the start options ask for; may be 0.
    unsigned int getPrologueCount();
    // The story on show.
    unsigned int currentIndex() const { return index; }
    void updateScenarioData(ScenarioData *scenario);
    void enableUI();
    void disableUI();
    void pausePlayer();

private:
    ScenarioData *scenario = nullptr; // not owned
    unsigned int index = 0;
};
