// The page of heroes to start with. What a change of map does to its rows is tested in
// starting_hero_validation_test, its dialog in starting_hero_dialog_test.
#include "scenario/starting_hero_options.h"

#include "tests/scenario/hero_map.h"
#include "tests/scenario/shown_page.h"

#include <QtTest>

namespace {

constexpr unsigned campaignMap = 3;
constexpr quint16 randomHero = 0xFFFF;

using Heroes = std::vector<StartingHero>;

const char *const heroBox = "heroCombobox";
const char *const playerBox = "playerCombobox";

QString written(const StartingHero &option)
{
    return QStringLiteral("%1 %2").arg(option.player).arg(option.heroId);
}

} // namespace

Q_DECLARE_METATYPE(Heroes)

class StartingHeroOptionsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init();
    void cleanup() { m_shown.reset(); }

    void controlsHaveTheirTexts();
    void loadsTheRowsInOrder();
    void loadingIsTraced();
    void otherKindsHaveNoRows_data();
    void otherKindsHaveNoRows();
    void numbersBeyondTheTablesAreAbsent();
    void addingNeedsRoomAndAPlayer_data();
    void addingNeedsRoomAndAPlayer();
    void checkAddAsksTheScenarioGiven();
    void addsARow();
    void noFourthRowCanBeAdded();
    void addingTheLastHeroEndsTheAdding();
    void cancellingLeavesTheTableAlone();
    void editsTheSelectedRow();
    void doubleClickEditsTheRow();
    void editingFromTheSecondColumnHidesTheRowsHero();
    void removesTheSelectedRow();
    void removingTheLastRowLeavesOnlyAdding();
    void removingAllowsAddingWhoeverCanTakeAHero();
    void savesTheRowsInOrder();
    void updateUIOnlyAllows();
    void followsTheScenarioToAnotherPlace();

private:
    void load(const Heroes &heroes, const MapHeader &header = heroMap());
    QTableWidget *table() { return m_shown->table(); }

    ScenarioData m_scenario;
    std::unique_ptr<ShownPage<StartingHeroOptions>> m_shown;
};

void StartingHeroOptionsTest::init()
{
    m_scenario = {};
    m_shown = std::make_unique<ShownPage<StartingHeroOptions>>();
}

void StartingHeroOptionsTest::load(const Heroes &heroes, const MapHeader &header)
{
    giveMap(m_scenario, header);
    offerHeroes(m_scenario, heroes);
    m_shown->page.initInfo(nullptr, &m_scenario, campaignMap);
}

void StartingHeroOptionsTest::controlsHaveTheirTexts()
{
    QCOMPARE(m_shown->page.windowTitle(), QString("Form"));
    QCOMPARE(m_shown->button("addButton")->text(), QString("Add"));
    QCOMPARE(m_shown->button("editButton")->text(), QString("Edit"));
    QCOMPARE(m_shown->button("removeButton")->text(), QString("Remove"));
    load({{0, 1}});
    verifyTableLook(*m_shown, {"Hero", "Player position"}, 1, 2);
}

void StartingHeroOptionsTest::loadsTheRowsInOrder()
{
    const Heroes heroes{{1, randomHero}, {0, 1}, {1, 9}};
    load(heroes);
    QCOMPARE(m_shown->rows(), QStringList({"Random hero (in town) | Player 2 (Blue)",
                                           "Ser Berin (on map) | Player 1 (Red)",
                                           "Jorun (in town) | Player 2 (Blue)"}));
    QCOMPARE(m_shown->rowHeights(), QList<int>({17, 17, 17}));
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QTableWidgetItem *item = m_shown->item(row, column);
            QVERIFY(!item->flags().testFlag(Qt::ItemIsEditable));
            QCOMPARE(written(item->data(Qt::UserRole).value<StartingHero>()),
                     written(heroes[std::size_t(row)]));
        }
    }
    QCOMPARE(m_shown->page.getOptionCount(), 3U);
    load({{0, 2}});
    QCOMPARE(m_shown->rows(), QStringList("Corvane (on map) | Player 1 (Red)"));
}

void StartingHeroOptionsTest::loadingIsTraced()
{
    const TraceRecorder traces;
    load({{0, 1}, {0, 2}});
    QCOMPARE(TraceRecorder::messages().filter(QRegularExpression("^ITEM:  0x\\S+ 0x\\S+$")).size(),
             2);
}

void StartingHeroOptionsTest::otherKindsHaveNoRows_data()
{
    QTest::addColumn<uint>("type");
    QTest::addColumn<bool>("heroes");
    QTest::newRow("bonuses") << 1u << false;
    QTest::newRow("crossover") << 2u << false;
    QTest::newRow("a kind that is none") << 9u << true;
    QTest::newRow("heroes without heroes") << 3u << false;
}

void StartingHeroOptionsTest::otherKindsHaveNoRows()
{
    QFETCH(uint, type);
    QFETCH(bool, heroes);
    load({{0, 1}});
    StartingHeroSet set;
    set.entries = {{0, 1}};
    if (heroes)
        giveOptions(m_scenario, type, set);
    else
        giveOptions(m_scenario, type, QString("no set"));
    m_shown->page.initInfo(nullptr, &m_scenario, campaignMap);
    QCOMPARE(m_shown->page.getOptionCount(), 0U);
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
    m_scenario.startOptions = nullptr;
    m_shown->page.initInfo(nullptr, &m_scenario, campaignMap);
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void StartingHeroOptionsTest::numbersBeyondTheTablesAreAbsent()
{
    load({{200, 300}, {0, 0xFFFD}, {255, 0xFFFE}});
    QCOMPARE(m_shown->rows(),
             QStringList({" (in town) | Player 201 ()", "Most powerful hero | Player 1 (Red)",
                          "Generated hero (in town) | Player 256 ()"}));
    StartingHeroSet saved;
    m_shown->page.saveScenarioInfo(&saved);
    QCOMPARE(written(saved.entries[0]), QString("200 300"));
    m_shown->page.validateOptions();
    QCOMPARE(m_shown->page.getOptionCount(), 0U);
}

void StartingHeroOptionsTest::addingNeedsRoomAndAPlayer_data()
{
    QTest::addColumn<Heroes>("heroes");
    QTest::addColumn<QVector<int>>("humans");
    QTest::addColumn<bool>("possible");
    QTest::newRow("no row") << Heroes{} << QVector<int>{0} << true;
    QTest::newRow("one of two heroes left") << Heroes{{0, 1}} << QVector<int>{0} << true;
    QTest::newRow("all heroes used") << Heroes{{0, 1}, {0, 2}} << QVector<int>{0} << false;
    QTest::newRow("used in rows of others") << Heroes{{4, 1}, {6, 2}} << QVector<int>{0} << false;
    QTest::newRow("another player has one") << Heroes{{0, 1}, {0, 2}} << QVector<int>{0, 4} << true;
    QTest::newRow("one is generated") << Heroes{{1, 3}, {1, 0}} << QVector<int>{1} << true;
    QTest::newRow("without a town, too") << Heroes{{2, 4}} << QVector<int>{2} << true;
    QTest::newRow("three rows") << Heroes{{1, 3}, {1, 0}, {1, 5}} << QVector<int>{1} << false;
    QTest::newRow("four rows") << Heroes{{1, 3}, {1, 0}, {1, 5}, {1, 8}} << QVector<int>{1}
                               << false;
    QTest::newRow("no human") << Heroes{} << QVector<int>{} << false;
}

void StartingHeroOptionsTest::addingNeedsRoomAndAPlayer()
{
    QFETCH(Heroes, heroes);
    QFETCH(QVector<int>, humans);
    QFETCH(bool, possible);
    MapHeader header = heroMap();
    for (int player = 0; player < 8; ++player)
        header.players[std::size_t(player)].canHuman = humans.contains(player);
    load(heroes, header);
    QCOMPARE(m_shown->enabledButtons(), QString(possible ? "add" : ""));
    m_shown->button("addButton")->setEnabled(!possible); // whatever it was before
    m_shown->page.checkAdd(&m_scenario, nullptr);
    QCOMPARE(m_shown->enabledButtons(), QString(possible ? "add" : ""));
}

void StartingHeroOptionsTest::checkAddAsksTheScenarioGiven()
{
    load({});
    ScenarioData withoutMap;
    m_shown->page.checkAdd(&withoutMap, nullptr);
    QCOMPARE(m_shown->enabledButtons(), QString());
}

void StartingHeroOptionsTest::addsARow()
{
    load({{0, 1}});
    {
        const NextDialog dialog(
            choose({{playerBox, "Player 2 (Blue)"}, {heroBox, "Ivenne (in town)"}}));
        m_shown->click("addButton");
    }
    QCOMPARE(m_shown->rows(), QStringList({"Ser Berin (on map) | Player 1 (Red)",
                                           "Ivenne (in town) | Player 2 (Blue)"}));
    QCOMPARE(m_shown->rowHeights(), QList<int>({17, 20})); // only loaded rows are low
    for (int column = 0; column < 2; ++column) {
        const QTableWidgetItem *item = m_shown->item(1, column);
        QVERIFY(!item->flags().testFlag(Qt::ItemIsEditable));
        QCOMPARE(written(item->data(Qt::UserRole).value<StartingHero>()), QString("1 8"));
    }
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void StartingHeroOptionsTest::noFourthRowCanBeAdded()
{
    load({});
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(m_shown->enabledButtons(), QString("add"));
        const NextDialog dialog(choose({{playerBox, "Player 2 (Blue)"}}));
        m_shown->click("addButton");
    }
    QCOMPARE(m_shown->enabledButtons(), QString());
    QCOMPARE(m_shown->page.getOptionCount(), 3U);
    m_shown->click("addButton"); // opens nothing
    QCOMPARE(m_shown->page.getOptionCount(), 3U);
}

void StartingHeroOptionsTest::addingTheLastHeroEndsTheAdding()
{
    MapHeader header = heroMap();
    for (int player = 1; player < 8; ++player)
        header.players[std::size_t(player)].canHuman = false;
    load({{0, 2}}, header);
    const NextDialog dialog(choose({}));
    m_shown->click("addButton");
    QCOMPARE(m_shown->rows().last(), QString("Ser Berin (on map) | Player 1 (Red)"));
    QCOMPARE(m_shown->enabledButtons(), QString());
}

void StartingHeroOptionsTest::cancellingLeavesTheTableAlone()
{
    load({{0, 1}});
    const QStringList before = m_shown->rows();
    {
        const NextDialog dialog(choose({}, QDialogButtonBox::Cancel));
        m_shown->click("addButton");
    }
    m_shown->clickRow(0);
    {
        const NextDialog dialog(choose({{heroBox, "Corvane (on map)"}}, QDialogButtonBox::Cancel));
        m_shown->click("editButton");
    }
    QCOMPARE(m_shown->rows(), before);
}

void StartingHeroOptionsTest::editsTheSelectedRow()
{
    load({{0, 1}, {1, 3}});
    m_shown->clickRow(1, 1);
    const NextDialog dialog(lookAndChoose(
        [](QWidget *opened) {
            QCOMPARE(childOf<QComboBox>(opened, playerBox)->currentText(),
                     QString("Player 2 (Blue)"));
            QCOMPARE(childOf<QComboBox>(opened, heroBox)->currentText(), QString("Dessa (on map)"));
        },
        {{heroBox, "Random hero (in town)"}}, QDialogButtonBox::Ok));
    m_shown->click("editButton");
    QCOMPARE(m_shown->rows(), QStringList({"Ser Berin (on map) | Player 1 (Red)",
                                           "Random hero (in town) | Player 2 (Blue)"}));
    for (int column = 0; column < 2; ++column) {
        const QVariant record = m_shown->item(1, column)->data(Qt::UserRole);
        QCOMPARE(written(record.value<StartingHero>()), QString("1 65535"));
    }
}

void StartingHeroOptionsTest::doubleClickEditsTheRow()
{
    load({{0, 1}, {1, 3}});
    const NextDialog dialog(choose({{heroBox, "Corvane (on map)"}}));
    m_shown->doubleClickRow(0, 1);
    QCOMPARE(m_shown->rows().first(), QString("Corvane (on map) | Player 1 (Red)"));
}

void StartingHeroOptionsTest::editingFromTheSecondColumnHidesTheRowsHero()
{
    load({{0, 1}});
    for (int column = 0; column < 2; ++column) {
        const NextDialog dialog(lookAndChoose(
            [column](QWidget *opened) {
                const QStringList heroes = textsOf(childOf<QComboBox>(opened, heroBox));
                QCOMPARE(heroes.contains("Ser Berin (on map)"), column == 0);
            },
            {}, QDialogButtonBox::Cancel));
        m_shown->openEditMenu(m_shown->item(0, column));
    }
}

void StartingHeroOptionsTest::removesTheSelectedRow()
{
    load({{0, 1}, {0, 2}, {1, 3}});
    m_shown->clickRow(1);
    const TraceRecorder traces;
    m_shown->click("removeButton");
    QCOMPARE(TraceRecorder::messages(), QStringList("REMOVE ROW"));
    QCOMPARE(m_shown->rows(), QStringList({"Ser Berin (on map) | Player 1 (Red)",
                                           "Dessa (on map) | Player 2 (Blue)"}));
    QCOMPARE(m_shown->enabledButtons(), QString("add edit remove"));
    table()->clearSelection();
    TraceRecorder::messages().clear();
    m_shown->click("removeButton"); // nothing is selected
    QCOMPARE(m_shown->page.getOptionCount(), 2U);
    QCOMPARE(TraceRecorder::messages(), QStringList());
}

void StartingHeroOptionsTest::removingTheLastRowLeavesOnlyAdding()
{
    load({{0, 1}});
    m_shown->clickRow(0);
    m_shown->click("removeButton");
    QCOMPARE(m_shown->page.getOptionCount(), 0U);
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void StartingHeroOptionsTest::removingAllowsAddingWhoeverCanTakeAHero()
{
    load({{0, 1}, {0, 2}}, MapHeader());
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_shown->clickRow(0);
    m_shown->click("removeButton");
    QCOMPARE(m_shown->enabledButtons(), QString("add edit remove"));
}

void StartingHeroOptionsTest::savesTheRowsInOrder()
{
    load({{1, 9}, {0, 1}, {2, 4}});
    delete table()->takeItem(1, 0); // a row without an item is no offer
    const TraceRecorder traces;
    StartingHeroSet set;
    m_shown->page.saveScenarioInfo(&set);
    QCOMPARE(TraceRecorder::messages(), QStringList("Save info"));
    QCOMPARE(int(set.entries.size()), 2);
    QCOMPARE(written(set.entries[0]), QString("1 9"));
    QCOMPARE(written(set.entries[1]), QString("2 4"));
}

void StartingHeroOptionsTest::updateUIOnlyAllows()
{
    load({{0, 1}, {0, 2}}, MapHeader());
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_shown->page.updateUI();
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
    load({{0, 1}, {0, 2}, {1, 3}});
    m_shown->page.updateUI();
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_shown->button("addButton")->setEnabled(true);
    m_shown->page.updateUI();
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void StartingHeroOptionsTest::followsTheScenarioToAnotherPlace()
{
    load({{0, 1}});
    ScenarioData moved;
    giveMap(moved, MapHeader());
    m_shown->page.updateScenarioData(&moved);
    QCOMPARE(m_shown->page.getOptionCount(), 1U);
    m_shown->page.validateOptions();
    QCOMPARE(m_shown->page.getOptionCount(), 0U);
}

QTEST_MAIN(StartingHeroOptionsTest)
#include "starting_hero_options_test.moc"
