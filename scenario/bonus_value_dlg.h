// The page of a bonus that is told by numbers: primary skills, or an amount of a resource. One of
// the init functions makes it a page of its kind.
#pragma once

#include "document/start_options.h"

#include <QWidget>

#include <array>
#include <memory>

class QComboBox;
class QLabel;
class QSpinBox;
class QTableWidgetItem;
class ScenarioData;
class Ui_bonus_value_dlg;

class bonus_value_dlg : public QWidget
{
    Q_OBJECT

public:
    explicit bonus_value_dlg(QWidget *parent);
    ~bonus_value_dlg() override;

    // To be called once: fills the list and shows the row's bonus if `item`, which may be null,
    // holds one of this kind.
    void initAsPrimarySkills(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item);
    void initAsResources(QTableWidgetItem *item);

    // Whether any of the four numbers is above 0.
    bool skillCheckout();

    // What is chosen, told as either kind; zero where nothing is.
    BonusPrimarySkill primarySkills() const;
    BonusResource resource() const;

signals:
    void valueChanged(int value);

private:
    std::array<QSpinBox *, 4> spinBoxes() const;

    QComboBox *datatypeBox; // of the form, as all the others
    QSpinBox *spinBox;
    QSpinBox *spinBox_2;
    QSpinBox *spinBox_3;
    QSpinBox *spinBox_4;
    QLabel *valueLabel1;
    QLabel *valueLabel2;
    QLabel *valueLabel3;
    QLabel *valueLabel4;
    const std::unique_ptr<Ui_bonus_value_dlg> ui;
};
