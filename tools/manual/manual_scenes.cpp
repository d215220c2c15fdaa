#include "tools/manual/manual_scenes.h"

#include "campaign_dialogs/convert_campaign.h"
#include "campaign_dialogs/edit_campaign.h"
#include "campaign_dialogs/new_campaign.h"
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "scenario/ask_delete_all.h"
#include "scenario/bonus_dialog.h"
#include "scenario/hero_crossover_dialog.h"
#include "scenario/scenario_info.h"
#include "scenario/starting_hero_dialog.h"
#include "shell/about_cmp_ed.h"
#include "shell/main_window.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFile>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableWidget>

namespace {

constexpr const char *onMap = "sample.e3c";
constexpr const char *withoutMap = "without_map.e3c";

// Scenarios of the campaign on a map, by what is shown of them.
constexpr unsigned scenarioWithBonuses = 0;    // and with three prologues and an epilogue
constexpr unsigned scenarioWithHeroes = 2;     // its prerequisites are few
constexpr unsigned scenarioWithCrossovers = 4; // and prerequisites, direct and implied

constexpr int generalTab = 0;
constexpr int prologueTab = 1;
constexpr int epilogueTab = 2;
constexpr int crossoverTab = 3;
constexpr int startOptionsTab = 4;

constexpr unsigned firstPlayer = 0;

QString campaignPath(const char *file)
{
    return gameRoot() + QStringLiteral("/Maps/") + QLatin1String(file);
}

struct OpenCampaign
{
    explicit OpenCampaign(const char *name)
    {
        QFile file(campaignPath(name));
        if (!file.open(QIODevice::ReadOnly) || !campaign.ReadFromFile(&file))
            qFatal("Cannot read %s.", name);
    }

    CampaignData campaign;
    QTableWidget rows{0, 2}; // of start options; the dialogs for one row look at the others
};

template<typename Dialog>
ManualWindow plainDialog()
{
    return {nullptr, std::make_unique<Dialog>(nullptr)};
}

template<typename Dialog>
ManualWindow campaignDialog(const char *file)
{
    auto ground = std::make_shared<OpenCampaign>(file);
    auto dialog = std::make_unique<Dialog>(nullptr, &ground->campaign);
    return {ground, std::move(dialog)};
}

void press(const QWidget *window, const char *button)
{
    window->findChild<QAbstractButton *>(QLatin1String(button))->click();
}

ManualWindow mainWindow()
{
    EditorData::info = {};
    auto window = std::make_unique<MainWindow>(nullptr);
    window->loadFile(campaignPath(onMap));
    return {nullptr, std::move(window)};
}

ManualWindow newCampaignWithoutMap()
{
    auto dialog = std::make_unique<NewCampaign>(nullptr);
    dialog->findChild<QWidget *>("campaignWithoutMapBtn")->setFocus(); // as the mouse does
    press(dialog.get(), "campaignWithoutMapBtn");
    return {nullptr, std::move(dialog)};
}

ManualWindow scenarioTab(const char *file, unsigned scenario, int tab)
{
    auto ground = std::make_shared<OpenCampaign>(file);
    auto dialog = std::make_unique<ScenarioInfo>(nullptr, &ground->campaign,
                                                 unsigned(ground->campaign.mapId), scenario);
    dialog->findChild<QTabWidget *>(QStringLiteral("tabWidget"))->setCurrentIndex(tab);
    return {ground, std::move(dialog)};
}

ManualWindow secondPrologue()
{
    ManualWindow opened = scenarioTab(onMap, scenarioWithBonuses, prologueTab);
    const auto *tabs = opened.window->findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    press(tabs->widget(prologueTab), "btn2");
    return opened;
}

// What is chosen on a page of the dialog of bonuses; the rows of its boxes.
struct BonusChoice
{
    const char *button;
    const char *box = nullptr;
    int row = 0;
    int value = 0; // of its first spin box, 0 to leave it
};

ManualWindow bonusPage(const BonusChoice &choice)
{
    auto ground = std::make_shared<OpenCampaign>(onMap);
    ScenarioData *scenario = &ground->campaign.scenarios.at(scenarioWithBonuses);
    auto dialog = std::make_unique<BonusDialog>(nullptr, scenario, unsigned(ground->campaign.mapId),
                                                firstPlayer, nullptr);
    press(dialog.get(), choice.button);
    const auto *pages = dialog->findChild<QStackedWidget *>(QStringLiteral("stackedWidget"));
    if (choice.box)
        pages->currentWidget()
            ->findChild<QComboBox *>(QLatin1String(choice.box))
            ->setCurrentIndex(choice.row);
    if (choice.value > 0)
        pages->currentWidget()->findChild<QSpinBox *>()->setValue(choice.value);
    return {ground, std::move(dialog)};
}

ManualWindow startingHeroDialog()
{
    auto ground = std::make_shared<OpenCampaign>(onMap);
    auto dialog = std::make_unique<StartingHeroDialog>(
        nullptr, &ground->campaign.scenarios.at(scenarioWithHeroes),
        unsigned(ground->campaign.mapId), &ground->rows, nullptr);
    return {ground, std::move(dialog)};
}

ManualWindow heroCrossoverDialog()
{
    auto ground = std::make_shared<OpenCampaign>(onMap);
    auto dialog = std::make_unique<HeroCrossoverDialog>(
        nullptr, &ground->campaign, &ground->campaign.scenarios.at(scenarioWithCrossovers),
        unsigned(ground->campaign.mapId), &ground->rows, nullptr);
    return {ground, std::move(dialog)};
}

ManualScene tabScene(const char *name, unsigned scenario, int tab)
{
    return {name, [=] { return scenarioTab(onMap, scenario, tab); }};
}

ManualScene bonusScene(const char *name, const BonusChoice &choice)
{
    return {name, [=] { return bonusPage(choice); }};
}

} // namespace

const std::vector<ManualScene> &manualScenes()
{
    static const std::vector<ManualScene> scenes{
        {"main-window", mainWindow},
        {"new-campaign-map", plainDialog<NewCampaign>},
        {"new-campaign-background", newCampaignWithoutMap},
        {"campaign-properties-map", [] { return campaignDialog<EditCampaign>(onMap); }},
        {"campaign-properties-background", [] { return campaignDialog<EditCampaign>(withoutMap); }},
        {"convert-to-background", [] { return campaignDialog<ConvertCampaign>(onMap); }},
        {"convert-to-map", [] { return campaignDialog<ConvertCampaign>(withoutMap); }},
        tabScene("scenario-general", scenarioWithCrossovers, generalTab),
        {"scenario-without-map", [] { return scenarioTab(withoutMap, 0, generalTab); }},
        tabScene("scenario-prologue", scenarioWithBonuses, prologueTab),
        {"scenario-second-prologue", secondPrologue},
        tabScene("scenario-epilogue", scenarioWithBonuses, epilogueTab),
        tabScene("scenario-crossover", scenarioWithCrossovers, crossoverTab),
        tabScene("start-bonus", scenarioWithBonuses, startOptionsTab),
        tabScene("start-crossover", scenarioWithCrossovers, startOptionsTab),
        tabScene("start-hero", scenarioWithHeroes, startOptionsTab),
        bonusScene("bonus-spell", {"spellBtn", "item1combobox", 5}),
        bonusScene("bonus-creature", {"creatureBtn", "creatureCombobox", 3, 20}),
        bonusScene("bonus-building", {"buildingBtn", "recipientCombobox", 4}),
        bonusScene("bonus-artifact", {"artifactBtn", "item1combobox", 7}),
        bonusScene("bonus-scroll", {"scrollBtn", "item1combobox", 9}),
        bonusScene("bonus-primary-skill", {"primSkillBtn", nullptr, 0, 2}),
        bonusScene("bonus-secondary-skill", {"secSkillBtn", "item1combobox", 2}),
        bonusScene("bonus-resource", {"resourceBtn", "datatypeBox", 6, 2500}),
        {"starting-hero", startingHeroDialog},
        {"hero-crossover", heroCrossoverDialog},
        {"delete-all", plainDialog<AskDeleteAll>},
        {"about", plainDialog<AboutCmpEd>},
    };
    return scenes;
}
