#include "scenario/bonus_multibox_dlg.h"

#include "document/map_player.h"
#include "document/start_options.h"
#include "gamedata/editor_data.h"
#include "scenario/bonus_type.h"
#include "scenario/naming.h"
#include "scenario/option_page.h"
#include "shell/choice_box.h"
#include "ui_bonus_multibox_dlg.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr unsigned int lastArtifactKept = 3;
constexpr int townWithLateBuildings = 10;
constexpr std::array<int, 2> lateBuildings{19, 20}; // at the end of that town's list

// In the order of the numbers, which are the items' data.
void addNames(QComboBox *box, const std::map<int, QString> &names)
{
    for (const auto &[number, name] : names)
        box->addItem(name, number);
}

// All that the table names for the town, whether the rules of bonuses allow it there or not.
void addBuildings(QComboBox *box, int town)
{
    const auto found = EditorData::buildings.find(town);
    if (found == EditorData::buildings.end())
        return;
    std::map<int, QString> buildings = found->second;
    if (town == townWithLateBuildings) {
        for (const int late : lateBuildings)
            buildings.erase(late);
    }
    addNames(box, buildings);
    if (town == townWithLateBuildings) {
        for (const int late : lateBuildings)
            box->addItem(nameOf(found->second, late), unsigned(late));
    }
}

} // namespace

bool artIsGoodForBonus(unsigned int artifact)
{
    return artifact > lastArtifactKept;
}

bonus_multibox_dlg::bonus_multibox_dlg(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_bonus_multibox_dlg>())
{
    ui->setupUi(this);
    recipientCombobox = ui->recipientCombobox;
    item1combobox = ui->item1combobox;
    item2combobox = ui->item2combobox;
    keepRightClicksOff({recipientCombobox, item1combobox, item2combobox}, parent);
}

bonus_multibox_dlg::~bonus_multibox_dlg() = default;

void bonus_multibox_dlg::initAsSortedList(ScenarioData *scenario, unsigned int player,
                                          const QString &label, const std::map<int, QString> &names)
{
    ui->item2label->hide();
    item2combobox->hide();
    ui->item1label->setText(label);
    addHeroesToCombobox(recipientCombobox, scenario, player, true);
    addNames(item1combobox, names);
    item1combobox->model()->sort(0);
    item1combobox->setCurrentIndex(0); // the choice has moved along with its item
}

void bonus_multibox_dlg::initAsSpells(ScenarioData *scenario, unsigned int player,
                                      QTableWidgetItem *item)
{
    initAsSortedList(scenario, player, tr("Spell:"), EditorData::spells);
    if (holdsBonus(item, BonusType::Spell)) {
        const auto bonus = recordOf<BonusSpell>(item);
        selectChoice(recipientCombobox, bonus.heroId);
        selectChoice(item1combobox, bonus.spellId);
    } else if (holdsBonus(item, BonusType::Scroll)) {
        const auto bonus = recordOf<BonusScroll>(item);
        selectChoice(recipientCombobox, bonus.heroId);
        selectChoice(item1combobox, bonus.spellId);
    }
}

void bonus_multibox_dlg::initAsArtifacts(ScenarioData *scenario, unsigned int player,
                                         QTableWidgetItem *item)
{
    std::map<int, QString> offered;
    std::copy_if(EditorData::artifacts.begin(), EditorData::artifacts.end(),
                 std::inserter(offered, offered.end()),
                 [](const auto &artifact) { return artIsGoodForBonus(unsigned(artifact.first)); });
    initAsSortedList(scenario, player, tr("Artifact:"), offered);
    if (!holdsBonus(item, BonusType::Artifact))
        return;
    const auto bonus = recordOf<BonusArtifact>(item);
    selectChoice(recipientCombobox, bonus.heroId);
    selectChoice(item1combobox, bonus.artifactId);
}

void bonus_multibox_dlg::initAsSecondarySkills(ScenarioData *scenario, unsigned int player,
                                               QTableWidgetItem *item)
{
    ui->item1label->setText(tr("Skill:"));
    ui->item2label->setText(tr("Skill level:"));
    addHeroesToCombobox(recipientCombobox, scenario, player, true);
    addNames(item1combobox, EditorData::secondarySkills);
    addNames(item2combobox, EditorData::skillLevels);
    if (!holdsBonus(item, BonusType::SecondarySkill))
        return;
    const auto bonus = recordOf<BonusSecondarySkill>(item);
    selectChoice(recipientCombobox, bonus.heroId);
    selectChoice(item1combobox, bonus.skillId);
    selectChoice(item2combobox, bonus.skillLevel);
}

void bonus_multibox_dlg::initAsBuildings(ScenarioData *scenario, unsigned int player,
                                         QTableWidgetItem *item)
{
    ui->recipientLabel->setText(tr("Building:"));
    for (QWidget *unused : std::initializer_list<QWidget *>{ui->item1label, item1combobox,
                                                            ui->item2label, item2combobox})
        unused->hide();
    addBuildings(recipientCombobox, attributesOnMap(*scenario, player).mainTownType);
    if (holdsBonus(item, BonusType::Building))
        selectChoice(recipientCombobox, recordOf<BonusBuilding>(item).buildingId);
}

int bonus_multibox_dlg::recipient() const
{
    return choiceOf(recipientCombobox);
}

int bonus_multibox_dlg::item1() const
{
    return choiceOf(item1combobox);
}

int bonus_multibox_dlg::item2() const
{
    return choiceOf(item2combobox);
}
