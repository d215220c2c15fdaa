#include "scenario/bonus_creature_dlg.h"

#include "gamedata/editor_data.h"
#include "scenario/bonus_type.h"
#include "scenario/naming.h"
#include "scenario/option_page.h"
#include "shell/choice_box.h"
#include "ui_bonus_creature_dlg.h"

BonusCreatureDlg::BonusCreatureDlg(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_bonus_creature_dlg>())
{
    ui->setupUi(this);
    creatureCombobox = ui->creatureCombobox;
    recipientCombobox = ui->recipientCombobox;
    quantitySpinbox = ui->quantitySpinbox;
    keepRightClicksOff({creatureCombobox, recipientCombobox}, parent);
}

BonusCreatureDlg::~BonusCreatureDlg() = default;

void BonusCreatureDlg::init(ScenarioData *scenario, unsigned int player, QTableWidgetItem *item)
{
    addHeroesToCombobox(recipientCombobox, scenario, player, true);
    for (const unsigned creature : EditorData::creature_ordering)
        creatureCombobox->addItem(nameOf(EditorData::creatures, int(creature)), creature);
    if (!holdsBonus(item, BonusType::Creature))
        return;
    const auto bonus = recordOf<BonusCreature>(item);
    selectChoice(recipientCombobox, bonus.heroId);
    selectChoice(creatureCombobox, bonus.creatureId);
    quantitySpinbox->setValue(bonus.amount);
}

BonusCreature BonusCreatureDlg::bonus() const
{
    return {quint16(choiceOf(recipientCombobox)), quint16(choiceOf(creatureCombobox)),
            quint16(quantitySpinbox->value())};
}
