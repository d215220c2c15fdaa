// The buttons at the scenario dialog's list: adding, deleting, moving, and when each is possible.
#include "tests/scenario/scenario_fixture.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QTextEdit>

class ScenarioInfoListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void arrowsFollowTheRow_data();
    void arrowsFollowTheRow();
    void regionsCannotBeAddedOrDeleted();
    void aSingleScenarioCannotBeDeleted();
    void addAppendsAnEmptyScenario();
    void addKeepsWhatTheTabsShow();
    void addGivesEveryArrayABit();
    void the30000thScenarioIsTheLast();
    void deleteTakesTheSelectedScenario_data();
    void deleteTakesTheSelectedScenario();
    void deleteLeavesHigherBitsInTheirPlaces();
    void deleteDownToOne();
    void deleteAllKeepsTheSelectedScenario_data();
    void deleteAllKeepsTheSelectedScenario();
    void deleteAllAsksFirst();
    void deleteAllRefusedChangesNothing();
    void deleteAllKeepsEditsOfTheScenarioThatStays();
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

constexpr int unhurriedMilliseconds = 20000; // with sanitizers on a busy machine

// Scenarios "a" to "e" in a chain, each with a difficulty of its own.
CampaignData fiveInAChain()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c", "d", "e"});
    for (std::size_t i = 0; i < campaign.scenarios.size(); ++i)
        campaign.scenarios[i].defaultDifficulty = quint8(i);
    return campaign;
}

QStringList fileNames(const CampaignData &campaign)
{
    QStringList names;
    for (const ScenarioData &scenario : campaign.scenarios)
        names << scenario.mapFileName;
    return names;
}

QComboBox *difficulty(OpenScenarioDialog &open)
{
    return open.find<QComboBox>("difficultyCombobox");
}

bool isEnabled(OpenScenarioDialog &open, const char *button)
{
    return open.find<QWidget>(button)->isEnabled();
}

// Rows and the indexes under their items are in step, and the tabs show the row that is selected.
void checkSteps(OpenScenarioDialog &open)
{
    QCOMPARE(open.list()->count(), int(open.copy().scenarios.size()));
    for (int row = 0; row < open.list()->count(); ++row)
        QCOMPARE(open.list()->item(row)->data(Qt::UserRole), QVariant(row));
    const ScenarioData *scenario = open.dialog.selectedScenarioData();
    QCOMPARE(scenario, &open.copy().scenarios[std::size_t(open.list()->currentRow())]);
    QCOMPARE(difficulty(open)->currentData().toInt(), int(scenario->defaultDifficulty));
    QCOMPARE(open.find<QLabel>("scenarioNameLabelMain")->text(),
             scenario->mapHeader ? scenario->mapHeader->mapName : QString("(None)"));
}

NextDialog::Answer pressing(QDialogButtonBox::StandardButton button)
{
    return [button](QWidget *question) {
        clickOn(question->findChild<QDialogButtonBox *>("buttonBox")->button(button));
    };
}

} // namespace

void ScenarioInfoListTest::arrowsFollowTheRow_data()
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

void ScenarioInfoListTest::arrowsFollowTheRow()
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

void ScenarioInfoListTest::regionsCannotBeAddedOrDeleted()
{
    CampaignData campaign = campaignOf(true, {"a", "", "c"});
    OpenScenarioDialog open(campaign);
    const QByteArrayList before = stateOf(open.copy());
    const auto stayDisabled = [&] {
        for (const char *button : {"addBtn", "deleteBtn", "deleteAllBtn"}) {
            QVERIFY2(!isEnabled(open, button), button);
            open.click(button);
        }
        QCOMPARE(open.list()->count(), 3);
    };
    stayDisabled();
    open.select(2);
    stayDisabled();
    QCOMPARE(stateOf(open.copy()), before);
    open.click("upBtn");
    stayDisabled();
    open.click("downBtn");
    stayDisabled();
    QCOMPARE(stateOf(open.copy()), before);
}

void ScenarioInfoListTest::aSingleScenarioCannotBeDeleted()
{
    CampaignData campaign = campaignOf(false, {"a"});
    OpenScenarioDialog open(campaign);
    for (const char *button : {"upBtn", "downBtn", "deleteBtn", "deleteAllBtn"})
        QVERIFY2(!isEnabled(open, button), button);
    QVERIFY(isEnabled(open, "addBtn"));
    open.click("addBtn");
    QVERIFY(isEnabled(open, "deleteBtn"));
    QVERIFY(isEnabled(open, "deleteAllBtn"));
    QVERIFY(!isEnabled(open, "upBtn"));
    QVERIFY(isEnabled(open, "downBtn"));
}

void ScenarioInfoListTest::addAppendsAnEmptyScenario()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 3);
    open.click("addBtn");
    QCOMPARE(open.texts(),
             QStringList({"1. a.e3m", "2. b.e3m", "3. c.e3m", "4. d.e3m", "5. e.e3m", "6. Empty"}));
    QCOMPARE(open.list()->currentRow(), 3);
    checkSteps(open);
    QCOMPARE(open.copy().scenarioCount, 6u);
    QVERIFY(open.dialog.hasChanged());
    QVERIFY(!open.copy().scenarios.back().mapHeader);
    QCOMPARE(campaign.scenarios.size(), std::size_t(5));
    open.click("addBtn");
    QCOMPARE(open.texts().last(), QString("7. Empty"));
    open.select(6);
    checkSteps(open);
    QVERIFY(!isEnabled(open, "downBtn"));
}

void ScenarioInfoListTest::addKeepsWhatTheTabsShow()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 2);
    difficulty(open)->setCurrentIndex(0);
    open.click("addBtn");
    QCOMPARE(difficulty(open)->currentIndex(), 0);
    open.select(5);
    QCOMPARE(int(open.copy().scenarios[2].defaultDifficulty), 0);
    difficulty(open)->setCurrentIndex(4);
    open.select(0);
    QCOMPARE(int(open.copy().scenarios[5].defaultDifficulty), 4);
    QCOMPARE(difficulty(open)->currentIndex(), 0);
}

void ScenarioInfoListTest::addGivesEveryArrayABit()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c"});
    require(campaign, {"", "1", "11000111"});
    OpenScenarioDialog open(campaign);
    open.click("addBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"0000", "1000", "1100", "0000"}));
}

void ScenarioInfoListTest::the30000thScenarioIsTheLast()
{
    CampaignData campaign = campaignFrom(false, std::vector<ScenarioData>(29999));
    QElapsedTimer clock;
    clock.start();
    OpenScenarioDialog open(campaign, 29998);
    QVERIFY(isEnabled(open, "addBtn"));
    open.click("addBtn");
    QCOMPARE(open.list()->count(), 30000);
    QCOMPARE(open.copy().scenarioCount, 30000u);
    QCOMPARE(open.list()->item(29999)->text(), QString("30000. Empty"));
    QVERIFY(!isEnabled(open, "addBtn"));
    open.click("addBtn");
    QCOMPARE(open.list()->count(), 30000);
    QCOMPARE(open.copy().scenarios.size(), std::size_t(30000));
    open.click("deleteBtn");
    QCOMPARE(open.list()->count(), 29999);
    QVERIFY(isEnabled(open, "addBtn"));
    QVERIFY(clock.elapsed() < unhurriedMilliseconds);
}

void ScenarioInfoListTest::deleteTakesTheSelectedScenario_data()
{
    QTest::addColumn<unsigned>("row");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("current");
    QTest::newRow("first") << 0u << QStringList{"1. b.e3m", "2. c.e3m", "3. d.e3m", "4. e.e3m"}
                           << 0;
    QTest::newRow("second") << 1u << QStringList{"1. a.e3m", "2. c.e3m", "3. d.e3m", "4. e.e3m"}
                            << 0;
    QTest::newRow("middle") << 2u << QStringList{"1. a.e3m", "2. b.e3m", "3. d.e3m", "4. e.e3m"}
                            << 1;
    QTest::newRow("last") << 4u << QStringList{"1. a.e3m", "2. b.e3m", "3. c.e3m", "4. d.e3m"} << 3;
}

void ScenarioInfoListTest::deleteTakesTheSelectedScenario()
{
    QFETCH(unsigned, row);
    QFETCH(int, current);
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, row);
    open.click("deleteBtn");
    QTEST(open.texts(), "texts");
    QCOMPARE(open.list()->currentRow(), current);
    checkSteps(open);
    QCOMPARE(isEnabled(open, "upBtn"), current > 0);
    QCOMPARE(isEnabled(open, "downBtn"), current < 3);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.copy().scenarioCount, 5u); // follows when the campaign is taken over
    QCOMPARE(campaign.scenarios.size(), std::size_t(5));
    // The scenario that is shown now is the one that is saved.
    difficulty(open)->setCurrentIndex((difficulty(open)->currentIndex() + 1) % 5);
    const int chosen = difficulty(open)->currentIndex();
    QVERIFY(open.dialog.saveScenarioInfo());
    QCOMPARE(int(open.copy().scenarios[std::size_t(current)].defaultDifficulty), chosen);
}

void ScenarioInfoListTest::deleteLeavesHigherBitsInTheirPlaces()
{
    CampaignData campaign = fiveInAChain();
    require(campaign, {"01111", "10111", "11011", "11101", "11110"});
    OpenScenarioDialog open(campaign, 2);
    open.click("deleteBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"01011", "10011", "11001", "11010"}));
}

void ScenarioInfoListTest::deleteDownToOne()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 1);
    for (int left = 4; left > 0; --left) {
        QVERIFY(isEnabled(open, "deleteBtn"));
        open.click("deleteBtn");
        QCOMPARE(open.list()->count(), left);
        checkSteps(open);
    }
    QCOMPARE(open.texts(), QStringList("1. e.e3m"));
    QVERIFY(!isEnabled(open, "deleteBtn"));
    QVERIFY(!isEnabled(open, "deleteAllBtn"));
    open.click("deleteBtn");
    QCOMPARE(open.list()->count(), 1);
}

void ScenarioInfoListTest::deleteAllKeepsTheSelectedScenario_data()
{
    QTest::addColumn<unsigned>("row");
    QTest::addColumn<QString>("text");
    QTest::newRow("first") << 0u << "1. a.e3m";
    QTest::newRow("third") << 2u << "1. c.e3m";
    QTest::newRow("last") << 4u << "1. e.e3m";
}

void ScenarioInfoListTest::deleteAllKeepsTheSelectedScenario()
{
    QFETCH(unsigned, row);
    QFETCH(QString, text);
    CampaignData campaign = fiveInAChain();
    require(campaign, {"01111", "10111", "11011", "11101", "11110"});
    addStories(campaign.scenarios[row], "kept");
    OpenScenarioDialog open(campaign, row);
    NextDialog question(pressing(QDialogButtonBox::Ok));
    open.click("deleteAllBtn");
    QCOMPARE(open.texts(), QStringList(text));
    QCOMPARE(open.list()->currentRow(), 0);
    checkSteps(open);
    QVERIFY(open.dialog.hasChanged());
    for (const char *button : {"upBtn", "downBtn", "deleteBtn", "deleteAllBtn"})
        QVERIFY2(!isEnabled(open, button), button);
    QVERIFY(isEnabled(open, "addBtn"));
    QCOMPARE(requiredIn(open.copy()), requiredIn(campaign).mid(int(row), 1)); // left as they were
    QCOMPARE(open.copy().scenarios[0].epilogues[2]->text, QString("kept ends"));
    QVERIFY(open.copy().scenarios[0].startOptions);
}

void ScenarioInfoListTest::deleteAllAsksFirst()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 2);
    NextDialog question([](QWidget *asked) {
        QCOMPARE(asked->metaObject()->className(), "AskDeleteAll");
        QCOMPARE(asked->windowTitle(), QString("Delete All"));
        QCOMPARE(asked->findChild<QLabel *>("label")->text(),
                 QString("Do you really want to delete all scenarios?"));
        QVERIFY(asked->isModal());
        QVERIFY(!(asked->windowFlags() & Qt::WindowContextHelpButtonHint));
        QCOMPARE(asked->minimumSize(), asked->maximumSize());
        QTest::keyClick(asked->windowHandle(), Qt::Key_Escape);
        QVERIFY(!asked->isVisible());
    });
    open.click("deleteAllBtn");
    QCOMPARE(open.list()->count(), 5);
}

void ScenarioInfoListTest::deleteAllRefusedChangesNothing()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 2);
    const QByteArrayList before = stateOf(open.copy());
    NextDialog question(pressing(QDialogButtonBox::Cancel));
    open.click("deleteAllBtn");
    QCOMPARE(open.list()->currentRow(), 2);
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(stateOf(open.copy()), before);
    checkSteps(open);
}

void ScenarioInfoListTest::deleteAllKeepsEditsOfTheScenarioThatStays()
{
    CampaignData campaign = fiveInAChain();
    OpenScenarioDialog open(campaign, 2);
    difficulty(open)->setCurrentIndex(4);
    NextDialog question(pressing(QDialogButtonBox::Ok));
    open.click("deleteAllBtn");
    QCOMPARE(difficulty(open)->currentIndex(), 4);
    QCOMPARE(int(open.copy().scenarios[0].defaultDifficulty), 4);
}

void ScenarioInfoListTest::movingExchangesScenarios_data()
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
void ScenarioInfoListTest::movingExchangesScenarios()
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

void ScenarioInfoListTest::movingLengthensShortArrays()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, {"", "1", "01"});
    OpenScenarioDialog open(campaign, 2);
    open.click("upBtn");
    QCOMPARE(requiredIn(open.copy()), QStringList({"000", "001", "100"}));
}

void ScenarioInfoListTest::movingSavesTheTabsFirst_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<std::size_t>("place");
    QTest::addColumn<std::size_t>("neighbour");
    QTest::newRow("up") << QByteArray("upBtn") << std::size_t(0) << std::size_t(1);
    QTest::newRow("down") << QByteArray("downBtn") << std::size_t(2) << std::size_t(1);
}

void ScenarioInfoListTest::movingSavesTheTabsFirst()
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
void ScenarioInfoListTest::movingShowsTheNewPlace()
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

void ScenarioInfoListTest::movingThereAndBackChangesNoData()
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
void ScenarioInfoListTest::circlesMoveAndGo()
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

QTEST_MAIN(ScenarioInfoListTest)
#include "scenario_info_list_test.moc"
