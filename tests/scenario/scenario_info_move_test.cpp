// Moving a scenario up and down in the scenario dialog's list.
#include "tests/scenario/scenario_list.h"

#include <QTextEdit>

class ScenarioInfoMoveTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void arrowsFollowTheRow_data();
    void arrowsFollowTheRow();
    void movingExchangesScenarios_data();
    void movingExchangesScenarios();
    void movingLengthensShortArrays();
    void movingSavesTheTabsFirst_data();
    void movingSavesTheTabsFirst();
    void movingShowsTheNewPlace();
    void movingThereAndBackChangesNoData();
    void circlesMoveAndGo();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

namespace {

QStringList fileNames(const CampaignData &campaign)
{
    QStringList names;
    for (const ScenarioData &scenario : campaign.scenarios)
        names << scenario.mapFileName;
    return names;
}

} // namespace

void ScenarioInfoMoveTest::arrowsFollowTheRow_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<unsigned>("row");
    QTest::addColumn<bool>("up");
    QTest::addColumn<bool>("down");
    for (const bool hasMap : {true, false}) {
        const char *kind = hasMap ? "regions" : "a chain";
        QTest::addRow("%s, first", kind) << hasMap << 0u << false << true;
        QTest::addRow("%s, middle", kind) << hasMap << 1u << true << true;
        QTest::addRow("%s, last", kind) << hasMap << 2u << true << false;
    }
}

void ScenarioInfoMoveTest::arrowsFollowTheRow()
{
    QFETCH(bool, hasMap);
    QFETCH(unsigned, row);
    CampaignData campaign = campaignOf(hasMap, {"a", "b", ""});
    {
        OpenScenarioDialog open(campaign, row);
        QTEST(isEnabled(open, "upBtn"), "up");
        QTEST(isEnabled(open, "downBtn"), "down");
    }
    OpenScenarioDialog open(campaign, (row + 1) % 3);
    open.select(int(row));
    QTEST(isEnabled(open, "upBtn"), "up");
    QTEST(isEnabled(open, "downBtn"), "down");
}

void ScenarioInfoMoveTest::movingExchangesScenarios_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<unsigned>("row");
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<int>("current");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QStringList>("required");
    const auto dash = [](const char *file, const char *region) {
        return QString::fromUtf8("%1 — %2").arg(file, region);
    };
    const QStringList first{dash("b.e3m", "Alder Bay"), dash("a.e3m", "Birch Hill"),
                            dash("Empty", "Cedar Fen")};
    const QStringList last{dash("a.e3m", "Alder Bay"), dash("Empty", "Birch Hill"),
                           dash("b.e3m", "Cedar Fen")};
    const QStringList firstInChain{"1. b.e3m", "2. a.e3m", "3. Empty"};
    const QStringList lastInChain{"1. a.e3m", "2. Empty", "3. b.e3m"};
    // Rows alone without a map, rows and columns with one.
    QTest::newRow("regions, second up")
        << true << 1u << QByteArray("upBtn") << 0 << first << QStringList{"010", "000", "110"};
    QTest::newRow("regions, first down")
        << true << 0u << QByteArray("downBtn") << 1 << first << QStringList{"010", "000", "110"};
    QTest::newRow("regions, third up")
        << true << 2u << QByteArray("upBtn") << 1 << last << QStringList{"000", "101", "100"};
    QTest::newRow("regions, second down")
        << true << 1u << QByteArray("downBtn") << 2 << last << QStringList{"000", "101", "100"};
    QTest::newRow("a chain, second up") << false << 1u << QByteArray("upBtn") << 0 << firstInChain
                                        << QStringList{"100", "000", "110"};
    QTest::newRow("a chain, second down") << false << 1u << QByteArray("downBtn") << 2
                                          << lastInChain << QStringList{"000", "110", "100"};
}

// The second scenario requires the first, the third both.
void ScenarioInfoMoveTest::movingExchangesScenarios()
{
    QFETCH(bool, hasMap);
    QFETCH(unsigned, row);
    QFETCH(QByteArray, button);
    QFETCH(int, current);
    CampaignData campaign = campaignOf(hasMap, {"a", "b", ""});
    require(campaign, {"000", "100", "110"});
    OpenScenarioDialog open(campaign, row);
    const QString moved = open.dialog.selectedScenarioData()->mapFileName;
    open.click(button);
    QTEST(open.texts(), "texts");
    QTEST(requiredIn(open.copy()), "required");
    QCOMPARE(open.list()->currentRow(), current);
    QCOMPARE(open.dialog.selectedScenarioData()->mapFileName, moved);
    QCOMPARE(isEnabled(open, "upBtn"), current > 0);
    QCOMPARE(isEnabled(open, "downBtn"), current < 2);
    checkSteps(open);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(fileNames(campaign), QStringList({"a.e3m", "b.e3m", ""}));
}

void ScenarioInfoMoveTest::movingLengthensShortArrays()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, {"", "1", "01"});
    OpenScenarioDialog open(campaign, 2);
    open.click("upBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"000", "001", "100"}));
}

void ScenarioInfoMoveTest::movingSavesTheTabsFirst_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<std::size_t>("neighbour");
    QTest::newRow("up") << QByteArray("upBtn") << std::size_t(0) << std::size_t(1);
    QTest::newRow("down") << QByteArray("downBtn") << std::size_t(2) << std::size_t(1);
}

void ScenarioInfoMoveTest::movingSavesTheTabsFirst()
{
    QFETCH(QByteArray, button);
    QFETCH(std::size_t, place);
    QFETCH(std::size_t, neighbour);
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.regionText = "old " + scenario.mapFileName;
    OpenScenarioDialog open(campaign, 1);
    auto *text = open.find<QTextEdit>("regionTextEdit");
    text->setPlainText("before");
    open.click(button);
    std::vector<ScenarioData> &scenarios = open.copy().scenarios;
    QCOMPARE(scenarios[place].regionText, QString("before"));
    QCOMPARE(scenarios[place].mapFileName, QString("b.e3m"));
    QCOMPARE(scenarios[neighbour].regionText, "old " + scenarios[neighbour].mapFileName);
    QCOMPARE(text->toPlainText(), QString("before"));
    // What is typed after the move belongs to the scenario that was moved, too.
    text->setPlainText("behind");
    open.select(1);
    QCOMPARE(scenarios[place].regionText, QString("behind"));
    QCOMPARE(text->toPlainText(), "old " + scenarios[neighbour].mapFileName);
}

// "c" requires "a" and "b" requires "c", so that "a" may require neither.
void ScenarioInfoMoveTest::movingShowsTheNewPlace()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, {"000", "001", "100"});
    OpenScenarioDialog open(campaign, 2);
    auto *required = open.find<QListWidget>("prereqListWidget");
    QCOMPARE(required->count(), 1);
    QCOMPARE(required->item(0)->text(), QString::fromUtf8("a map — Alder Bay"));
    open.click("upBtn");
    QCOMPARE(open.find<QLabel>("regionNameLabelMain")->text(), QString("Birch Hill"));
    QCOMPARE(required->count(), 1);
    QCOMPARE(required->item(0)->text(), QString::fromUtf8("a map — Alder Bay"));
    QCOMPARE(required->item(0)->checkState(), Qt::Checked);
    open.click("upBtn");
    QCOMPARE(open.find<QLabel>("regionNameLabelMain")->text(), QString("Alder Bay"));
    QCOMPARE(required->count(), 1);
    QCOMPARE(required->item(0)->text(), QString::fromUtf8("a map — Birch Hill"));
    QCOMPARE(required->item(0)->data(Qt::UserRole).toInt(), 1);
    QCOMPARE(required->item(0)->checkState(), Qt::Checked);
}

void ScenarioInfoMoveTest::movingThereAndBackChangesNoData()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, {"000", "101", "100"});
    for (ScenarioData &scenario : campaign.scenarios)
        addStories(scenario, scenario.mapFileName);
    const QByteArrayList before = stateOf(campaign);
    OpenScenarioDialog open(campaign);
    for (const char *button : {"downBtn", "downBtn", "upBtn", "upBtn"})
        open.click(button);
    QCOMPARE(stateOf(open.copy()), before);
    QCOMPARE(open.list()->currentRow(), 0);
}

// All require all, themselves and absent ones too.
void ScenarioInfoMoveTest::circlesMoveAndGo()
{
    CampaignData campaign = fiveInAChain();
    require(campaign, QVector<QString>(5, QString(70, '1')).toList());
    OpenScenarioDialog open(campaign, 2);
    for (const char *button : {"upBtn", "upBtn", "downBtn", "deleteBtn"})
        open.click(button);
    QCOMPARE(fileNames(open.copy()), QStringList({"a.e3m", "b.e3m", "d.e3m", "e.e3m"}));
    const QString all(68, '1');
    QCOMPARE(requiredIn(open.copy()), QVector<QString>(4, "10" + all).toList());
    open.click("addBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"10111", "10111", "10111", "10111", "00000"}));
    checkSteps(open);
}

QTEST_MAIN(ScenarioInfoMoveTest)
#include "scenario_info_move_test.moc"
