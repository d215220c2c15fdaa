// The scenario dialog's list: its texts, adding and deleting, and when each is possible.
#include "tests/scenario/scenario_list.h"
#include "tests/support/processor_time.h"

#include <QDialogButtonBox>
#include <QLabel>

class ScenarioInfoListTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void listNamesTheScenarios_data();
    void listNamesTheScenarios();
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

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

namespace {

NextDialog::Answer pressing(QDialogButtonBox::StandardButton button)
{
    return [button](QWidget *question) {
        clickOn(question->findChild<QDialogButtonBox *>("buttonBox")->button(button));
    };
}

} // namespace

void ScenarioInfoListTest::listNamesTheScenarios_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("regions") << true
                             << QStringList{QString::fromUtf8("one.e3m — Alder Bay"),
                                            QString::fromUtf8("Empty — Birch Hill"),
                                            QString::fromUtf8("three.e3m — Cedar Fen")};
    QTest::newRow("a chain") << false << QStringList{"1. one.e3m", "2. Empty", "3. three.e3m"};
}

void ScenarioInfoListTest::listNamesTheScenarios()
{
    QFETCH(bool, hasMap);
    CampaignData campaign = campaignOf(hasMap, {"one", "", "three"});
    OpenScenarioDialog open(campaign);
    QTEST(open.texts(), "texts");
    for (int row = 0; row < open.list()->count(); ++row)
        QCOMPARE(open.list()->item(row)->data(Qt::UserRole), QVariant(row));
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
    const ProcessorTime time;
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
    QVERIFY(time.milliseconds() < unhurriedMilliseconds);
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

QTEST_MAIN(ScenarioInfoListTest)
#include "scenario_info_list_test.moc"
