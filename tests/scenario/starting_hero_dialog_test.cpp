// The dialog for one offer of a hero to start with.
#include "scenario/starting_hero_dialog.h"

#include "scenario/option_page.h"
#include "tests/scenario/hero_map.h"
#include "tests/scenario/shown_page.h"

#include <QLabel>
#include <QtTest>

namespace {

constexpr unsigned campaignMap = 3;
constexpr quint16 randomHero = 0xFFFF;

using Heroes = std::vector<StartingHero>;

// What player 1 can be given while no row offers a hero: its own on the map, a random one, and
// those of the game that the map doesn't disable.
QStringList heroesOfBlue()
{
    return {"Dessa (on map)",    "Random hero (in town)", "Aldra (in town)", "Berin (in town)",
            "Corvane (in town)", "Elbrec (in town)",      "Farun (in town)", "Gisla (in town)",
            "Ivenne (in town)",  "Jorun (in town)"};
}

QStringList without(QStringList texts, const QStringList &gone)
{
    for (const QString &text : gone)
        texts.removeOne(text);
    return texts;
}

} // namespace

Q_DECLARE_METATYPE(Heroes)

class StartingHeroDialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init();
    void cleanup() { m_dialog.reset(); }

    void controlsHaveTheirTexts();
    void windowIsModalAndFixed();
    void offersPlayersWhoCanTakeAHero_data();
    void offersPlayersWhoCanTakeAHero();
    void offersHeroesOfThePlayer_data();
    void offersHeroesOfThePlayer();
    void aHeroListedTwiceIsOfferedOnce();
    void heroesOfOtherRowsAreNotOffered();
    void itemsCarryNumbers();
    void anEditedRowShowsItsChoice_data();
    void anEditedRowShowsItsChoice();
    void openedOnTheSecondColumnTheOwnHeroIsMissing();
    void whatIsNotOfferedShowsAsNoChoice_data();
    void whatIsNotOfferedShowsAsNoChoice();
    void anotherPlayerKeepsAHeroHeMayHave_data();
    void anotherPlayerKeepsAHeroHeMayHave();
    void writesBothItemsOfTheRow();
    void withoutAPlayerTheFirstHeroIsStored();
    void listingIsTraced();
    void openingListsForTheLastPlayerAndThenForTheOneOnShow_data();
    void openingListsForTheLastPlayerAndThenForTheOneOnShow();
    void rightClicksDoNothing();
    void buttonsClose_data();
    void buttonsClose();

private:
    void open(const Heroes &rows, QTableWidgetItem *item = nullptr);
    void addRows(const Heroes &rows);
    QComboBox *players() { return childOf<QComboBox>(m_dialog.get(), "playerCombobox"); }
    QComboBox *heroes() { return childOf<QComboBox>(m_dialog.get(), "heroCombobox"); }

    ScenarioData m_scenario;
    std::unique_ptr<QTableWidget> m_table;
    std::unique_ptr<StartingHeroDialog> m_dialog;
};

void StartingHeroDialogTest::init()
{
    m_scenario = {};
    giveMap(m_scenario, heroMap());
    m_table = std::make_unique<QTableWidget>(0, 2);
}

void StartingHeroDialogTest::addRows(const Heroes &rows)
{
    for (const StartingHero &option : rows) {
        const int row = m_table->rowCount();
        m_table->setRowCount(row + 1);
        for (int column = 0; column < 2; ++column) {
            auto *item = new QTableWidgetItem;
            item->setData(Qt::UserRole, QVariant::fromValue(option));
            m_table->setItem(row, column, item);
        }
    }
}

void StartingHeroDialogTest::open(const Heroes &rows, QTableWidgetItem *item)
{
    addRows(rows);
    m_dialog = std::make_unique<StartingHeroDialog>(nullptr, &m_scenario, campaignMap,
                                                    m_table.get(), item);
    bringOnShow(*m_dialog);
}

void StartingHeroDialogTest::controlsHaveTheirTexts()
{
    open({});
    QCOMPARE(m_dialog->windowTitle(), QString("Edit Starting Hero Option"));
    QCOMPARE(childOf<QLabel>(m_dialog.get(), "playerLabel")->text(), QString("Player position:"));
    QCOMPARE(childOf<QLabel>(m_dialog.get(), "heroLabel")->text(), QString("Hero Identity:"));
}

void StartingHeroDialogTest::windowIsModalAndFixed()
{
    open({});
    QCOMPARE(m_dialog->windowModality(), Qt::ApplicationModal);
    QCOMPARE(m_dialog->minimumSize(), m_dialog->maximumSize());
    QVERIFY(!m_dialog->windowFlags().testFlag(Qt::WindowContextHelpButtonHint));
}

void StartingHeroDialogTest::offersPlayersWhoCanTakeAHero_data()
{
    QTest::addColumn<Heroes>("rows");
    QTest::addColumn<QStringList>("players");
    const QString red = "Player 1 (Red)";
    const QString blue = "Player 2 (Blue)";
    const QString tan = "Player 3 (Tan)";
    const QString orange = "Player 5 (Orange)";
    QTest::newRow("no rows") << Heroes{} << QStringList{red, blue, tan, orange};
    QTest::newRow("one of two heroes used")
        << Heroes{{0, 1}} << QStringList{red, blue, tan, orange};
    QTest::newRow("all heroes used") << Heroes{{0, 1}, {0, 2}} << QStringList{blue, tan, orange};
    QTest::newRow("used by another") << Heroes{{1, 6}} << QStringList{red, blue, tan};
    QTest::newRow("used, but one is generated")
        << Heroes{{1, 3}, {2, 4}} << QStringList{red, blue, tan, orange};
}

void StartingHeroDialogTest::offersPlayersWhoCanTakeAHero()
{
    QFETCH(Heroes, rows);
    open(rows);
    QTEST(textsOf(players()), "players");
    QCOMPARE(players()->currentIndex(), 0);
}

void StartingHeroDialogTest::offersHeroesOfThePlayer_data()
{
    QTest::addColumn<QString>("player");
    QTest::addColumn<QStringList>("heroes");
    QTest::newRow("on the map only")
        << "Player 1 (Red)" << QStringList{"Ser Berin (on map)", "Corvane (on map)"};
    QTest::newRow("of town and map") << "Player 2 (Blue)" << heroesOfBlue();
    QTest::newRow("generated, but without a town")
        << "Player 3 (Tan)" << QStringList{"Elbrec (on map)"};
    QTest::newRow("a town that generates none")
        << "Player 5 (Orange)" << QStringList{"Gisla (on map)"};
}

void StartingHeroDialogTest::offersHeroesOfThePlayer()
{
    QFETCH(QString, player);
    open({});
    players()->setCurrentText(player);
    QTEST(textsOf(heroes()), "heroes");
}

void StartingHeroDialogTest::aHeroListedTwiceIsOfferedOnce()
{
    MapHeader header = heroMap();
    header.players[0].heroInfo = {{2, ""}, {1, ""}, {2, ""}, {1, ""}};
    giveMap(m_scenario, header);
    open({});
    QCOMPARE(textsOf(heroes()), QStringList({"Corvane (on map)", "Berin (on map)"}));
}

void StartingHeroDialogTest::heroesOfOtherRowsAreNotOffered()
{
    open({{0, 2}, {1, randomHero}, {2, 9}});
    QCOMPARE(textsOf(heroes()), QStringList("Ser Berin (on map)"));
    players()->setCurrentText("Player 2 (Blue)");
    QCOMPARE(
        textsOf(heroes()),
        without(heroesOfBlue(), {"Corvane (in town)", "Random hero (in town)", "Jorun (in town)"}));
}

void StartingHeroDialogTest::itemsCarryNumbers()
{
    open({});
    players()->setCurrentIndex(1);
    QCOMPARE(players()->currentData(), QVariant(1));
    QCOMPARE(heroes()->itemData(0), QVariant::fromValue<unsigned char>(3));
    QCOMPARE(int(heroes()->itemData(0).type()), int(QMetaType::UChar));
    QCOMPARE(heroes()->itemData(1), QVariant(0xFFFF));
    QCOMPARE(heroes()->itemData(9), QVariant(9));
    QCOMPARE(int(heroes()->itemData(9).type()), int(QMetaType::Int));
}

void StartingHeroDialogTest::anEditedRowShowsItsChoice_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("player");
    QTest::addColumn<QString>("hero");
    QTest::newRow("on the map") << 0 << "Player 1 (Red)"
                                << "Corvane (on map)";
    QTest::newRow("random") << 1 << "Player 2 (Blue)"
                            << "Random hero (in town)";
    QTest::newRow("of the town") << 2 << "Player 2 (Blue)"
                                 << "Jorun (in town)";
    QTest::newRow("of the last player") << 3 << "Player 5 (Orange)"
                                        << "Gisla (on map)";
}

void StartingHeroDialogTest::anEditedRowShowsItsChoice()
{
    QFETCH(int, row);
    addRows({{0, 2}, {1, randomHero}, {1, 9}, {4, 6}});
    open({}, m_table->item(row, 0));
    QTEST(players()->currentText(), "player");
    QTEST(heroes()->currentText(), "hero");
}

void StartingHeroDialogTest::openedOnTheSecondColumnTheOwnHeroIsMissing()
{
    addRows({{0, 1}});
    open({}, m_table->item(0, 1));
    QCOMPARE(players()->currentText(), QString("Player 1 (Red)"));
    QCOMPARE(textsOf(heroes()), QStringList("Corvane (on map)"));
    QCOMPARE(heroes()->currentIndex(), -1);
}

void StartingHeroDialogTest::whatIsNotOfferedShowsAsNoChoice_data()
{
    QTest::addColumn<int>("player");
    QTest::addColumn<int>("hero");
    QTest::addColumn<int>("playerIndex");
    QTest::addColumn<QString>("stored");
    QTest::newRow("hero of nobody") << 1 << 300 << 1 << "1 0";
    QTest::newRow("strongest hero") << 1 << 0xFFFD << 1 << "1 0";
    QTest::newRow("hero of the town") << 1 << 0xFFFE << 1 << "1 0";
    QTest::newRow("random hero without a town") << 0 << 0xFFFF << 0 << "0 0";
    QTest::newRow("player that is none") << 200 << 1 << -1 << "0 1";
    QTest::newRow("a machine") << 3 << 5 << -1 << "0 0";
}

void StartingHeroDialogTest::whatIsNotOfferedShowsAsNoChoice()
{
    QFETCH(int, player);
    QFETCH(int, hero);
    addRows({{quint8(player), quint16(hero)}});
    open({}, m_table->item(0, 0));
    QTEST(players()->currentIndex(), "playerIndex");
    m_dialog->updateOption(m_table->item(0, 0));
    const auto option = m_table->item(0, 0)->data(Qt::UserRole).value<StartingHero>();
    QTEST(QStringLiteral("%1 %2").arg(option.player).arg(option.heroId), "stored");
}

void StartingHeroDialogTest::anotherPlayerKeepsAHeroHeMayHave_data()
{
    QTest::addColumn<bool>("edited");
    QTest::newRow("new row") << false;
    QTest::newRow("edited row") << true;
}

void StartingHeroDialogTest::anotherPlayerKeepsAHeroHeMayHave()
{
    QFETCH(bool, edited);
    addRows({{0, 2}});
    open({}, edited ? m_table->item(0, 0) : nullptr);
    players()->setCurrentText("Player 2 (Blue)");
    heroes()->setCurrentText("Gisla (in town)");
    players()->setCurrentText("Player 5 (Orange)"); // has her on the map
    QCOMPARE(heroes()->currentText(), QString("Gisla (on map)"));
    players()->setCurrentText("Player 2 (Blue)");
    QCOMPARE(heroes()->currentText(), QString("Gisla (in town)"));
    players()->setCurrentText("Player 1 (Red)"); // can't have her
    QCOMPARE(heroes()->currentText(), textsOf(heroes()).constFirst());
}

void StartingHeroDialogTest::writesBothItemsOfTheRow()
{
    addRows({{0, 1}, {0, 2}});
    open({}, m_table->item(1, 0));
    players()->setCurrentText("Player 2 (Blue)");
    heroes()->setCurrentText("Random hero (in town)");
    m_dialog->updateOption(m_table->item(1, 0));
    QCOMPARE(m_table->item(1, 0)->text(), QString("Random hero (in town)"));
    QCOMPARE(m_table->item(1, 1)->text(), QString("Player 2 (Blue)"));
    for (int column = 0; column < 2; ++column) {
        const auto option = m_table->item(1, column)->data(Qt::UserRole).value<StartingHero>();
        QCOMPARE(int(option.player), 1);
        QCOMPARE(int(option.heroId), 0xFFFF);
    }
    QCOMPARE(m_table->item(0, 0)->text(), QString());
}

void StartingHeroDialogTest::withoutAPlayerTheFirstHeroIsStored()
{
    giveMap(m_scenario, MapHeader());
    open({{5, 5}});
    QCOMPARE(players()->count(), 0);
    QCOMPARE(heroes()->count(), 0);
    m_dialog->updateOption(m_table->item(0, 0));
    const auto option = m_table->item(0, 0)->data(Qt::UserRole).value<StartingHero>();
    QCOMPARE(int(option.player), 0);
    QCOMPARE(int(option.heroId), 0);
}

void StartingHeroDialogTest::listingIsTraced()
{
    open({});
    const TraceRecorder traces;
    m_dialog->updateHeroCombobox(1, false);
    m_dialog->updateHeroCombobox(2, false);
    QCOMPARE(TraceRecorder::messages(),
             QStringList({"CURRENT PLAYER: 1", "ADD:  true", "CURRENT PLAYER: 2", "ADD:  false"}));
}

void StartingHeroDialogTest::openingListsForTheLastPlayerAndThenForTheOneOnShow_data()
{
    QTest::addColumn<int>("edited");
    QTest::addColumn<QStringList>("traces");
    const QStringList orange{"CURRENT PLAYER: 4", "ADD:  false"};
    QTest::newRow("new row") << -1 << orange + QStringList{"CURRENT PLAYER: 0", "ADD:  false"};
    QTest::newRow("a row of the second player")
        << 0 << orange + QStringList{"CURRENT PLAYER: 1", "ADD:  true"};
}

void StartingHeroDialogTest::openingListsForTheLastPlayerAndThenForTheOneOnShow()
{
    QFETCH(int, edited);
    addRows({{1, 9}});
    const TraceRecorder traces;
    open({}, m_table->item(edited, 0));
    QTEST(TraceRecorder::messages(), "traces");
}

void StartingHeroDialogTest::rightClicksDoNothing()
{
    open({});
    verifyRightClicksDoNothing(players());
    verifyRightClicksDoNothing(heroes());
}

void StartingHeroDialogTest::buttonsClose_data()
{
    addButtonsThatClose();
}

void StartingHeroDialogTest::buttonsClose()
{
    open({});
    verifyButtonCloses(*m_dialog);
}

QTEST_MAIN(StartingHeroDialogTest)
#include "starting_hero_dialog_test.moc"
