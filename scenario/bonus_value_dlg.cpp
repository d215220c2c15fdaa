#include "scenario/bonus_value_dlg.h"

#include "gamedata/editor_data.h"
#include "scenario/bonus_type.h"
#include "scenario/naming.h"
#include "scenario/option_page.h"
#include "shell/choice_box.h"
#include "ui_bonus_value_dlg.h"

#include <algorithm>

bonus_value_dlg::bonus_value_dlg(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_bonus_value_dlg>())
{
    ui->setupUi(this);
    datatypeBox = ui->datatypeBox;
    spinBox = ui->spinBox;
    spinBox_2 = ui->spinBox_2;
    spinBox_3 = ui->spinBox_3;
    spinBox_4 = ui->spinBox_4;
    valueLabel1 = ui->valueLabel1;
    valueLabel2 = ui->valueLabel2;
    valueLabel3 = ui->valueLabel3;
    valueLabel4 = ui->valueLabel4;
    keepRightClicksOff({datatypeBox}, parent);
    for (const QSpinBox *box : spinBoxes())
        connect(box, qOverload<int>(&QSpinBox::valueChanged), this, &bonus_value_dlg::valueChanged);
}

bonus_value_dlg::~bonus_value_dlg() = default;

void bonus_value_dlg::initAsPrimarySkills(ScenarioData *scenario, unsigned int player,
                                          QTableWidgetItem *item)
{
    ui->datatypeLabel->setText(tr("Recipient:"));
    valueLabel1->setText(tr("Attack skill:"));
    valueLabel2->setText(tr("Defense skill:"));
    valueLabel3->setText(tr("Spell power:"));
    valueLabel4->setText(tr("Knowledge:"));
    addHeroesToCombobox(datatypeBox, scenario, player, true);
    const std::array<QSpinBox *, 4> boxes = spinBoxes();
    for (QSpinBox *box : boxes)
        box->setMaximum(mostOfASkill);
    if (!holdsBonus(item, BonusType::PrimarySkill))
        return;
    const auto bonus = recordOf<BonusPrimarySkill>(item);
    selectChoice(datatypeBox, bonus.heroId);
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setValue(bonus.skills[i]);
}

void bonus_value_dlg::initAsResources(QTableWidgetItem *item)
{
    ui->datatypeLabel->setText(tr("Resource type:"));
    valueLabel1->setText(tr("Quantity")); // kept without a colon, as it is translated
    for (QWidget *unused : std::initializer_list<QWidget *>{valueLabel2, spinBox_2, valueLabel3,
                                                            spinBox_3, valueLabel4, spinBox_4})
        unused->hide();
    for (const auto &[number, name] : EditorData::resources)
        datatypeBox->addItem(name, number);
    for (const ResourceGroup &group : resourceGroups)
        datatypeBox->addItem(nameOf(EditorData::jktext, group.text), group.resource);
    spinBox->setRange(1, mostOfAResource);
    spinBox->setValue(1);
    if (!holdsBonus(item, BonusType::Resource))
        return;
    const auto bonus = recordOf<BonusResource>(item);
    selectChoice(datatypeBox, bonus.resourceId);
    spinBox->setValue(bonus.amount);
}

bool bonus_value_dlg::skillCheckout()
{
    const std::array<QSpinBox *, 4> boxes = spinBoxes();
    return std::any_of(boxes.begin(), boxes.end(),
                       [](const QSpinBox *box) { return box->value() > 0; });
}

BonusPrimarySkill bonus_value_dlg::primarySkills() const
{
    BonusPrimarySkill bonus;
    bonus.heroId = quint16(choiceOf(datatypeBox));
    const std::array<QSpinBox *, 4> boxes = spinBoxes();
    std::transform(boxes.begin(), boxes.end(), bonus.skills.begin(),
                   [](const QSpinBox *box) { return quint8(box->value()); });
    return bonus;
}

BonusResource bonus_value_dlg::resource() const
{
    return {quint8(choiceOf(datatypeBox)), spinBox->value()};
}

std::array<QSpinBox *, 4> bonus_value_dlg::spinBoxes() const
{
    return {spinBox, spinBox_2, spinBox_3, spinBox_4};
}
