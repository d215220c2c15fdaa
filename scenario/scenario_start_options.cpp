#include "scenario/scenario_start_options.h"

#include "document/campaign_data.h"
#include "document/map_player.h"
#include "scenario/hero_crossover.h"
#include "scenario/scenario_host.h"
#include "scenario/starting_bonus.h"
#include "scenario/starting_hero_options.h"
#include "scenario/starting_hero_rules.h"
#include "shell/chosen_button.h"
#include "ui_ScenarioStartOptions.h"

#include <QDebug>

#include <algorithm>

namespace {

template<typename Row>
bool sameRows(std::vector<Row> a, std::vector<Row> b)
{
    const auto same = [](Row &first, Row &second) { return !(first != second); };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), same);
}

// Only the rows count, in their order: the player who gets the bonuses isn't compared.
bool sameOptions(const CmpScenarioStartOptions &a, const CmpScenarioStartOptions &b)
{
    if (a.optionType != b.optionType)
        return false;
    if (a.optionType == BonusOption) {
        return sameRows(a.optionData.value<StartingBonusSet>().bonuses,
                        b.optionData.value<StartingBonusSet>().bonuses);
    }
    if (a.optionType == HeroOption) {
        return sameRows(a.optionData.value<StartingHeroSet>().entries,
                        b.optionData.value<StartingHeroSet>().entries);
    }
    return sameRows(a.optionData.value<HeroCrossoverSet>().entries,
                    b.optionData.value<HeroCrossoverSet>().entries);
}

quint8 buildingOf(const CmpStartingBonus &bonus)
{
    return bonus.bonusData.value<BonusBuilding>().buildingId;
}

// What sameOptions passes over: which player gets the bonuses, and which building one builds.
bool sameDetails(const CmpScenarioStartOptions &a, const CmpScenarioStartOptions &b)
{
    const auto first = a.optionData.value<StartingBonusSet>();
    const auto second = b.optionData.value<StartingBonusSet>();
    const auto same = [](const CmpStartingBonus &x, const CmpStartingBonus &y) {
        return buildingOf(x) == buildingOf(y);
    };
    return first.player == second.player &&
           std::equal(first.bonuses.begin(), first.bonuses.end(), second.bonuses.begin(),
                      second.bonuses.end(), same);
}

template<typename Set, typename Editor>
QVariant rowsOf(Editor *editor)
{
    Set set;
    editor->saveScenarioInfo(&set);
    return QVariant::fromValue(set);
}

} // namespace

ScenarioStartOptions::ScenarioStartOptions(QWidget *parent)
    : QWidget(parent), ui(std::make_unique<Ui_ScenarioStartOptions>())
{
    ui->setupUi(this);
    startingBonus = new StartingBonus(ui->stackedWidget);
    heroCrossover = new HeroCrossover(ui->stackedWidget);
    startingHero = new StartingHeroOptions(ui->stackedWidget);
    ui->stackedWidget->addWidget(startingBonus);
    ui->stackedWidget->addWidget(heroCrossover);
    ui->stackedWidget->addWidget(startingHero);
    ui->stackedWidget->setCurrentWidget(startingBonus);
    initSlotsAndSignals();
}

ScenarioStartOptions::~ScenarioStartOptions() = default;

void ScenarioStartOptions::initSlotsAndSignals()
{
    connect(ui->startingBonusBtn, &QRadioButton::clicked, this,
            &ScenarioStartOptions::clickStartingBonus);
    connect(ui->startingHeroBtn, &QRadioButton::clicked, this,
            &ScenarioStartOptions::clickStartingHero);
    connect(ui->heroCrosssoverBtn, &QRadioButton::clicked, this,
            &ScenarioStartOptions::clickHeroCrossover);
}

// In the order in which they are asked whether they are chosen; bonuses come first, which every
// map allows.
std::array<ScenarioStartOptions::Kind, 3> ScenarioStartOptions::kinds() const
{
    return {{{BonusOption, ui->startingBonusBtn, startingBonus},
             {HeroOption, ui->startingHeroBtn, startingHero},
             {CrossoverOption, ui->heroCrosssoverBtn, heroCrossover}}};
}

void ScenarioStartOptions::initInfo(ScenarioInfo *info, CampaignData *campaign,
                                    ScenarioData *newScenario, unsigned int campaignMap)
{
    updateScenarioData(newScenario);
    if (!scenario->mapHeader) {
        forgetOptions(info, campaign, campaignMap);
        disableUI();
        return;
    }
    enableUI();
    startingBonus->initInfo(scenario, campaignMap);
    heroCrossover->initInfo(campaign, scenario, campaignMap);
    startingHero->initInfo(info, scenario, campaignMap);
    showStoredKind();
    refreshButtonStates();
}

// The editors know their campaign even if the first scenario on show has no map: it may get one.
void ScenarioStartOptions::forgetOptions(ScenarioInfo *info, CampaignData *campaign,
                                         unsigned int campaignMap)
{
    ScenarioData empty;
    startingBonus->initInfo(&empty, campaignMap);
    heroCrossover->initInfo(campaign, &empty, campaignMap);
    startingHero->initInfo(info, &empty, campaignMap);
    updateScenarioData(scenario);
}

// A type that isn't known shows as bonuses.
void ScenarioStartOptions::showStoredKind()
{
    const CmpScenarioStartOptions *options = scenario->startOptions.get();
    if (!options)
        return;
    qDebug() << "!!! OPTION TYPE" << options->optionType;
    for (const Kind &kind : kinds()) {
        if (kind.type == options->optionType)
            choose(kind);
    }
}

void ScenarioStartOptions::choose(const Kind &kind)
{
    ui->stackedWidget->setCurrentWidget(kind.editor);
    chooseButton(kind.button);
}

void ScenarioStartOptions::updateScenarioData(ScenarioData *newScenario)
{
    scenario = newScenario;
    for (const Kind &kind : kinds())
        kind.editor->updateScenarioData(newScenario);
}

// The two hero kinds may be validated a second time here: a row that the first walk steps over is
// found by the next.
void ScenarioStartOptions::updateScenarioUI()
{
    refreshButtonStates();
    startingBonus->validateBonuses();
    startingBonus->updateUI();
    heroCrossover->validateOptions();
    heroCrossover->updateUI();
    startingHero->validateOptions();
    startingHero->updateUI();
}

// What isn't allowed loses its rows; bonuses take its place.
void ScenarioStartOptions::refreshButtonStates()
{
    const auto [bonus, hero, crossover] = kinds();
    Q_UNUSED(bonus)
    bool allowHero = mapOffersHero();
    const bool allowCrossover = scenario->mapHeader && scenario->prerequisites.count(true) > 0;
    if (allowHero) // the rule by which the editor will add one has the last word
        allowHero = somebodyCanTakeHero();
    allow(hero, allowHero);
    if (allowHero)
        startingHero->validateOptions();
    allow(crossover, allowCrossover);
    if (allowCrossover)
        heroCrossover->validateOptions();
}

// Asks the first player whom a human can play, and nobody else: that is who plays the campaign.
bool ScenarioStartOptions::mapOffersHero() const
{
    if (!scenario->mapHeader)
        return false;
    qDebug() << "Good header";
    const auto &players = scenario->mapHeader->players;
    const auto first = std::find_if(players.begin(), players.end(),
                                    [](const PlayerAttributes &player) { return player.canHuman; });
    if (first == players.end())
        return false;
    qDebug() << "Is human: " << int(first->generatesHero);
    if (first->generatesHero)
        return true;
    qDebug() << "Size: " << first->heroInfo.size();
    if (first->heroInfo.empty())
        return false;
    qDebug() << "ALLOW STARTING HERO";
    return true;
}

bool ScenarioStartOptions::somebodyCanTakeHero() const
{
    for (unsigned int player = 0; player < playerCount; ++player) {
        if (StartingHero_CanAddPlayer(scenario, nullptr, nullptr, player))
            return true;
    }
    return false;
}

void ScenarioStartOptions::allow(const Kind &kind, bool allowed)
{
    if (!allowed) {
        if (kind.button->isChecked())
            choose(kinds().front());
        kind.editor->clearUI();
    }
    kind.button->setEnabled(allowed);
}

void ScenarioStartOptions::setUIstatus(bool enable)
{
    for (const Kind &kind : kinds())
        kind.button->setEnabled(enable);
    ui->stackedWidget->setEnabled(enable);
    ui->startingOptionsLabel->setEnabled(enable);
}

void ScenarioStartOptions::enableUI()
{
    setUIstatus(true);
    choose(kinds().front());
    startingBonus->initUI();
}

void ScenarioStartOptions::disableUI()
{
    setUIstatus(false);
    choose(kinds().front());
    startingBonus->clearUI();
    heroCrossover->clearUI();
    startingHero->clearUI();
}

unsigned int ScenarioStartOptions::getSelectedOption()
{
    for (const Kind &kind : kinds()) {
        if (kind.button->isChecked())
            return kind.type;
    }
    return 0;
}

unsigned int ScenarioStartOptions::getOptionCount()
{
    for (const Kind &kind : kinds()) {
        if (kind.button->isChecked())
            return kind.editor->getOptionCount();
    }
    return 0;
}

QVariant ScenarioStartOptions::rowsOfKind(unsigned int type)
{
    switch (type) {
    case BonusOption:
        return rowsOf<StartingBonusSet>(startingBonus);
    case HeroOption:
        return rowsOf<StartingHeroSet>(startingHero);
    default:
        return rowsOf<HeroCrossoverSet>(heroCrossover);
    }
}

// The record is a new one even where nothing changed: copies of the scenario share the old one.
bool ScenarioStartOptions::saveScenarioInfo()
{
    const unsigned int type = getSelectedOption();
    if (!scenario->mapHeader || type == 0)
        return false;
    const CmpScenarioStartOptions options{type, rowsOfKind(type)};
    const bool changed = !scenario->startOptions || !sameOptions(*scenario->startOptions, options);
    // Not part of the answer, but no reason to close the document without a question.
    if (!changed && !sameDetails(*scenario->startOptions, options)) {
        if (ScenarioHost *host = hostOf(this))
            host->setChanged();
    }
    scenario->startOptions = std::make_shared<CmpScenarioStartOptions>(options);
    return changed;
}

void ScenarioStartOptions::clickStartingBonus()
{
    qDebug() << "CLICK STARTING BONUS";
    ui->stackedWidget->setCurrentWidget(startingBonus);
}

void ScenarioStartOptions::clickStartingHero()
{
    qDebug() << "CLICK STARTING HERO";
    ui->stackedWidget->setCurrentWidget(startingHero);
}

void ScenarioStartOptions::clickHeroCrossover()
{
    qDebug() << "CLICK HERO CROSSOVER";
    ui->stackedWidget->setCurrentWidget(heroCrossover);
}
