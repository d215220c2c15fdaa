// The page of a bonus that is told by one to three choices: a spell, a scroll, an artifact, a
// secondary skill or a building. One of the init functions makes it a page of its kind.
#pragma once

#include <QString>
#include <QWidget>

#include <map>
#include <memory>

class QComboBox;
class QTableWidgetItem;
class ScenarioData;
class Ui_bonus_multibox_dlg;

class bonus_multibox_dlg : public QWidget
{
    Q_OBJECT

public:
    explicit bonus_multibox_dlg(QWidget *parent);
    ~bonus_multibox_dlg() override;

    // To be called once: fills the lists and shows the row's bonus if `item`, which may be null,
    // holds one of this kind.
    void initAsArtifacts(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);
    // The buildings of the player's town. They stand in the recipient's box: a town needs no
    // other.
    void initAsBuildings(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);
    void initAsSecondarySkills(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);
    // Spells and scrolls; either page shows a row of either kind.
    void initAsSpells(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);

    // The numbers chosen; 0 where nothing is.
    int recipient() const;
    int item1() const;
    int item2() const;

private:
    // The recipients, and one list in the order of the alphabet.
    void initAsSortedList(ScenarioData *scenario, unsigned int player, const QString &label,
                          const std::map<int, QString> &names);

    QComboBox *recipientCombobox; // of the form, as the next two
    QComboBox *item1combobox;
    QComboBox *item2combobox;
    const std::unique_ptr<Ui_bonus_multibox_dlg> ui;
};

// False for the first artifacts of the game's table, which aren't given as a bonus.
bool artIsGoodForBonus(unsigned int artifact);
