#include "scenario/bonus_dialog.h"

#include "document/map_player.h"
#include "scenario/bonus_creature_dlg.h"
#include "scenario/bonus_multibox_dlg.h"
#include "scenario/bonus_text.h"
#include "scenario/bonus_type.h"
#include "scenario/bonus_value_dlg.h"
#include "shell/chosen_button.h"
#include "shell/dialog_look.h"
#include "ui_bonus_dialog.h"

#include <QPushButton>

#include <algorithm>

namespace {

constexpr const char *typeProperty = "Bonus"; // of a page: its kind, an int

template<typename Record>
QVariant spellRecord(const bonus_multibox_dlg *page)
{
    return QVariant::fromValue(Record{quint16(page->recipient()), quint8(page->item1())});
}

QVariant buildingRecord(const bonus_multibox_dlg *page)
{
    return QVariant::fromValue(BonusBuilding{quint8(page->recipient())});
}

QVariant artifactRecord(const bonus_multibox_dlg *page)
{
    return QVariant::fromValue(BonusArtifact{quint16(page->recipient()), quint16(page->item1())});
}

QVariant secondarySkillRecord(const bonus_multibox_dlg *page)
{
    return QVariant::fromValue(BonusSecondarySkill{quint16(page->recipient()),
                                                   quint8(page->item1()), quint8(page->item2())});
}

} // namespace

struct BonusDialog::Kind
{
    QRadioButton *Ui_bonus_dialog::*button;
    void (BonusDialog::*clicked)();
    QVariant (*record)(const BonusDialog &dialog); // what its page shows
};

const std::array<BonusDialog::Kind, 8> &BonusDialog::kinds()
{
    using Form = Ui_bonus_dialog;
    using Self = const BonusDialog &;
    static const std::array<Kind, 8> table{{
        {&Form::spellBtn, &BonusDialog::clickSpell,
         [](Self self) { return spellRecord<BonusSpell>(self.spellPage); }},
        {&Form::creatureBtn, &BonusDialog::clickCreature,
         [](Self self) { return QVariant::fromValue(self.creaturePage->bonus()); }},
        {&Form::buildingBtn, &BonusDialog::clickBuilding,
         [](Self self) { return buildingRecord(self.buildingPage); }},
        {&Form::artifactBtn, &BonusDialog::clickArtifacts,
         [](Self self) { return artifactRecord(self.artifactPage); }},
        {&Form::scrollBtn, &BonusDialog::clickScroll,
         [](Self self) { return spellRecord<BonusScroll>(self.scrollPage); }},
        {&Form::primSkillBtn, &BonusDialog::clickPrimSkills,
         [](Self self) { return QVariant::fromValue(self.primSkillPage->primarySkills()); }},
        {&Form::secSkillBtn, &BonusDialog::clickSecSkills,
         [](Self self) { return secondarySkillRecord(self.secSkillPage); }},
        {&Form::resourceBtn, &BonusDialog::clickResources,
         [](Self self) { return QVariant::fromValue(self.resourcePage->resource()); }},
    }};
    return table;
}

BonusDialog::BonusDialog(QWidget *parent, ScenarioData *newScenario, unsigned int newCampaignMap,
                         unsigned int newPlayer, QTableWidgetItem *item)
    : QDialog(parent), scenario(newScenario), campaignMap(newCampaignMap), player(newPlayer),
      ui(std::make_unique<Ui_bonus_dialog>())
{
    ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    const PlayerAttributes &attributes = attributesOnMap(*scenario, player);
    if (!attributes.hasMainTown || attributes.mainTownType == randomTown)
        ui->buildingBtn->setEnabled(false);
    addPages(item);
    alignPages();
    // Taken out and put back, so that the Tab key reaches it behind the pages, which are younger.
    ui->buttonBox->setParent(nullptr);
    ui->verticalLayout->addWidget(ui->buttonBox);
    fixDialog(this);

    const unsigned int stored = item ? item->data(bonusTypeRole).toUInt() : 0;
    const auto type = stored < kinds().size() ? BonusType(stored) : BonusType::Spell;
    showPage(type);
    if (type == BonusType::PrimarySkill)
        checkPrimSkillOkStatus(0);
    initSlotsAndSignals();
}

BonusDialog::~BonusDialog() = default;

template<typename Page>
Page *BonusDialog::addPage(BonusType type)
{
    auto *page = new Page(ui->stackedWidget);
    page->setProperty(typeProperty, int(type));
    ui->stackedWidget->insertWidget(int(type), page);
    return page;
}

void BonusDialog::addPages(QTableWidgetItem *item)
{
    spellPage = addPage<bonus_multibox_dlg>(BonusType::Spell);
    spellPage->initAsSpells(scenario, player, item);
    creaturePage = addPage<BonusCreatureDlg>(BonusType::Creature);
    creaturePage->init(scenario, player, item);
    buildingPage = addPage<bonus_multibox_dlg>(BonusType::Building);
    buildingPage->initAsBuildings(scenario, player, item);
    artifactPage = addPage<bonus_multibox_dlg>(BonusType::Artifact);
    artifactPage->initAsArtifacts(scenario, player, item);
    scrollPage = addPage<bonus_multibox_dlg>(BonusType::Scroll);
    scrollPage->initAsSpells(scenario, player, item);
    primSkillPage = addPage<bonus_value_dlg>(BonusType::PrimarySkill);
    primSkillPage->initAsPrimarySkills(scenario, player, item);
    secSkillPage = addPage<bonus_multibox_dlg>(BonusType::SecondarySkill);
    secSkillPage->initAsSecondarySkills(scenario, player, item);
    resourcePage = addPage<bonus_value_dlg>(BonusType::Resource);
    resourcePage->initAsResources(item);
}

// So that the fields stand still when the page changes.
void BonusDialog::alignPages()
{
    const auto labels = ui->stackedWidget->findChildren<QLabel *>();
    int widest = 0;
    for (const QLabel *label : labels)
        widest = std::max(widest, label->sizeHint().width());
    for (QLabel *label : labels)
        label->setMinimumWidth(widest);
}

void BonusDialog::initSlotsAndSignals()
{
    // Pressed, not clicked: the page shows as soon as the button goes down.
    for (const Kind &kind : kinds())
        connect(ui.get()->*kind.button, &QRadioButton::pressed, this, kind.clicked);
    connect(primSkillPage, &bonus_value_dlg::valueChanged, this,
            &BonusDialog::checkPrimSkillOkStatus);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

int BonusDialog::getBonusType()
{
    return ui->stackedWidget->currentWidget()->property(typeProperty).toInt();
}

void BonusDialog::updateBonus(QTableWidgetItem *item)
{
    CmpStartingBonus bonus;
    bonus.bonusType = quint8(getBonusType());
    bonus.bonusData = kinds()[bonus.bonusType].record(*this);
    item->setData(Qt::UserRole, bonus.bonusData);
    item->setData(bonusTypeRole, QVariant::fromValue<unsigned char>(bonus.bonusType));
    item->setText(getBonusStringFromRawData(scenario, player, bonus));
}

void BonusDialog::setOkEnabled(bool enabled)
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(enabled);
}

// Checks the button too: one that is pressed and let go elsewhere isn't checked by itself, while
// its page shows.
void BonusDialog::showPage(BonusType type)
{
    chooseButton(ui.get()->*kinds()[std::size_t(type)].button);
    ui->stackedWidget->setCurrentIndex(int(type));
}

void BonusDialog::choosePage(BonusType type)
{
    setOkEnabled(true);
    showPage(type);
}

void BonusDialog::clickSpell()
{
    choosePage(BonusType::Spell);
}

void BonusDialog::clickCreature()
{
    choosePage(BonusType::Creature);
}

void BonusDialog::clickBuilding()
{
    choosePage(BonusType::Building);
}

void BonusDialog::clickArtifacts()
{
    choosePage(BonusType::Artifact);
}

void BonusDialog::clickScroll()
{
    choosePage(BonusType::Scroll);
}

void BonusDialog::clickPrimSkills()
{
    setOkEnabled(primSkillPage->skillCheckout());
    showPage(BonusType::PrimarySkill);
}

void BonusDialog::clickSecSkills()
{
    choosePage(BonusType::SecondarySkill);
}

void BonusDialog::clickResources()
{
    choosePage(BonusType::Resource);
}

void BonusDialog::checkPrimSkillOkStatus(int /*value*/)
{
    setOkEnabled(primSkillPage->skillCheckout());
}
