#include "scenario/starting_hero_dialog.h"

#include "document/map_player.h"
#include "gamedata/editor_data.h"
#include "scenario/naming.h"
#include "scenario/option_dialog.h"
#include "scenario/option_page.h"
#include "scenario/starting_hero_rules.h"
#include "shell/choice_box.h"
#include "ui_StartingHeroDialog.h"

#include <QDebug>

void showStartingHero(QTableWidget *table, int row, ScenarioData *scenario,
                      const StartingHero &option)
{
    setRowRecord(table, row, option,
                 {getHeroName(scenario, option.player, option.heroId, true),
                  getFullPlayerName(option.player)});
}

// The heroes are listed twice: for the last player, so that the row's own player can be selected
// before changes of the player count, and then for the player on show.
StartingHeroDialog::StartingHeroDialog(QWidget *parent, ScenarioData *newScenario,
                                       unsigned int newCampaignMap, QTableWidget *newTable,
                                       QTableWidgetItem *newItem)
    : QDialog(parent), table(newTable), item(newItem), scenario(newScenario),
      campaignMap(newCampaignMap), ui(std::make_unique<Ui_StartingHeroDialog>())
{
    ui->setupUi(this);
    updateHeroCombobox(addPlayers(), true);
    connect(ui->playerCombobox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &StartingHeroDialog::playerIndexChanged);
    updateHeroCombobox(unsigned(choiceOf(ui->playerCombobox)), true);
    setUpOptionDialog(this, {ui->playerCombobox, ui->heroCombobox}, ui->buttonBox);
}

StartingHeroDialog::~StartingHeroDialog() = default;

// Answers the last player, 0 if there is none.
unsigned int StartingHeroDialog::addPlayers()
{
    unsigned int last = 0;
    for (unsigned int player = 0; player < playerCount; ++player) {
        if (!StartingHero_CanAddPlayer(scenario, table, item, player))
            continue;
        ui->playerCombobox->addItem(getFullPlayerName(player), int(player));
        last = player;
    }
    return last;
}

void StartingHeroDialog::updateHeroCombobox(unsigned int player, bool selectFromItem)
{
    ui->heroCombobox->clear();
    std::set<int> used = valuesInRows(table, &StartingHero::heroId, item);
    addHeroesOfMap(player, used);
    addHeroesOfTown(player, used);
    if (!item)
        return;
    if (!selectFromItem) {
        ui->heroCombobox->setCurrentIndex(0);
        return;
    }
    const auto option = recordOf<StartingHero>(item);
    selectChoice(ui->heroCombobox, option.heroId);
    selectChoice(ui->playerCombobox, option.player);
}

// A hero that the map lists twice is offered once.
void StartingHeroDialog::addHeroesOfMap(unsigned int player, std::set<int> &used)
{
    for (const PlayerAttributesHeroInfo &info : attributesOnMap(*scenario, player).heroInfo) {
        if (!used.insert(info.heroId).second)
            continue;
        const QString name = getHeroName(scenario, player, info.heroId, true);
        ui->heroCombobox->addItem(name, QVariant::fromValue<unsigned char>(info.heroId));
    }
}

// A hero of the town needs the town as well as the generating of one.
void StartingHeroDialog::addHeroesOfTown(unsigned int player, std::set<int> &used)
{
    const PlayerAttributes &attributes = attributesOnMap(*scenario, player);
    const bool generated = attributes.generatesHero && attributes.hasMainTown;
    qDebug() << "CURRENT PLAYER:" << player;
    qDebug() << "ADD: " << generated;
    if (!generated)
        return;
    const auto add = [&](int hero) {
        if (used.count(hero) == 0)
            ui->heroCombobox->addItem(getHeroName(scenario, player, quint16(hero), true), hero);
    };
    add(HeroIdRandom);
    QBitArray disabled = getDisabledHeroes(scenario, player);
    for (const auto &[hero, name] : EditorData::heroes) {
        if (!HeroIsDisabled(disabled, unsigned(hero)))
            add(hero);
    }
}

// A hero that the new player may have as well stays chosen.
void StartingHeroDialog::playerIndexChanged(int)
{
    const QVariant hero = ui->heroCombobox->currentData();
    updateHeroCombobox(unsigned(choiceOf(ui->playerCombobox)), false);
    const int kept = hero.isValid() ? ui->heroCombobox->findData(hero) : -1;
    if (kept >= 0)
        ui->heroCombobox->setCurrentIndex(kept);
}

void StartingHeroDialog::updateOption(QTableWidgetItem *target)
{
    const StartingHero option{quint8(choiceOf(ui->playerCombobox)),
                              quint16(choiceOf(ui->heroCombobox))};
    showStartingHero(table, target->row(), scenario, option);
}
