// Which rows of the page of starting bonuses survive a change of player or map.
#include "tests/scenario/bonus_page.h"

#include <QtTest>

class StartingBonusValidationTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void aRowRemovedByTheMapAllowsNoOtherYet();
    void aChoiceOfPlayerAllowsAnotherRow();
    void aChoiceOfPlayerForbidsEditingWithoutACurrentRow();
    void aChoiceOfPlayerLeavesEditingOfTheCurrentRow();
    void anotherPlayersHeroIsGoneForGood();
    void aHeroOfBothPlayersStays();
    void noChoiceOfPlayerJudgesNothing();
    void theStrongestHeroSurvivesEverything();
    void theGeneratedHeroNeedsFlagAndTown_data();
    void theGeneratedHeroNeedsFlagAndTown();
    void aBuildingFollowsTheTown_data();
    void aBuildingFollowsTheTown();
    void resourcesSurviveEverything();
    void rowsAreJudgedForThePlayerWhoIsGone();
    void thePlayerOnShowStaysThroughAChangeOfMap();
    void aPlayerlessMapLeavesTheListEmpty();
    void rowsWithoutAnItemArePassedOver();
    void numbersOfDamagedFilesHarmNothing();
};

void StartingBonusValidationTest::init()
{
    fillNameTables();
}

void StartingBonusValidationTest::aRowRemovedByTheMapAllowsNoOtherYet()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold, strongest});
    test.scenario.mapHeader = mapWithPlayers({{1, human()}});
    test.page.validateBonuses();
    QCOMPARE(test.texts(), QStringList({goldText, strongestText}));
    QVERIFY(!test.button("addButton")->isEnabled());
    test.page.updateUI();
    QVERIFY(test.button("addButton")->isEnabled());
}

void StartingBonusValidationTest::aChoiceOfPlayerAllowsAnotherRow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda, gold, strongest});
    test.page.validateForPlayer(2);
    QCOMPARE(test.texts(), QStringList({goldText, strongestText}));
    QVERIFY(!test.button("addButton")->isEnabled());
    test.choosePlayer("Tan");
    QVERIFY(test.button("addButton")->isEnabled());
}

void StartingBonusValidationTest::aChoiceOfPlayerForbidsEditingWithoutACurrentRow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda});
    test.clickRow(0);
    QCOMPARE(test.enabledButtons(), QString("add edit remove"));
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList());
    QCOMPARE(test.enabledButtons(), QString("add"));
}

void StartingBonusValidationTest::aChoiceOfPlayerLeavesEditingOfTheCurrentRow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda, gold});
    test.clickRow(1);
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList({goldText}));
    QCOMPARE(test.table()->currentRow(), 0);
    QCOMPARE(test.enabledButtons(), QString("add edit remove"));
}

void StartingBonusValidationTest::anotherPlayersHeroIsGoneForGood()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda, gold});
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList({goldText}));
    test.choosePlayer("Blue");
    QCOMPARE(test.texts(), QStringList({goldText}));
}

void StartingBonusValidationTest::aHeroOfBothPlayersStays()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, humanWithHulda()}}, 1, {hulda});
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList({huldaText}));
}

void StartingBonusValidationTest::noChoiceOfPlayerJudgesNothing()
{
    BonusPage test;
    test.load({{2, humanWithHulda()}}, 2, {hulda});
    test.players()->setCurrentIndex(-1);
    QCOMPARE(test.texts(), QStringList({huldaText}));
}

void StartingBonusValidationTest::theStrongestHeroSurvivesEverything()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {strongest});
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList({strongestText}));
    test.scenario.mapHeader = mapWithPlayers({});
    test.page.validateBonuses();
    QCOMPARE(test.texts(), QStringList({strongestText}));
    test.scenario.mapHeader = nullptr;
    test.page.validateBonuses();
    QCOMPARE(test.texts(), QStringList({strongestText}));
}

void StartingBonusValidationTest::theGeneratedHeroNeedsFlagAndTown_data()
{
    QTest::addColumn<int>("generatesHero");
    QTest::addColumn<int>("hasMainTown");
    QTest::addColumn<bool>("kept");
    QTest::newRow("both") << 1 << 1 << true;
    QTest::newRow("no main town") << 1 << 0 << false;
    QTest::newRow("no flag") << 0 << 1 << false;
    QTest::newRow("neither") << 0 << 0 << false;
}

void StartingBonusValidationTest::theGeneratedHeroNeedsFlagAndTown()
{
    QFETCH(int, generatesHero);
    QFETCH(int, hasMainTown);
    QFETCH(bool, kept);
    BonusPage test;
    PlayerAttributes player = playerWithTown(2);
    player.generatesHero = quint8(generatesHero);
    player.hasMainTown = quint8(hasMainTown);
    test.load({{1, player}}, 1, {generated});
    if (!kept)
        QTest::ignoreMessage(QtDebugMsg, "Bad (no generated hero)");
    test.page.validateBonuses();
    QCOMPARE(test.texts(), kept ? QStringList({generatedText}) : QStringList());
}

void StartingBonusValidationTest::aBuildingFollowsTheTown_data()
{
    QTest::addColumn<int>("hasMainTown");
    QTest::addColumn<int>("townType");
    QTest::addColumn<int>("building");
    QTest::addColumn<QStringList>("texts");
    const QStringList gone;
    QTest::newRow("renamed") << 1 << 0 << 5 << QStringList{"Build Tavern at Main Town"};
    QTest::newRow("same town") << 1 << 2 << 5 << QStringList{"Build Taproom at Main Town"};
    QTest::newRow("town without the name") << 1 << 3 << 5 << QStringList{"Build  at Main Town"};
    QTest::newRow("random town") << 1 << 255 << 5 << gone;
    QTest::newRow("no town") << 0 << 0 << 5 << gone;
    QTest::newRow("not in this town") << 1 << 0 << 10 << gone;
    QTest::newRow("in this town") << 1 << 2 << 10 << QStringList{"Build Harbour at Main Town"};
    QTest::newRow("in no town") << 1 << 2 << 16 << gone;
}

void StartingBonusValidationTest::aBuildingFollowsTheTown()
{
    QFETCH(int, hasMainTown);
    QFETCH(int, townType);
    QFETCH(int, building);
    BonusPage test;
    test.load({{1, playerWithTown(2)}}, 1, {bonusWith(2, BonusBuilding{quint8(building)})});
    PlayerAttributes player = playerWithTown(unsigned(townType));
    player.hasMainTown = quint8(hasMainTown);
    test.scenario.mapHeader = mapWithPlayers({{1, player}});
    test.page.validateBonuses();
    QTEST(test.texts(), "texts");
}

void StartingBonusValidationTest::resourcesSurviveEverything()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {gold});
    test.choosePlayer("Tan");
    test.scenario.mapHeader = mapWithPlayers({{4, human()}});
    test.page.validateBonuses();
    test.scenario.mapHeader = nullptr;
    test.page.validateBonuses();
    QCOMPARE(test.texts(), QStringList({goldText}));
}

// The new map leaves player 2 its hero, though no human can play it, and gives the first that one
// can play none.
void StartingBonusValidationTest::rowsAreJudgedForThePlayerWhoIsGone()
{
    BonusPage test;
    test.load({{1, human()}, {2, humanWithHulda()}}, 2, {hulda});
    PlayerAttributes gone = humanWithHulda();
    gone.canHuman = 0;
    test.scenario.mapHeader = mapWithPlayers({{1, human()}, {2, gone}, {4, human()}});
    test.page.validateBonuses();
    QCOMPARE(test.players()->currentText(), QString("Blue"));
    QCOMPARE(test.texts(), QStringList({huldaText}));
    test.choosePlayer("Orange");
    QCOMPARE(test.texts(), QStringList());
}

void StartingBonusValidationTest::thePlayerOnShowStaysThroughAChangeOfMap()
{
    BonusPage test;
    test.load({{1, human()}, {2, humanWithHulda()}}, 2, {hulda});
    test.scenario.mapHeader =
        mapWithPlayers({{0, human()}, {1, human()}, {2, humanWithHulda()}, {3, human()}});
    test.page.validateBonuses();
    QCOMPARE(test.players()->count(), 4);
    QCOMPARE(test.players()->currentText(), QString("Tan"));
    QCOMPARE(test.texts(), QStringList({huldaText}));
}

void StartingBonusValidationTest::aPlayerlessMapLeavesTheListEmpty()
{
    BonusPage test;
    test.load({{2, humanWithHulda()}}, 2, {hulda, gold});
    PlayerAttributes first = humanWithHulda();
    first.canHuman = 0;
    test.scenario.mapHeader = mapWithPlayers({{0, first}});
    test.page.validateBonuses();
    QCOMPARE(test.players()->count(), 0);
    QCOMPARE(test.texts(), QStringList({goldText}));

    test.store(0, {hulda});
    test.page.initInfo(&test.scenario, 24);
    test.page.validateBonuses(); // no choice reads as player 0, who has the hero
    QCOMPARE(test.texts(), QStringList({huldaText}));
}

void StartingBonusValidationTest::rowsWithoutAnItemArePassedOver()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda, hulda, gold, hulda});
    delete test.table()->takeItem(1, 0);
    test.page.validateForPlayer(2);
    QCOMPARE(test.texts(), QStringList({"-", goldText}));
    QCOMPARE(test.saved().bonuses.size(), std::size_t(1));
    QCOMPARE(test.page.getOptionCount(), 2u);
}

void StartingBonusValidationTest::numbersOfDamagedFilesHarmNothing()
{
    BonusPage test;
    test.load({{1, playerWithTown(200)}, {2, human()}}, 200,
              {bonusWith(0, BonusSpell{0xFFFF, 255}), bonusWith(1, BonusCreature{0x1234, 65535, 1}),
               bonusWith(2, BonusBuilding{255}), bonusWith(3, BonusArtifact{0xFFFC, 65535}),
               bonusWith(4, BonusSpell{7, 1}), bonusWith(7, BonusResource{255, -1})});
    QCOMPARE(test.texts(),
             QStringList({"Give  spell to Random hero (in town)", "Give 1  to  (in town)",
                          "Build  at Main Town", "Give  to  (in town)",
                          "Give Gust Spell Scroll to Aldra (in town)", "Receive -1 "}));
    test.choosePlayer("Blue");
    QCOMPARE(test.texts(), QStringList({"Build  at Main Town", "Receive -1 "}));
    test.page.validateForPlayer(200);
    QCOMPARE(test.texts(), QStringList({"Receive -1 "}));
}

QTEST_MAIN(StartingBonusValidationTest)
#include "starting_bonus_validation_test.moc"
