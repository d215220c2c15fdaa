// Makes or changes one offer of a hero to start with.
//
// Lists the players who can still be given a hero, and for the player on show the heroes that no
// other row of the table offers.
#pragma once

#include <QDialog>

#include <memory>
#include <set>

class QTableWidget;
class QTableWidgetItem;
class ScenarioData;
class Ui_StartingHeroDialog;
struct StartingHero;

// Puts an offer and its texts into both items of a row.
void showStartingHero(QTableWidget *table, int row, ScenarioData *scenario,
                      const StartingHero &option);

class StartingHeroDialog : public QDialog
{
    Q_OBJECT

public:
    // `item` is the row to edit, null for a new one. Only the item in column 0 leaves the row's
    // own hero to choose; opened on another one, the dialog takes that hero for used.
    StartingHeroDialog(QWidget *parent, ScenarioData *scenario, unsigned int campaignMap,
                       QTableWidget *table, QTableWidgetItem *item);
    ~StartingHeroDialog() override;

    // Lists the heroes that this player can be given. For a row in work selects its own hero and
    // player, or the first hero if `selectFromItem` is false.
    void updateHeroCombobox(unsigned int player, bool selectFromItem);
    // Writes what is chosen into the item's row.
    void updateOption(QTableWidgetItem *item);

private slots:
    void playerIndexChanged(int index);

private:
    unsigned int addPlayers();
    void addHeroesOfMap(unsigned int player, std::set<int> &used);
    void addHeroesOfTown(unsigned int player, std::set<int> &used);

    QTableWidget *table;    // these three belong to the page
    QTableWidgetItem *item; // null for a new row
    ScenarioData *scenario;
    unsigned int campaignMap; // key of EditorData::campaignInfo
    const std::unique_ptr<Ui_StartingHeroDialog> ui;
};
