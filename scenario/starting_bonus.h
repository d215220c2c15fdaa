// The editor of start options for bonuses: the player who gets one, and up to three to choose from.
//
// A row's item holds the bonus record under Qt::UserRole and its type, an unsigned char, under
// bonusTypeRole. Rows that the map no longer allows disappear without a word.
#pragma once

#include "scenario/option_page.h"

#include <memory>

class Ui_StartingBonus;
struct StartingBonusSet;

class StartingBonus : public OptionPage
{
    Q_OBJECT

public:
    explicit StartingBonus(QWidget *parent);
    ~StartingBonus() override;

    void initSlotsAndSignals();
    // A new row may be added, none is selected, the players are those a human can play; rows that
    // the first of them can't be given are gone.
    void initUI();
    // Loads the scenario's bonuses as they are stored, valid or not.
    void initInfo(ScenarioData *scenario, unsigned int campaignMap);
    // No rows and no players.
    void clearUI() override;
    // Appends the rows to the set. Without a player chosen they are player 0's.
    void saveScenarioInfo(StartingBonusSet *set);
    // The scenario's map has changed: the players are listed anew, and the rows judged for the
    // player chosen before.
    void validateBonuses();
    // Removes the rows that this player can't be given on the scenario's map. Buttons stay as they
    // are.
    void validateForPlayer(unsigned int player);

private slots:
    void playerChanged(int index);

private:
    void addItem() override;
    void openEditMenu(QTableWidgetItem *item) override;
    void loadBonuses(const StartingBonusSet &set);
    void fillPlayers();
    unsigned int currentPlayer() const;

    bool ready = false; // the player's combo box may react
    const std::unique_ptr<Ui_StartingBonus> ui;
};
