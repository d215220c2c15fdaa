// The page of heroes carried over. What a change of map does to its rows is tested in
// hero_crossover_validation_test, its dialog in hero_crossover_dialog_test.
#include "scenario/hero_crossover.h"

#include "tests/scenario/crossover_campaign.h"
#include "tests/scenario/shown_page.h"

#include <QString>
#include <QtTest>

namespace {

constexpr unsigned campaignMap = 3;

// A row of the table: player and source scenario.
using Row = QPair<int, int>;
using Rows = QVector<Row>;

const char *const sourceBox = "scenarioCombobox";
const char *const playerBox = "playerCombobox";

Row rowOf(const CmpHeroCrossover &option)
{
    return {option.player, option.sourceScenario};
}

} // namespace

class HeroCrossoverTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init();
    void cleanup() { m_shown.reset(); }

    void controlsHaveTheirTexts();
    void loadsTheRowsInOrder();
    void sourcesAreNamedByTheirRegions();
    void otherKindsHaveNoRows_data();
    void otherKindsHaveNoRows();
    void withoutAStoredOptionAddingWaitsForAnUpdate();
    void numbersBeyondTheTablesAreAbsent();
    void addingNeedsRoomAndAPrerequisite_data();
    void addingNeedsRoomAndAPrerequisite();
    void checkAddNeverAllows();
    void checkAddMakesRowsHigher();
    void aSourceThatNoRecordCanNameIsNone();
    void addsARow();
    void addingIsTraced();
    void noFourthRowCanBeAdded();
    void addingTheLastSourceEndsTheAdding();
    void cancellingLeavesTheTableAlone();
    void editsTheSelectedRow();
    void doubleClickEditsTheRow();
    void editingFromTheSecondColumnHidesTheRowsSource();
    void removingARowAllowsAddingIfASourceIsFree();
    void removingARowOfNoPrerequisiteForbidsAdding();
    void savesTheRowsInOrder();
    void followsTheScenarioToAnotherPlace();

private:
    void load(const Rows &rows);
    Rows rowsOnShow();

    std::unique_ptr<CrossoverCampaign> m_campaign;
    std::unique_ptr<ShownPage<HeroCrossover>> m_shown;
};

void HeroCrossoverTest::init()
{
    m_campaign = std::make_unique<CrossoverCampaign>();
    m_shown = std::make_unique<ShownPage<HeroCrossover>>();
}

void HeroCrossoverTest::load(const Rows &rows)
{
    std::vector<CmpHeroCrossover> entries;
    for (const Row &row : rows)
        entries.push_back({quint8(row.first), quint8(row.second)});
    offerCrossovers(m_campaign->last(), entries);
    m_shown->page.initInfo(m_campaign.get(), &m_campaign->last(), campaignMap);
}

Rows HeroCrossoverTest::rowsOnShow()
{
    HeroCrossoverSet set;
    m_shown->page.saveScenarioInfo(&set);
    Rows rows;
    for (const CmpHeroCrossover &option : set.entries)
        rows.append(rowOf(option));
    return rows;
}

void HeroCrossoverTest::controlsHaveTheirTexts()
{
    QCOMPARE(m_shown->page.windowTitle(), QString("Form"));
    QCOMPARE(m_shown->button("addButton")->text(), QString("Add"));
    QCOMPARE(m_shown->button("editButton")->text(), QString("Edit"));
    QCOMPARE(m_shown->button("removeButton")->text(), QString("Remove"));
    load({{0, 0}});
    verifyTableLook(*m_shown, {"Source scenario", "Player position"}, 2, 3);
}

void HeroCrossoverTest::loadsTheRowsInOrder()
{
    const Rows rows{{1, 3}, {0, 0}};
    load(rows);
    QCOMPARE(m_shown->rows(), QStringList({"3. Ridge | Player 2 (Blue)", //
                                           "0. Thaw | Player 1 (Red)"}));
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 2; ++column) {
            const QTableWidgetItem *item = m_shown->item(row, column);
            QVERIFY(!item->flags().testFlag(Qt::ItemIsEditable));
            QCOMPARE(rowOf(item->data(Qt::UserRole).value<CmpHeroCrossover>()), rows[row]);
        }
    }
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
    QCOMPARE(m_shown->page.getOptionCount(), 2U);
    load({{0, 2}});
    QCOMPARE(m_shown->rows(), QStringList("2. Coast | Player 1 (Red)"));
}

void HeroCrossoverTest::sourcesAreNamedByTheirRegions()
{
    EditorData::campaignInfo[campaignMap].regions.resize(5);
    EditorData::campaignInfo[campaignMap].regions[2].name = "Grey Coast";
    m_campaign->hasMap = true;
    load({{0, 2}});
    QCOMPARE(m_shown->rows(),
             QStringList(QString::fromUtf8("Coast — Grey Coast | Player 1 (Red)")));
}

void HeroCrossoverTest::otherKindsHaveNoRows_data()
{
    QTest::addColumn<uint>("type");
    QTest::addColumn<bool>("crossovers");
    QTest::newRow("bonuses") << 1u << false;
    QTest::newRow("heroes") << 3u << false;
    QTest::newRow("a kind that is none") << 9u << true;
    QTest::newRow("crossover without crossovers") << 2u << false;
}

void HeroCrossoverTest::otherKindsHaveNoRows()
{
    QFETCH(uint, type);
    QFETCH(bool, crossovers);
    load({{0, 0}, {1, 2}, {0, 3}});
    QCOMPARE(m_shown->enabledButtons(), QString());
    HeroCrossoverSet set;
    set.entries = {{0, 0}};
    if (crossovers)
        giveOptions(m_campaign->last(), type, set);
    else
        giveOptions(m_campaign->last(), type, QString("no set"));
    m_shown->page.initInfo(m_campaign.get(), &m_campaign->last(), campaignMap);
    QCOMPARE(m_shown->page.getOptionCount(), 0U);
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void HeroCrossoverTest::withoutAStoredOptionAddingWaitsForAnUpdate()
{
    m_shown->page.initInfo(m_campaign.get(), &m_campaign->last(), campaignMap);
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_shown->page.updateUI();
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void HeroCrossoverTest::numbersBeyondTheTablesAreAbsent()
{
    load({{200, 200}, {0, 255}});
    QCOMPARE(m_shown->rows(), QStringList({"200. No scenario | Player 201 ()", //
                                           "255. No scenario | Player 1 (Red)"}));
    QCOMPARE(rowsOnShow(), Rows({{200, 200}, {0, 255}}));
    m_shown->page.validateOptions();
    QCOMPARE(rowsOnShow(), Rows({{0, 255}}));
}

void HeroCrossoverTest::addingNeedsRoomAndAPrerequisite_data()
{
    QTest::addColumn<QVector<int>>("required");
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<bool>("possible");
    QTest::newRow("nothing required") << QVector<int>{} << Rows{} << false;
    QTest::newRow("no row") << QVector<int>{2} << Rows{} << true;
    QTest::newRow("the one required is used") << QVector<int>{2} << Rows{{0, 2}} << false;
    QTest::newRow("another is used") << QVector<int>{2} << Rows{{0, 1}} << true;
    QTest::newRow("one of two is used") << QVector<int>{0, 3} << Rows{{0, 0}} << true;
    QTest::newRow("both are used") << QVector<int>{0, 3} << Rows{{1, 3}, {0, 0}} << false;
    QTest::newRow("three rows") << QVector<int>{0, 1, 2, 3} << Rows{{0, 0}, {0, 1}, {0, 2}}
                                << false;
    QTest::newRow("four rows") << QVector<int>{0, 1, 2, 3, 4}
                               << Rows{{0, 0}, {0, 1}, {0, 2}, {0, 3}} << false;
}

void HeroCrossoverTest::addingNeedsRoomAndAPrerequisite()
{
    QFETCH(QVector<int>, required);
    QFETCH(Rows, rows);
    QFETCH(bool, possible);
    m_campaign->require(required);
    load(rows);
    QCOMPARE(m_shown->enabledButtons(), QString(possible ? "add" : ""));
}

void HeroCrossoverTest::checkAddNeverAllows()
{
    load({{0, 0}});
    m_shown->button("addButton")->setEnabled(false);
    m_shown->page.checkAdd(nullptr);
    QCOMPARE(m_shown->enabledButtons(), QString());
}

// Rows are 18 high until they are saved or validated, which makes them 17.
void HeroCrossoverTest::checkAddMakesRowsHigher()
{
    load({{0, 0}, {0, 2}});
    QCOMPARE(m_shown->rowHeights(), QList<int>({18, 18}));
    m_shown->page.validateOptions();
    QCOMPARE(m_shown->rowHeights(), QList<int>({17, 17}));
    m_shown->page.checkAdd(m_shown->item(0));
    QCOMPARE(m_shown->rowHeights(), QList<int>({18, 18}));
    HeroCrossoverSet set;
    m_shown->page.saveScenarioInfo(&set);
    QCOMPARE(m_shown->rowHeights(), QList<int>({17, 17}));
}

void HeroCrossoverTest::aSourceThatNoRecordCanNameIsNone()
{
    m_campaign->scenarios.resize(300);
    giveMap(m_campaign->last(), heroMap());
    m_campaign->require({256, 299});
    load({});
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_campaign->require({255, 256});
    load({});
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
    const NextDialog dialog(lookAndChoose(
        [](QWidget *opened) {
            QCOMPARE(textsOf(childOf<QComboBox>(opened, sourceBox)),
                     QStringList("255. No scenario"));
        },
        {}, QDialogButtonBox::Ok));
    m_shown->click("addButton");
    QCOMPARE(rowsOnShow(), Rows({{0, 255}}));
}

void HeroCrossoverTest::addsARow()
{
    load({{0, 0}});
    {
        const NextDialog dialog(choose({{sourceBox, "3. Ridge"}, {playerBox, "Blue"}}));
        m_shown->click("addButton");
    }
    QCOMPARE(m_shown->rows(), QStringList({"0. Thaw | Player 1 (Red)", //
                                           "3. Ridge | Player 2 (Blue)"}));
    QCOMPARE(m_shown->rowHeights(), QList<int>({18, 18}));
    for (int column = 0; column < 2; ++column) {
        const QTableWidgetItem *item = m_shown->item(1, column);
        QVERIFY(!item->flags().testFlag(Qt::ItemIsEditable));
        QCOMPARE(rowOf(item->data(Qt::UserRole).value<CmpHeroCrossover>()), Row(1, 3));
    }
    QCOMPARE(m_shown->enabledButtons(), QString("add"));
}

void HeroCrossoverTest::addingIsTraced()
{
    load({{0, 0}});
    const TraceRecorder traces;
    {
        const NextDialog dialog(choose({}));
        m_shown->click("addButton");
    }
    m_shown->page.validateOptions();
    QCOMPARE(TraceRecorder::messages(),
             QStringList({"ADD ITEM:  1", "NEW COUNT:  2", "VALIDATE2:  2"}));
}

void HeroCrossoverTest::noFourthRowCanBeAdded()
{
    m_campaign->require({0, 1, 2, 3});
    load({});
    for (int row = 0; row < 3; ++row) {
        QCOMPARE(m_shown->enabledButtons(), QString("add"));
        const NextDialog dialog(choose({}));
        m_shown->click("addButton");
    }
    QCOMPARE(m_shown->enabledButtons(), QString());
    QCOMPARE(rowsOnShow(), Rows({{0, 0}, {0, 1}, {0, 2}}));
}

void HeroCrossoverTest::addingTheLastSourceEndsTheAdding()
{
    m_campaign->require({0, 3});
    load({{0, 0}});
    const NextDialog dialog(choose({}));
    m_shown->click("addButton");
    QCOMPARE(rowsOnShow(), Rows({{0, 0}, {0, 3}}));
    QCOMPARE(m_shown->enabledButtons(), QString());
}

void HeroCrossoverTest::cancellingLeavesTheTableAlone()
{
    load({{0, 0}});
    {
        const NextDialog dialog(choose({}, QDialogButtonBox::Cancel));
        m_shown->click("addButton");
    }
    m_shown->clickRow(0);
    {
        const NextDialog dialog(choose({{playerBox, "Tan"}}, QDialogButtonBox::Cancel));
        m_shown->click("editButton");
    }
    QCOMPARE(m_shown->rows(), QStringList("0. Thaw | Player 1 (Red)"));
    QCOMPARE(rowsOnShow(), Rows({{0, 0}}));
}

void HeroCrossoverTest::editsTheSelectedRow()
{
    load({{0, 0}, {1, 2}});
    m_shown->clickRow(1, 1);
    const NextDialog dialog(lookAndChoose(
        [](QWidget *opened) {
            QCOMPARE(childOf<QComboBox>(opened, sourceBox)->currentText(), QString("2. Coast"));
            QCOMPARE(childOf<QComboBox>(opened, playerBox)->currentText(), QString("Blue"));
        },
        {{sourceBox, "3. Ridge"}, {playerBox, "Red"}}, QDialogButtonBox::Ok));
    m_shown->click("editButton");
    QCOMPARE(m_shown->rows(), QStringList({"0. Thaw | Player 1 (Red)", //
                                           "3. Ridge | Player 1 (Red)"}));
    QCOMPARE(rowsOnShow(), Rows({{0, 0}, {0, 3}}));
}

void HeroCrossoverTest::doubleClickEditsTheRow()
{
    load({{0, 0}, {1, 2}});
    const NextDialog dialog(choose({{playerBox, "Orange"}}));
    m_shown->doubleClickRow(0);
    QCOMPARE(m_shown->rows().first(), QString("0. Thaw | Player 5 (Orange)"));
}

void HeroCrossoverTest::editingFromTheSecondColumnHidesTheRowsSource()
{
    load({{0, 2}});
    for (int column = 0; column < 2; ++column) {
        const NextDialog dialog(lookAndChoose(
            [column](QWidget *opened) {
                const QStringList sources = textsOf(childOf<QComboBox>(opened, sourceBox));
                QCOMPARE(sources.contains("2. Coast"), column == 0);
            },
            {}, QDialogButtonBox::Cancel));
        m_shown->openEditMenu(m_shown->item(0, column));
    }
}

void HeroCrossoverTest::removingARowAllowsAddingIfASourceIsFree()
{
    load({{0, 0}, {0, 2}, {0, 3}});
    QCOMPARE(m_shown->enabledButtons(), QString());
    m_shown->clickRow(1);
    m_shown->click("removeButton");
    QCOMPARE(rowsOnShow(), Rows({{0, 0}, {0, 3}}));
    QCOMPARE(m_shown->enabledButtons(), QString("add edit remove"));
}

void HeroCrossoverTest::removingARowOfNoPrerequisiteForbidsAdding()
{
    m_campaign->require({0, 2});
    load({{0, 0}, {0, 2}, {0, 1}});
    m_shown->button("addButton")->setEnabled(true);
    m_shown->clickRow(2);
    m_shown->click("removeButton");
    QCOMPARE(m_shown->enabledButtons(), QString("edit remove"));
}

void HeroCrossoverTest::savesTheRowsInOrder()
{
    load({{1, 3}, {0, 0}, {2, 2}});
    delete m_shown->table()->takeItem(1, 0); // a row without an item is no offer
    QCOMPARE(rowsOnShow(), Rows({{1, 3}, {2, 2}}));
    QCOMPARE(m_shown->rowHeights(), QList<int>({17, 18, 17}));
}

void HeroCrossoverTest::followsTheScenarioToAnotherPlace()
{
    load({{0, 0}});
    ScenarioData moved;
    m_shown->page.updateScenarioData(&moved);
    QCOMPARE(m_shown->page.getOptionCount(), 1U);
    m_shown->page.checkAdd(nullptr); // it requires nothing
    QCOMPARE(m_shown->enabledButtons(), QString());
}

QTEST_MAIN(HeroCrossoverTest)
#include "hero_crossover_test.moc"
