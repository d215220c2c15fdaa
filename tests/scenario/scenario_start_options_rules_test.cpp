// Which kinds of start options a scenario allows, and what a change of its map does to them.
#include "tests/scenario/start_options_tab.h"

namespace {

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

Q_DECLARE_METATYPE(Player)

class ScenarioStartOptionsRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init()
    {
        fixture->reset();
        nameHeroesAndColours();
    }

    void mapsAllowHeroes_data();
    void mapsAllowHeroes();
    void prerequisitesAllowCrossovers_data();
    void prerequisitesAllowCrossovers();
    void aKindThatIsLostGivesWayToBonuses_data();
    void aKindThatIsLostGivesWayToBonuses();
    void aKindThatIsLostTakesItsRowsUnseen();
    void withoutAMapBonusesAreLeft();
    void aKindThatCameBackIsAllowedButNotChosen();
    void aNewMapIsJudgedInOrder();
    void rowsThatTheFirstWalkStepsOverGoInTheSecond();
    void editorsMayAddRowsAfterANewMap();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

// The first player whom a human can play counts, and no other.
void ScenarioStartOptionsRulesTest::mapsAllowHeroes_data()
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

void ScenarioStartOptionsRulesTest::mapsAllowHeroes()
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
    StartOptionsTab open;
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

void ScenarioStartOptionsRulesTest::prerequisitesAllowCrossovers_data()
{
    QTest::addColumn<QBitArray>("required");
    QTest::addColumn<bool>("allowed");
    QBitArray first(3);
    first.setBit(0);
    QBitArray last(200);
    last.fill(true, 199, 200);
    QTest::newRow("no bits at all") << QBitArray() << false;
    QTest::newRow("none") << QBitArray(3) << false;
    QTest::newRow("the first") << first << true;
    QTest::newRow("one that isn't there") << last << true;
}

void ScenarioStartOptionsRulesTest::prerequisitesAllowCrossovers()
{
    QFETCH(QBitArray, required);
    QFETCH(bool, allowed);
    for (const bool players : {true, false}) {
        StartOptionsTab open;
        if (!players)
            giveMap(open.scenario(), MapHeader());
        open.scenario().prerequisites = required;
        open.load();
        QCOMPARE(open.allows(crossoverButton), allowed);
        QVERIFY(open.allows(bonusButton));
        QCOMPARE(open.allows(heroButton), players);
    }
}

void ScenarioStartOptionsRulesTest::aKindThatIsLostGivesWayToBonuses_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("reload"); // or the map changes while the tab shows the scenario
    for (const int type : {int(CrossoverKind), int(HeroKind)}) {
        QTest::addRow("type %d, at loading", type) << type << true;
        QTest::addRow("type %d, by an import", type) << type << false;
    }
}

void ScenarioStartOptionsRulesTest::aKindThatIsLostGivesWayToBonuses()
{
    QFETCH(int, type);
    QFETCH(bool, reload);
    StartOptionsTab open;
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
void ScenarioStartOptionsRulesTest::aKindThatIsLostTakesItsRowsUnseen()
{
    StartOptionsTab open;
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

void ScenarioStartOptionsRulesTest::withoutAMapBonusesAreLeft()
{
    StartOptionsTab open;
    offerCrossovers(open.scenario(), {{0, 0}, {1, 2}});
    open.load();
    QCOMPARE(open.rowCounts(), QList<int>({0, 2, 0}));
    open.scenario().mapHeader.reset();
    open.tab.updateScenarioUI();
    QVERIFY(open.allows(bonusButton));
    QVERIFY(!open.allows(crossoverButton));
    QVERIFY(!open.allows(heroButton));
    QCOMPARE(open.tab.getSelectedOption(), 1U);
    QCOMPARE(open.shownType(), int(BonusKind));
    QCOMPARE(open.rowCounts(), QList<int>({0, 0, 0}));
}

void ScenarioStartOptionsRulesTest::aKindThatCameBackIsAllowedButNotChosen()
{
    StartOptionsTab open;
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

void ScenarioStartOptionsRulesTest::aNewMapIsJudgedInOrder()
{
    StartOptionsTab open;
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

void ScenarioStartOptionsRulesTest::rowsThatTheFirstWalkStepsOverGoInTheSecond()
{
    for (const int type : {int(CrossoverKind), int(HeroKind)}) {
        StartOptionsTab open;
        if (type == HeroKind)
            offerHeroes(open.scenario(), {{1, 3}, {1, 0}, {0, 1}});
        else
            offerCrossovers(open.scenario(), {{1, 0}, {1, 2}, {0, 1}});
        open.load();
        QCOMPARE(open.rowCounts()[type - 1], 3);
        MapHeader other = heroMap();
        other.players[1].canHuman = 0;
        giveMap(open.scenario(), other);
        open.tab.updateScenarioUI();
        QCOMPARE(open.rowCounts()[type - 1], 1);
    }
}

void ScenarioStartOptionsRulesTest::editorsMayAddRowsAfterANewMap()
{
    StartOptionsTab open;
    open.load();
    auto *add = childOf<QPushButton>(open.editors()[1], "addButton");
    QVERIFY(!add->isEnabled()); // nothing is stored yet
    for (QWidget *editor : open.editors())
        childOf<QPushButton>(editor, "addButton")->setEnabled(false);
    open.tab.updateScenarioUI();
    for (QWidget *editor : open.editors())
        QVERIFY(childOf<QPushButton>(editor, "addButton")->isEnabledTo(editor));
}

QTEST_MAIN(ScenarioStartOptionsRulesTest)
#include "scenario_start_options_rules_test.moc"
