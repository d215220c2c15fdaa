// The page of starting bonuses: what it loads, shows and saves.
#include "scenario/starting_bonus.h"

#include "tests/scenario/bonus_page.h"
#include "tests/support/longest_wait.h"
#include "tests/support/report_recorder.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QLayout>
#include <QToolTip>
#include <QtTest>

class StartingBonusTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void controlsHaveTheirTexts_data();
    void controlsHaveTheirTexts();
    void theTableIsAPlainList();
    void startsEmpty();
    void offersThePlayersAHumanCanPlay();
    void playersWithoutAColourAreOfferedToo();
    void loadsTheBonuses();
    void loadedRowsAreNotJudged();
    void loadsNothingOfAnotherKind_data();
    void loadsNothingOfAnotherKind();
    void loadingAnotherScenarioTakesTheRowsAway();
    void aPlayerThatNobodyCanPlayIsNoChoice();
    void rowsAreNamedForThePlayerTheyAreStoredFor();
    void anUnknownTypeEndsTheProcess();
    void savesTheRowsInTheirOrder();
    void savesPlayerZeroWithoutPlayers();
    void listingPlayersHandsTheRowsToTheFirst();
    void withoutAMapNoPlayersAreListed();
    void clearingTakesRowsAndPlayersAway();
    void theScenarioMayMove();
    void rightClicksDoNothingToTheList();
    void aTextThatIsCutIsToldWhole();
};

void StartingBonusTest::init()
{
    fillNameTables();
}

void StartingBonusTest::controlsHaveTheirTexts_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("text");
    QTest::newRow("addButton") << QByteArray("addButton") << "Add";
    QTest::newRow("editButton") << QByteArray("editButton") << "Edit";
    QTest::newRow("removeButton") << QByteArray("removeButton") << "Remove";
    QTest::newRow("label") << QByteArray("label") << "Player position:";
}

void StartingBonusTest::controlsHaveTheirTexts()
{
    QFETCH(QByteArray, name);
    BonusPage test;
    QTEST(childOf<QWidget>(&test.page, name)->property("text").toString(), "text");
    QCOMPARE(test.page.windowTitle(), QString("Form"));
    QCOMPARE(test.table()->columnCount(), 1);
    QCOMPARE(test.table()->horizontalHeaderItem(0)->text(), QString("Starting bonus option"));
    for (const char *container : {"layoutWidget", "layoutWidget1"})
        QVERIFY(childOf<QWidget>(&test.page, container)->isVisible());
    for (const char *layout : {"horizontalLayout", "gridLayout"})
        QVERIFY(test.page.findChild<QLayout *>(layout));
}

void StartingBonusTest::theTableIsAPlainList()
{
    BonusPage test;
    const QTableWidget *table = test.table();
    QVERIFY(!table->showGrid());
    QVERIFY(!table->verticalHeader()->isVisible());
    QCOMPARE(table->verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    QCOMPARE(table->verticalHeader()->defaultSectionSize(), 20);
    QVERIFY(table->horizontalHeader()->isVisible());
    QVERIFY(table->horizontalHeader()->defaultAlignment() & Qt::AlignLeft);
    QVERIFY(table->horizontalHeader()->stretchLastSection());
    QCOMPARE(table->horizontalHeader()->font().pointSize(), 8);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectItems);
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
}

void StartingBonusTest::startsEmpty()
{
    BonusPage test;
    QCOMPARE(test.page.getOptionCount(), 0u);
    QCOMPARE(test.players()->count(), 0);
    QCOMPARE(test.enabledButtons(), QString());
}

void StartingBonusTest::offersThePlayersAHumanCanPlay()
{
    BonusPage test;
    PlayerAttributes computer;
    computer.canComputer = 1;
    PlayerAttributes byAnotherNumber;
    byAnotherNumber.canHuman = 2;
    test.load({{7, human()}, {1, human()}, {2, computer}, {5, byAnotherNumber}}, 5, {});
    QCOMPARE(test.players()->count(), 3);
    const QStringList names{"Blue", "Purple", "Pink"};
    const QList<int> numbers{1, 5, 7};
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(test.players()->itemText(i), names[i]);
        QCOMPARE(test.players()->itemData(i), QVariant(numbers[i]));
        QCOMPARE(int(test.players()->itemData(i).type()), int(QMetaType::Int));
    }
    QCOMPARE(test.players()->currentText(), QString("Purple"));
}

void StartingBonusTest::playersWithoutAColourAreOfferedToo()
{
    EditorData::colors.resize(2);
    BonusPage test;
    test.load({{1, human()}, {6, human()}}, 6, {});
    QCOMPARE(textsOf(test.players()), QStringList({"Blue", ""}));
    QCOMPARE(int(test.saved().player), 6);
}

void StartingBonusTest::loadsTheBonuses()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold});
    QCOMPARE(test.texts(), QStringList({huldaText, goldText}));
    QCOMPARE(test.rowHeights(), QList<int>({17, 17}));
    QCOMPARE(test.page.getOptionCount(), 2u);
    QCOMPARE(test.enabledButtons(), QString("add"));
    const QTableWidgetItem *item = test.item(0, 0);
    QVERIFY(!(item->flags() & Qt::ItemIsEditable));
    QCOMPARE(item->data(Qt::UserRole).userType(), qMetaTypeId<BonusSpell>());
    QCOMPARE(int(item->data(Qt::UserRole).value<BonusSpell>().heroId), 7);
    QCOMPARE(item->data(Qt::UserRole + 1).userType(), int(QMetaType::UChar));
    QCOMPARE(test.item(1, 0)->data(Qt::UserRole + 1).toInt(), 7);
}

void StartingBonusTest::loadedRowsAreNotJudged()
{
    BonusPage test;
    test.load({{1, human()}, {2, human()}}, 1, {hulda, generated, harbour});
    QCOMPARE(test.texts(), QStringList({"Give Ember spell to Hulda (in town)", generatedText,
                                        "Build Shipyard at Main Town"}));
    QCOMPARE(test.enabledButtons(), QString());
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList());
}

void StartingBonusTest::loadsNothingOfAnotherKind_data()
{
    QTest::addColumn<uint>("type");
    QTest::addColumn<QVariant>("data");
    const StartingBonusSet bonuses{3, {gold}};
    QTest::newRow("no option") << 0u << QVariant();
    QTest::newRow("bonuses under no option") << 0u << QVariant::fromValue(bonuses);
    QTest::newRow("crossover") << 2u
                               << QVariant::fromValue(HeroCrossoverSet{{CmpHeroCrossover{1, 0}}});
    QTest::newRow("hero") << 3u << QVariant::fromValue(StartingHeroSet{{StartingHero{1, 7}}});
    QTest::newRow("unknown") << 4u << QVariant::fromValue(bonuses);
    QTest::newRow("heroes under bonuses")
        << 1u << QVariant::fromValue(StartingHeroSet{{StartingHero{1, 7}}});
}

void StartingBonusTest::loadsNothingOfAnotherKind()
{
    QFETCH(uint, type);
    QFETCH(QVariant, data);
    BonusPage test;
    test.scenario.mapHeader = mapWithPlayers({{0, human()}, {3, human()}});
    test.scenario.startOptions =
        std::make_shared<CmpScenarioStartOptions>(CmpScenarioStartOptions{type, data});
    test.page.initInfo(&test.scenario, 24);
    QCOMPARE(test.page.getOptionCount(), 0u);
    QCOMPARE(test.players()->currentText(), QString("Red"));
    QCOMPARE(test.enabledButtons(), QString("add"));
}

void StartingBonusTest::loadingAnotherScenarioTakesTheRowsAway()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold, strongest});
    test.clickRow(0);
    QCOMPARE(test.enabledButtons(), QString("edit remove"));
    ScenarioData other;
    other.mapHeader = mapWithPlayers({{4, human()}});
    test.page.initInfo(&other, 24);
    QCOMPARE(test.page.getOptionCount(), 0u);
    QCOMPARE(test.players()->count(), 1);
    QCOMPARE(test.players()->currentText(), QString("Orange"));
    QCOMPARE(test.enabledButtons(), QString("add"));
}

void StartingBonusTest::aPlayerThatNobodyCanPlayIsNoChoice()
{
    BonusPage test;
    test.load({{1, human()}, {2, human()}}, 6, {gold});
    QCOMPARE(test.players()->currentIndex(), -1);
    QCOMPARE(int(test.saved().player), 0);
}

// Who is not on show, for nobody can play that one.
void StartingBonusTest::rowsAreNamedForThePlayerTheyAreStoredFor()
{
    PlayerAttributes computer = playerWithTown(2);
    computer.canHuman = 0;
    computer.heroInfo = {{7, ""}};
    BonusPage test;
    test.load({{0, playerWithTown(0)}, {3, computer}}, 3, {harbour, hulda});
    QCOMPARE(test.texts(), QStringList({"Build Harbour at Main Town", huldaText}));
}

void StartingBonusTest::anUnknownTypeEndsTheProcess()
{
    ReportRecorder recorder;
    BonusPage test;
    QCOMPARE(exitCodeOf([&] { test.load({{1, human()}}, 1, {gold, {8, {}}}); }), 1);
    QVERIFY(recorder.errors.isEmpty());
}

void StartingBonusTest::savesTheRowsInTheirOrder()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {3, human()}}, 3, {gold, strongest, hulda});
    test.table()->setRowHeight(1, 30);
    QTest::ignoreMessage(QtDebugMsg, "SAVE PLAYER COLOR:  3");
    StartingBonusSet set = test.saved();
    QCOMPARE(int(set.player), 3);
    QCOMPARE(set.bonuses.size(), std::size_t(3));
    for (std::size_t i = 0; i < 3; ++i) {
        CmpStartingBonus expected = std::vector{gold, strongest, hulda}[i];
        QVERIFY(set.bonuses[i] == expected);
    }
    QCOMPARE(test.rowHeights(), QList<int>({17, 17, 17}));
}

void StartingBonusTest::savesPlayerZeroWithoutPlayers()
{
    BonusPage test;
    test.load({}, 5, {gold});
    QTest::ignoreMessage(QtDebugMsg, "SAVE PLAYER COLOR:  0");
    const StartingBonusSet set = test.saved();
    QCOMPARE(int(set.player), 0);
    QCOMPARE(set.bonuses.size(), std::size_t(1));
}

void StartingBonusTest::listingPlayersHandsTheRowsToTheFirst()
{
    BonusPage test;
    test.load({{1, human()}, {2, humanWithHulda()}}, 2, {hulda, gold});
    test.clickRow(0);
    test.button("addButton")->setEnabled(false);
    test.page.initUI();
    QCOMPARE(test.players()->count(), 2);
    QCOMPARE(test.players()->currentText(), QString("Blue"));
    QCOMPARE(test.texts(), QStringList({goldText}));
    QCOMPARE(test.enabledButtons(), QString("add"));
}

void StartingBonusTest::withoutAMapNoPlayersAreListed()
{
    BonusPage test;
    test.page.initUI();
    QCOMPARE(test.players()->count(), 0);
    test.page.updateScenarioData(&test.scenario); // which has no map
    test.page.initUI();
    test.page.validateBonuses();
    QCOMPARE(test.players()->count(), 0);
    test.scenario.mapHeader = mapWithPlayers({{1, human()}});
    test.page.initUI();
    QCOMPARE(test.players()->count(), 1);
    test.scenario.mapHeader = nullptr;
    test.page.initUI();
    QCOMPARE(test.players()->count(), 1); // as they were
}

void StartingBonusTest::clearingTakesRowsAndPlayersAway()
{
    BonusPage test;
    test.load({{1, human()}, {2, humanWithHulda()}}, 2, {hulda, gold});
    test.page.clearUI();
    QCOMPARE(test.page.getOptionCount(), 0u);
    QCOMPARE(test.players()->count(), 0);
    QCOMPARE(test.scenario.startOptions->optionData.value<StartingBonusSet>().bonuses.size(),
             std::size_t(2)); // the scenario's own stay
}

void StartingBonusTest::theScenarioMayMove()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold});
    ScenarioData moved = test.scenario;
    moved.mapHeader = mapWithPlayers({{1, human()}});
    test.page.updateScenarioData(&moved);
    QCOMPARE(test.texts(), QStringList({huldaText, goldText}));
    test.page.validateForPlayer(1);
    QCOMPARE(test.texts(), QStringList({goldText}));
}

void StartingBonusTest::rightClicksDoNothingToTheList()
{
    BonusPage test;
    test.load({{1, human()}, {2, human()}}, 1, {});
    verifyRightClicksDoNothing(test.players());
}

void StartingBonusTest::aTextThatIsCutIsToldWhole()
{
    EditorData::heroes[6] = QStringLiteral("<b>Gorim</b> ") + QString(100, 'm');
    BonusPage test;
    test.load({{1, human()}}, 1, {gold, bonusWith(0, BonusSpell{6, 1})});
    const auto pointAt = [&](int row) {
        QWidget *viewport = test.table()->viewport();
        const QPoint place = test.table()->visualItemRect(test.item(row)).center();
        QHelpEvent event(QEvent::ToolTip, place, viewport->mapToGlobal(place));
        QCoreApplication::sendEvent(viewport, &event);
    };
    pointAt(1);
    const QString whole = QToolTip::text();
    QVERIFY(whole.startsWith("<qt>Give Ember spell to &lt;b&gt;Gorim&lt;/b&gt; mmm"));
    QVERIFY(whole.endsWith("mmm (in town)</qt>"));
    pointAt(0); // which is not cut
    QTRY_VERIFY_WITH_TIMEOUT(!QToolTip::isVisible(), longestWait);
    QVERIFY(!test.table()->wordWrap());
}

QTEST_MAIN(StartingBonusTest)
#include "starting_bonus_test.moc"
