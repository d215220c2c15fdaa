// The page of a bonus of creatures: who gets them, which and how many.
#pragma once

#include "document/start_options.h"

#include <QWidget>

#include <memory>

class QComboBox;
class QSpinBox;
class QTableWidgetItem;
class ScenarioData;
class Ui_bonus_creature_dlg;

class BonusCreatureDlg : public QWidget
{
    Q_OBJECT

public:
    explicit BonusCreatureDlg(QWidget *parent);
    ~BonusCreatureDlg() override;

    // Fills the lists and shows the row's bonus if `item`, which may be null, holds creatures.
    void init(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);

    // What is chosen; zero where nothing is.
    BonusCreature bonus() const;

private:
    QComboBox *creatureCombobox; // of the form, as the next two
    QComboBox *recipientCombobox;
    QSpinBox *quantitySpinbox;
    const std::unique_ptr<Ui_bonus_creature_dlg> ui;
};
