#include "scenario/starting_hero_options.h"

#include "document/map_player.h"
#include "scenario/naming.h"
#include "scenario/starting_hero_dialog.h"
#include "scenario/starting_hero_rules.h"
#include "ui_StartingHeroOptions.h"

#include <QDebug>

StartingHeroOptions::StartingHeroOptions(QWidget *parent)
    : OptionPage(parent), ui(std::make_unique<Ui_StartingHeroOptions>())
{
    ui->setupUi(this);
    setUpTable(ui->tableWidget, ui->addButton, ui->editButton, ui->removeButton);
    setColumnShare(1, 2);
}

StartingHeroOptions::~StartingHeroOptions() = default;

void StartingHeroOptions::initInfo(ScenarioInfo *newInfo, ScenarioData *newScenario,
                                   unsigned int newCampaignMap)
{
    info = newInfo;
    scenario = newScenario;
    campaignMap = newCampaignMap;
    resetTable(2);
    if (scenario->startOptions && scenario->startOptions->optionType == HeroOption) {
        const auto set = scenario->startOptions->optionData.value<StartingHeroSet>();
        for (const StartingHero &option : set.entries) {
            const int row = appendRow()->row();
            table()->setRowHeight(row, rowHeight);
            showStartingHero(table(), row, scenario, option);
            qDebug() << "ITEM: " << table()->item(row, 0) << table()->item(row, 1);
        }
    }
    checkAdd(scenario, nullptr);
}

void StartingHeroOptions::saveScenarioInfo(StartingHeroSet *set)
{
    qDebug() << "Save info";
    for (const StartingHero &option : recordsInRows<StartingHero>(table()))
        set->entries.push_back(option);
}

void StartingHeroOptions::checkAdd(ScenarioData *ofScenario, QTableWidgetItem *)
{
    bool possible = false;
    for (unsigned int player = 0; player < playerCount && !possible; ++player)
        possible = StartingHero_CanAddPlayer(ofScenario, table(), nullptr, player);
    addButton()->setEnabled(possible && table()->rowCount() < mostStartOptions);
}

void StartingHeroOptions::addItem()
{
    StartingHeroDialog dialog(this, scenario, campaignMap, table(), nullptr);
    if (dialog.exec() != QDialog::Accepted)
        return;
    dialog.updateOption(addRow());
    checkAdd(scenario, nullptr);
}

void StartingHeroOptions::openEditMenu(QTableWidgetItem *item)
{
    StartingHeroDialog dialog(this, scenario, campaignMap, table(), item);
    if (dialog.exec() == QDialog::Accepted)
        dialog.updateOption(item);
}

// The adding is allowed afterwards whoever can take a hero: there is room, and the next row added
// settles it.
void StartingHeroOptions::deleteItem()
{
    if (!table()->selectedItems().isEmpty())
        qDebug() << "REMOVE ROW";
    OptionPage::deleteItem();
}

// A row of a player whom no human can play goes without the walk stepping back, so that the row
// behind it isn't looked at if the removed one's hero passes: the next run finds it, and a change
// of map makes two. The removed row's record is judged all the same, since it decides the step.
void StartingHeroOptions::validateOptions()
{
    qDebug() << "Validate";
    for (int row = 0; row < table()->rowCount(); ++row) {
        qDebug() << "Check good";
        const auto option = recordOf<StartingHero>(table()->item(row, 0));
        const bool human = attributesOnMap(*scenario, option.player).canHuman;
        if (!human) {
            qDebug() << "Bad (not human), remove";
            table()->removeRow(row);
        }
        if (isAllowed(option))
            continue;
        if (human)
            table()->removeRow(row);
        --row;
    }
}

// Whether the map lets the player have the hero, be the player human or not.
bool StartingHeroOptions::isAllowed(const StartingHero &option) const
{
    const PlayerAttributes &player = attributesOnMap(*scenario, option.player);
    QBitArray disabledHeroes = getDisabledHeroes(scenario, option.player);
    bool onMap = false;
    for (const PlayerAttributesHeroInfo &hero : player.heroInfo) {
        qDebug() << "OnMap: " << hero.heroId;
        onMap |= hero.heroId == option.heroId;
    }
    const bool disabled = HeroIsDisabled(disabledHeroes, option.heroId);
    const bool generated = player.generatesHero && player.hasMainTown;
    bool keep = onMap || generated;
    if (!onMap && (disabled || !player.hasMainTown)) {
        qDebug() << "ID: " << option.heroId;
        qDebug() << "Reason A" << disabled;
        qDebug() << "Reason B" << !player.hasMainTown;
        qDebug() << "Reason C" << !onMap;
        qDebug() << "Bad (disabled or no main city, not on map), remove";
        keep = false;
    }
    if (!generated && option.heroId == HeroIdRandom) {
        qDebug() << "Bad (no generated hero or no main city)";
        return false;
    }
    if (keep)
        qDebug() << "Good";
    return keep;
}
