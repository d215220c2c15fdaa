// The tab with the start options: which kinds a map allows, what it shows and what it stores. The
// editors of the three kinds have tests of their own.
#include "scenario/hero_crossover.h"
#include "scenario/scenario_start_options.h"
#include "scenario/starting_bonus.h"
#include "scenario/starting_hero_options.h"
#include "tests/scenario/hero_map.h"
#include "tests/scenario/scenario_fixture.h"
#include "tests/scenario/shown_page.h"

#include <QLabel>
#include <QRadioButton>
#include <QStackedWidget>

namespace {

// As they are stored.
enum Type
{
    NoType,
    BonusKind,
    CrossoverKind,
    HeroKind
};

constexpr const char *bonusButton = "startingBonusBtn";
constexpr const char *crossoverButton = "heroCrosssoverBtn";
constexpr const char *heroButton = "startingHeroBtn";

CmpStartingBonus resource(int amount)
{
    return {7, QVariant::fromValue(BonusResource{2, amount})};
}

CmpStartingBonus building(int number)
{
    return {2, QVariant::fromValue(BonusBuilding{quint8(number)})};
}

StartingBonusSet bonuses(int player, const std::vector<CmpStartingBonus> &rows)
{
    StartingBonusSet set;
    set.player = quint8(player);
    set.bonuses = rows;
    return set;
}

// The tab by itself on the second scenario of a campaign, which requires the first, on heroMap().
class Tab
{
public:
    Tab() : tab(nullptr)
    {
        campaign = campaignOf(true, {"ford", "weir", "pass"});
        require(campaign, {"000", "100", "000"});
        giveMap(scenario(), heroMap());
        scenario().startOptions.reset();
        tab.resize(460, 400);
    }

    ScenarioData &scenario() { return campaign.scenarios[1]; }

    void load() { tab.initInfo(nullptr, &campaign, &scenario(), homeMap); }

    void show()
    {
        tab.show();
        if (!QTest::qWaitForWindowExposed(&tab))
            QTest::qFail("The tab never came.", __FILE__, __LINE__);
    }

    QRadioButton *button(const char *name) { return childOf<QRadioButton>(&tab, name); }

    // Of each kind in the order of their types.
    QList<QWidget *> editors()
    {
        return {tab.findChild<StartingBonus *>(), tab.findChild<HeroCrossover *>(),
                tab.findChild<StartingHeroOptions *>()};
    }
    QTableWidget *table(int type)
    {
        return childOf<QTableWidget>(editors()[type - 1], "tableWidget");
    }

    // The type whose editor is on show.
    int shownType()
    {
        return 1 +
               editors().indexOf(childOf<QStackedWidget>(&tab, "stackedWidget")->currentWidget());
    }

    QList<int> rowCounts()
    {
        return {table(1)->rowCount(), table(2)->rowCount(), table(3)->rowCount()};
    }

    bool allows(const char *name) { return button(name)->isEnabled(); }

    CampaignData campaign;
    ScenarioStartOptions tab;
};

struct Player
{
    int colour;
    bool human;
    bool generates;
    int heroes; // on the map
};

MapHeader mapOf(const QVector<Player> &players)
{
    MapHeader header;
    for (const Player &player : players) {
        PlayerAttributes &attributes = header.players[std::size_t(player.colour)];
        attributes.canHuman = player.human;
        attributes.generatesHero = player.generates;
        attributes.hasMainTown = player.generates;
        attributes.heroInfo.resize(std::size_t(player.heroes));
    }
    return header;
}

} // namespace

Q_DECLARE_METATYPE(CmpScenarioStartOptions)
Q_DECLARE_METATYPE(Player)

class ScenarioStartOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init()
    {
        fixture->reset();
        nameHeroesAndColours();
    }

    void controlsHaveTypesAndTexts_data();
    void controlsHaveTypesAndTexts();
    void editorsStandInOrder();
    void aScenarioWithoutMapIsEmptyAndStays_data();
    void aScenarioWithoutMapIsEmptyAndStays();
    void aFirstMapFindsTheCampaignKnown();
    void theStoredKindIsShown_data();
    void theStoredKindIsShown();
    void anUnknownTypeShowsBonusesAndIsReplaced();
    void anotherScenarioTakesThePlaceOfTheFirst();
    void clicksShowTheEditorAndNothingElse_data();
    void clicksShowTheEditorAndNothingElse();
    void mapsAllowHeroes_data();
    void mapsAllowHeroes();
    void prerequisitesAllowCrossovers_data();
    void prerequisitesAllowCrossovers();
    void aKindThatIsLostGivesWayToBonuses_data();
    void aKindThatIsLostGivesWayToBonuses();
    void aKindThatIsLostTakesItsRowsUnseen();
    void aKindThatCameBackIsAllowedButNotChosen();
    void aNewMapIsJudgedInOrder();
    void rowsThatTheFirstWalkStepsOverGoInTheSecond();
    void editorsMayAddRowsAfterANewMap();
    void theChosenKindIsAskedInOrder();
    void savingTellsWhetherOptionsDiffer_data();
    void savingTellsWhetherOptionsDiffer();
    void savingReplacesTheRecord();
    void withoutAChoiceNothingIsStored();
    void theStatusOfAllControlsIsSet();
    void enablingChoosesBonuses();
    void disablingEmptiesTheEditors();
    void anotherPlaceInMemoryIsUsedFromThenOn();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioStartOptionsTest::controlsHaveTypesAndTexts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("startingOptionsLabel") << QByteArray("QLabel") << "Starting options are:";
    QTest::newRow(bonusButton) << QByteArray("QRadioButton") << "Starting bonus options";
    QTest::newRow(crossoverButton) << QByteArray("QRadioButton") << "Hero crossover options";
    QTest::newRow(heroButton) << QByteArray("QRadioButton") << "Starting hero options";
    QTest::newRow("stackedWidget") << QByteArray("QStackedWidget") << "";
}

void ScenarioStartOptionsTest::controlsHaveTypesAndTexts()
{
    QFETCH(QByteArray, type);
    Tab open;
    open.load();
    open.show();
    auto *widget = childOf<QWidget>(&open.tab, QTest::currentDataTag());
    QVERIFY(widget->inherits(type));
    QVERIFY(widget->isVisible());
    QTEST(widget->property("text").toString(), "text");
    QCOMPARE(open.tab.windowTitle(), QString("Form"));
    QCOMPARE(open.tab.objectName(), QString("ScenarioStartOptions"));
}

void ScenarioStartOptionsTest::editorsStandInOrder()
{
    Tab open;
    auto *stack = childOf<QStackedWidget>(&open.tab, "stackedWidget");
    const QList<QWidget *> editors = open.editors();
    const int first = stack->indexOf(editors[0]);
    QVERIFY(first >= 0);
    QCOMPARE(stack->indexOf(editors[1]), first + 1);
    QCOMPARE(stack->indexOf(editors[2]), first + 2);
}

void ScenarioStartOptionsTest::aScenarioWithoutMapIsEmptyAndStays_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("none") << int(NoType);
    QTest::newRow("bonuses") << int(BonusKind);
    QTest::newRow("crossovers") << int(CrossoverKind);
    QTest::newRow("heroes") << int(HeroKind);
}

void ScenarioStartOptionsTest::aScenarioWithoutMapIsEmptyAndStays()
{
    QFETCH(int, type);
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    open.load();
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 3}));
    ScenarioData empty = open.scenario();
    empty.mapHeader.reset();
    empty.startOptions.reset();
    if (type == BonusKind)
        giveOptions(empty, BonusKind, bonuses(0, {resource(5)}));
    else if (type == CrossoverKind)
        offerCrossovers(empty, {{0, 0}});
    else if (type == HeroKind)
        offerHeroes(empty, {{0, 1}});
    const auto stored = empty.startOptions;
    TraceRecorder traces;
    open.tab.initInfo(nullptr, &open.campaign, &empty, homeMap);
    QVERIFY(TraceRecorder::messages().filter("OPTION TYPE").isEmpty());
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(!childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 0);
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(empty.startOptions, stored);
}

// The first scenario on show gets its first map: adding a crossover needs the campaign.
void ScenarioStartOptionsTest::aFirstMapFindsTheCampaignKnown()
{
    Tab open;
    open.scenario().mapHeader.reset();
    open.load();
    giveMap(open.scenario(), heroMap());
    open.tab.updateScenarioData(&open.scenario());
    open.tab.enableUI();
    open.tab.updateScenarioUI();
    open.show();
    clickOn(open.button(crossoverButton), QPoint(5, 8));
    QCOMPARE(open.shownType(), int(CrossoverKind));
    {
        NextDialog dialog(choose({{"scenarioCombobox", QStringLiteral("ford map — Alder Bay")}}));
        clickOn(childOf<QPushButton>(open.editors()[1], "addButton"));
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 1, 0}));
    QCOMPARE(open.table(CrossoverKind)->item(0, 0)->text(), QStringLiteral("ford map — Alder Bay"));
}

void ScenarioStartOptionsTest::theStoredKindIsShown_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QList<int>>("rows");
    QTest::newRow("none") << int(NoType) << QByteArray(bonusButton) << QList<int>{0, 0, 0};
    QTest::newRow("bonuses") << int(BonusKind) << QByteArray(bonusButton) << QList<int>{2, 0, 0};
    QTest::newRow("crossovers") << int(CrossoverKind) << QByteArray(crossoverButton)
                                << QList<int>{0, 1, 0};
    QTest::newRow("heroes") << int(HeroKind) << QByteArray(heroButton) << QList<int>{0, 0, 3};
}

void ScenarioStartOptionsTest::theStoredKindIsShown()
{
    QFETCH(int, type);
    QFETCH(QByteArray, button);
    Tab open;
    if (type == BonusKind)
        giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5), resource(6)}));
    else if (type == CrossoverKind)
        offerCrossovers(open.scenario(), {{0, 0}});
    else if (type == HeroKind)
        offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    TraceRecorder traces;
    open.load();
    const QStringList told = TraceRecorder::messages().filter("!!! OPTION TYPE");
    QCOMPARE(told, type == NoType ? QStringList()
                                  : QStringList{QStringLiteral("!!! OPTION TYPE %1").arg(type)});
    const int shown = type == NoType ? int(BonusKind) : type;
    QCOMPARE(open.shownType(), shown);
    QVERIFY(open.button(button)->isChecked());
    QCOMPARE(open.tab.getSelectedOption(), unsigned(shown));
    QTEST(open.rowCounts(), "rows");
    QCOMPARE(open.tab.getOptionCount(), unsigned(open.rowCounts()[shown - 1]));
    QCOMPARE(open.tab.saveScenarioInfo(), type == NoType);
    QVERIFY(!open.tab.saveScenarioInfo());
}

void ScenarioStartOptionsTest::anUnknownTypeShowsBonusesAndIsReplaced()
{
    Tab open;
    giveOptions(open.scenario(), 9, bonuses(1, {resource(5)}));
    TraceRecorder traces;
    open.load();
    QVERIFY(TraceRecorder::messages().contains("!!! OPTION TYPE 9"));
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions->optionType, 1U);
    QVERIFY(open.scenario().startOptions->optionData.value<StartingBonusSet>().bonuses.empty());
}

void ScenarioStartOptionsTest::anotherScenarioTakesThePlaceOfTheFirst()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    open.load();
    QCOMPARE(open.shownType(), int(HeroKind));
    ScenarioData other = open.scenario();
    giveOptions(other, BonusKind, bonuses(0, {resource(1)}));
    open.tab.initInfo(nullptr, &open.campaign, &other, homeMap);
    QCOMPARE(open.shownType(), int(BonusKind));
    QVERIFY(open.button(bonusButton)->isChecked());
    QCOMPARE(open.rowCounts(), QList<int>({1, 0, 0}));
}

void ScenarioStartOptionsTest::clicksShowTheEditorAndNothingElse_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow(bonusButton) << int(BonusKind);
    QTest::newRow(crossoverButton) << int(CrossoverKind);
    QTest::newRow(heroButton) << int(HeroKind);
}

void ScenarioStartOptionsTest::clicksShowTheEditorAndNothingElse()
{
    QFETCH(int, type);
    Tab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5), resource(6)}));
    const auto stored = open.scenario().startOptions;
    open.load();
    open.show();
    clickOn(open.button(type == HeroKind ? bonusButton : heroButton), QPoint(5, 8));
    TraceRecorder traces;
    clickOn(open.button(QTest::currentDataTag()), QPoint(5, 8));
    QCOMPARE(TraceRecorder::messages().size(), 1);
    QCOMPARE(open.shownType(), type);
    QCOMPARE(open.tab.getSelectedOption(), unsigned(type));
    QCOMPARE(open.tab.getOptionCount(), type == BonusKind ? 2U : 0U);
    QCOMPARE(open.rowCounts(), QList<int>({2, 0, 0}));
    QCOMPARE(open.scenario().startOptions, stored);
}

// The first player whom a human can play counts, and no other.
void ScenarioStartOptionsTest::mapsAllowHeroes_data()
{
    QTest::addColumn<QVector<Player>>("players");
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<QStringList>("told");
    const auto row = [](const char *name, const QVector<Player> &players, bool allowed,
                        const QStringList &told) {
        QTest::newRow(name) << players << allowed << (QStringList{"Good header"} + told);
    };
    const QString generates = "Is human:  1";
    const QString bare = "Is human:  0";
    const QString offered = "ALLOW STARTING HERO";
    row("nobody", {}, false, {});
    row("computers alone", {{0, false, true, 2}, {5, false, false, 1}}, false, {});
    row("a hero in town", {{0, true, true, 0}}, true, {generates});
    row("a hero in town and on the map", {{0, true, true, 3}}, true, {generates});
    row("a hero on the map", {{0, true, false, 1}}, true, {bare, "Size:  1", offered});
    row("three heroes on the map", {{7, true, false, 3}}, true, {bare, "Size:  3", offered});
    row("no hero", {{0, true, false, 0}}, false, {bare, "Size:  0"});
    row("no hero, and a later player with all", {{2, true, false, 0}, {4, true, true, 2}}, false,
        {bare, "Size:  0"});
    row("a hero, and a later player without", {{2, true, true, 0}, {4, true, false, 0}}, true,
        {generates});
    row("a computer without, a human with", {{0, false, false, 0}, {1, true, false, 1}}, true,
        {bare, "Size:  1", offered});
    row("a computer with, a human without", {{0, false, true, 2}, {1, true, false, 0}}, false,
        {bare, "Size:  0"});
}

void ScenarioStartOptionsTest::mapsAllowHeroes()
{
    QFETCH(QVector<Player>, players);
    QFETCH(bool, allowed);
    QFETCH(QStringList, told);
    const QStringList kinds{"Good header", "Is human: ", "Size: ", "ALLOW STARTING HERO"};
    const auto ours = [&] {
        QStringList messages;
        for (const QString &message : TraceRecorder::messages()) {
            for (const QString &kind : kinds) {
                if (message.startsWith(kind))
                    messages << message;
            }
        }
        return messages;
    };
    Tab open;
    giveMap(open.scenario(), mapOf(players));
    TraceRecorder traces;
    open.load();
    QCOMPARE(ours(), told);
    QCOMPARE(open.allows(heroButton), allowed);
    QVERIFY(open.allows(bonusButton));
    QVERIFY(open.allows(crossoverButton));
    TraceRecorder::messages().clear();
    open.tab.updateScenarioUI();
    QCOMPARE(ours(), told);
    QCOMPARE(open.allows(heroButton), allowed);
}

void ScenarioStartOptionsTest::prerequisitesAllowCrossovers_data()
{
    QTest::addColumn<QBitArray>("required");
    QTest::addColumn<bool>("allowed");
    QBitArray first(3);
    first.setBit(0);
    QBitArray last(200);
    last.setBit(199);
    QTest::newRow("no bits at all") << QBitArray() << false;
    QTest::newRow("none") << QBitArray(3) << false;
    QTest::newRow("the first") << first << true;
    QTest::newRow("one that isn't there") << last << true;
}

void ScenarioStartOptionsTest::prerequisitesAllowCrossovers()
{
    QFETCH(QBitArray, required);
    QFETCH(bool, allowed);
    for (const bool players : {true, false}) {
        Tab open;
        if (!players)
            giveMap(open.scenario(), MapHeader());
        open.scenario().prerequisites = required;
        open.load();
        QCOMPARE(open.allows(crossoverButton), allowed);
        QVERIFY(open.allows(bonusButton));
        QCOMPARE(open.allows(heroButton), players);
    }
}

void ScenarioStartOptionsTest::aKindThatIsLostGivesWayToBonuses_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("reload"); // or the map changes while the tab shows the scenario
    for (const int type : {int(CrossoverKind), int(HeroKind)}) {
        QTest::addRow("type %d, at loading", type) << type << true;
        QTest::addRow("type %d, by an import", type) << type << false;
    }
}

void ScenarioStartOptionsTest::aKindThatIsLostGivesWayToBonuses()
{
    QFETCH(int, type);
    QFETCH(bool, reload);
    Tab open;
    if (type == HeroKind)
        offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {2, 4}});
    else
        offerCrossovers(open.scenario(), {{0, 0}, {1, 2}});
    if (!reload)
        open.load();
    giveMap(open.scenario(), mapOf({{0, true, false, 0}}));
    open.scenario().prerequisites = QBitArray(3);
    if (reload)
        open.load();
    else
        open.tab.updateScenarioUI();
    QCOMPARE(open.shownType(), int(BonusKind));
    QVERIFY(open.button(bonusButton)->isChecked());
    QVERIFY(!open.allows(heroButton));
    QVERIFY(!open.allows(crossoverButton));
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions->optionType, 1U);
    QVERIFY(open.scenario().startOptions->optionData.value<StartingBonusSet>().bonuses.empty());
    QVERIFY(!open.tab.saveScenarioInfo());
}

// The kind isn't on show, but its editor has rows from a choice that was taken back.
void ScenarioStartOptionsTest::aKindThatIsLostTakesItsRowsUnseen()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    open.show();
    clickOn(open.button(crossoverButton), QPoint(5, 8));
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 2}));
    giveMap(open.scenario(), mapOf({{0, true, false, 0}}));
    open.tab.updateScenarioUI();
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QCOMPARE(open.shownType(), int(CrossoverKind));
    QVERIFY(open.button(crossoverButton)->isChecked());
}

void ScenarioStartOptionsTest::aKindThatCameBackIsAllowedButNotChosen()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    giveMap(open.scenario(), mapOf({{0, true, false, 0}}));
    open.tab.updateScenarioUI();
    giveMap(open.scenario(), heroMap());
    QVERIFY(!open.allows(heroButton));
    open.tab.updateScenarioUI();
    QVERIFY(open.allows(heroButton));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
}

void ScenarioStartOptionsTest::aNewMapIsJudgedInOrder()
{
    Tab open;
    open.load();
    const auto judged = [&] {
        TraceRecorder::messages().clear();
        open.tab.updateScenarioUI();
        QStringList messages;
        for (const QString &message : TraceRecorder::messages()) {
            if (message.startsWith("Validate") || message.startsWith("VALIDATE2: "))
                messages << message.section(':', 0, 0);
        }
        return messages;
    };
    TraceRecorder traces;
    QCOMPARE(judged(), QStringList({"Validate", "VALIDATE2", "VALIDATE2", "Validate"}));
    open.scenario().prerequisites = QBitArray(3);
    QCOMPARE(judged(), QStringList({"Validate", "VALIDATE2", "Validate"}));
    giveMap(open.scenario(), MapHeader());
    QCOMPARE(judged(), QStringList({"VALIDATE2", "Validate"}));
}

void ScenarioStartOptionsTest::rowsThatTheFirstWalkStepsOverGoInTheSecond()
{
    for (const int type : {int(CrossoverKind), int(HeroKind)}) {
        Tab open;
        if (type == HeroKind)
            offerHeroes(open.scenario(), {{0, 1}, {1, 3}, {1, 0}});
        else
            offerCrossovers(open.scenario(), {{0, 0}, {0, 2}, {1, 1}});
        open.load();
        QCOMPARE(open.rowCounts()[type - 1], 3);
        MapHeader other = heroMap();
        other.players[0].canHuman = 0;
        other.players[1].canHuman = type == HeroKind;
        other.players[2].canHuman = 1;
        giveMap(open.scenario(), other);
        open.tab.updateScenarioUI();
        QCOMPARE(open.rowCounts()[type - 1], type == HeroKind ? 2 : 0);
    }
}

void ScenarioStartOptionsTest::editorsMayAddRowsAfterANewMap()
{
    Tab open;
    open.load();
    auto *add = childOf<QPushButton>(open.editors()[1], "addButton");
    QVERIFY(!add->isEnabled()); // nothing is stored yet
    open.tab.updateScenarioUI();
    for (QWidget *editor : open.editors())
        QVERIFY(childOf<QPushButton>(editor, "addButton")->isEnabledTo(editor));
}

void ScenarioStartOptionsTest::theChosenKindIsAskedInOrder()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    const QList<QRadioButton *> buttons{open.button(bonusButton), open.button(heroButton),
                                        open.button(crossoverButton)};
    for (QRadioButton *button : buttons)
        button->setAutoExclusive(false);
    for (QRadioButton *button : buttons)
        button->setChecked(true);
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
    buttons[0]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 3U);
    QCOMPARE(open.tab.getOptionCount(), 2U);
    buttons[1]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 2U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
    buttons[2]->setChecked(false);
    QCOMPARE(open.tab.getSelectedOption(), 0U);
    QCOMPARE(open.tab.getOptionCount(), 0U);
}

// What is loaded into the tab, and what the scenario held when the tab is saved.
void ScenarioStartOptionsTest::savingTellsWhetherOptionsDiffer_data()
{
    QTest::addColumn<CmpScenarioStartOptions>("shown");
    QTest::addColumn<CmpScenarioStartOptions>("held");
    QTest::addColumn<bool>("differ");
    const auto bonus = [](int player, const std::vector<CmpStartingBonus> &rows) {
        return CmpScenarioStartOptions{BonusKind, QVariant::fromValue(bonuses(player, rows))};
    };
    const auto heroes = [](const std::vector<StartingHero> &rows) {
        return CmpScenarioStartOptions{HeroKind, QVariant::fromValue(StartingHeroSet{rows})};
    };
    const auto crossovers = [](const std::vector<CmpHeroCrossover> &rows) {
        return CmpScenarioStartOptions{CrossoverKind, QVariant::fromValue(HeroCrossoverSet{rows})};
    };
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
    const CmpScenarioStartOptions twoBonuses = bonus(1, {resource(5), resource(6)});
    const CmpScenarioStartOptions twoHeroes = heroes({{0, 1}, {1, 3}});
    const CmpScenarioStartOptions twoCrossovers = crossovers({{0, 0}, {1, 2}});
    row("the same bonuses") << twoBonuses << bonus(1, {resource(5), resource(6)}) << false;
    row("no bonuses") << bonus(1, {}) << bonus(0, {}) << false;
    row("another player") << twoBonuses << bonus(2, {resource(5), resource(6)}) << false;
    row("other bonuses") << twoBonuses << bonus(1, {resource(5), resource(7)}) << true;
    row("bonuses turned round") << twoBonuses << bonus(1, {resource(6), resource(5)}) << true;
    row("fewer bonuses") << twoBonuses << bonus(1, {resource(5)}) << true;
    row("more bonuses") << twoBonuses << bonus(1, {resource(5), resource(6), resource(7)}) << true;
    row("other buildings") << bonus(1, {building(1)}) << bonus(1, {building(2)}) << false;
    row("the same heroes") << twoHeroes << heroes({{0, 1}, {1, 3}}) << false;
    row("another hero") << twoHeroes << heroes({{0, 1}, {1, 9}}) << true;
    row("another player's hero") << twoHeroes << heroes({{0, 1}, {2, 3}}) << true;
    row("heroes turned round") << twoHeroes << heroes({{1, 3}, {0, 1}}) << true;
    row("fewer heroes") << twoHeroes << heroes({{0, 1}}) << true;
    row("the same crossovers") << twoCrossovers << crossovers({{0, 0}, {1, 2}}) << false;
    row("another source") << twoCrossovers << crossovers({{0, 0}, {1, 1}}) << true;
    row("another player's source") << twoCrossovers << crossovers({{0, 0}, {2, 2}}) << true;
    row("crossovers turned round") << twoCrossovers << crossovers({{1, 2}, {0, 0}}) << true;
    row("fewer crossovers") << twoCrossovers << crossovers({{0, 0}}) << true;
    row("heroes for bonuses") << bonus(1, {}) << heroes({}) << true;
    row("crossovers for heroes") << heroes({}) << crossovers({}) << true;
    row("bonuses for crossovers") << crossovers({}) << bonus(0, {}) << true;
    row("data of another kind") << twoHeroes
                                << CmpScenarioStartOptions{HeroKind,
                                                           QVariant::fromValue(bonuses(1, {}))}
                                << true;
}

void ScenarioStartOptionsTest::savingTellsWhetherOptionsDiffer()
{
    QFETCH(CmpScenarioStartOptions, shown);
    QFETCH(CmpScenarioStartOptions, held);
    Tab open;
    open.scenario().startOptions = std::make_shared<CmpScenarioStartOptions>(shown);
    open.load();
    open.scenario().startOptions = std::make_shared<CmpScenarioStartOptions>(held);
    QTEST(open.tab.saveScenarioInfo(), "differ");
    QCOMPARE(open.scenario().startOptions->optionType, shown.optionType);
    QVERIFY(!open.tab.saveScenarioInfo());
    open.scenario().startOptions.reset();
    QVERIFY(open.tab.saveScenarioInfo());
}

// The document's scenario and the dialog's copy share their record.
void ScenarioStartOptionsTest::savingReplacesTheRecord()
{
    Tab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    const auto before = open.scenario().startOptions;
    open.load();
    QVERIFY(!open.tab.saveScenarioInfo());
    QVERIFY(open.scenario().startOptions != before);
    const auto stored = open.scenario().startOptions->optionData.value<StartingBonusSet>();
    QCOMPARE(int(stored.player), 1);
    QCOMPARE(stored.bonuses.size(), std::size_t(1));
    QCOMPARE(stored.bonuses[0].bonusData.value<BonusResource>().amount, 5);
    open.table(BonusKind)->removeRow(0);
    QVERIFY(open.tab.saveScenarioInfo());
    QCOMPARE(before->optionData.value<StartingBonusSet>().bonuses.size(), std::size_t(1));
}

void ScenarioStartOptionsTest::withoutAChoiceNothingIsStored()
{
    Tab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    const auto before = open.scenario().startOptions;
    open.load();
    open.button(bonusButton)->setAutoExclusive(false);
    open.button(bonusButton)->setChecked(false);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions, before);
}

void ScenarioStartOptionsTest::theStatusOfAllControlsIsSet()
{
    Tab open;
    open.load();
    for (const bool status : {false, true}) {
        open.tab.setUIstatus(status);
        for (const char *name :
             {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
            QCOMPARE(childOf<QWidget>(&open.tab, name)->isEnabled(), status);
        }
    }
}

void ScenarioStartOptionsTest::enablingChoosesBonuses()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    open.tab.setUIstatus(false);
    childOf<QComboBox>(&open.tab, "playerCombobox")->clear();
    open.tab.enableUI();
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 4);
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 2}));
}

void ScenarioStartOptionsTest::disablingEmptiesTheEditors()
{
    Tab open;
    offerHeroes(open.scenario(), {{0, 1}, {1, 3}});
    open.load();
    for (const int type : {int(BonusKind), int(CrossoverKind), int(HeroKind)})
        open.table(type)->setRowCount(2);
    open.tab.disableUI();
    for (const char *name :
         {bonusButton, crossoverButton, heroButton, "stackedWidget", "startingOptionsLabel"}) {
        QVERIFY2(!childOf<QWidget>(&open.tab, name)->isEnabled(), name);
    }
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
    QCOMPARE(open.shownType(), int(BonusKind));
    QVERIFY(open.button(bonusButton)->isChecked());
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 0);
}

void ScenarioStartOptionsTest::anotherPlaceInMemoryIsUsedFromThenOn()
{
    Tab open;
    giveOptions(open.scenario(), BonusKind, bonuses(1, {resource(5)}));
    open.load();
    ScenarioData moved = open.scenario();
    const auto before = open.scenario().startOptions;
    giveMap(moved, mapOf({{6, true, true, 0}}));
    open.tab.updateScenarioData(&moved);
    QCOMPARE(open.rowCounts(), QList<int>({1, 0, 0}));
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 4);
    open.tab.updateScenarioUI(); // in all three editors
    QCOMPARE(childOf<QComboBox>(&open.tab, "playerCombobox")->count(), 1);
    QVERIFY(!open.tab.saveScenarioInfo());
    QCOMPARE(open.scenario().startOptions, before);
    QVERIFY(moved.startOptions != before);
}

QTEST_MAIN(ScenarioStartOptionsTest)
#include "scenario_start_options_test.moc"
