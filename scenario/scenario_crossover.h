// The tab for what a hero carries over into the scenario: five kinds of its details, and which
// artifacts and creatures come along.
//
// Edits the crossover record of the scenario that it is given, which it doesn't own, when
// saveScenarioInfo is called. Items of both lists hold the number of their artifact or creature
// under Qt::UserRole; bits of numbers that no list shows stay as they are.
#pragma once

#include <QWidget>

#include <array>
#include <memory>

class QBitArray;
class QCheckBox;
class QListWidget;
class QListWidgetItem;
class ScenarioData;
class Ui_ScenarioCrossover;

class ScenarioCrossover : public QWidget
{
    Q_OBJECT

public:
    explicit ScenarioCrossover(QWidget *parent);
    ~ScenarioCrossover() override;

    void initSlotsAndSignals();
    // Loads a scenario. One without a map shows the defaults and can't be edited.
    void initInfo(ScenarioData *scenario);
    // True if something changed.
    bool saveScenarioInfo();
    // The scenario has another place in memory.
    void updateScenarioData(ScenarioData *scenario);

    // Whether the tab can be edited. Disabling it takes all checks off the lists, and leaves those
    // of the details.
    void updateUI(bool enable);
    void enableUI();
    void disableUI();

    // False for the artifacts that no hero takes along.
    bool artIsGoodForCrossoverList(unsigned int artifact);
    // False for the creatures that no hero takes along. The list shows these too.
    bool monsterIsGoodForCrossoverList(unsigned int creature);

private slots:
    void clickAll();
    void clickNone();
    void clickAllArts();
    void clickNoneArts();

private:
    void fillArtifacts();
    void fillCreatures();
    std::array<QCheckBox *, 5> details() const; // by their bits

    ScenarioData *scenario = nullptr; // not owned
    const std::unique_ptr<Ui_ScenarioCrossover> ui;
};
