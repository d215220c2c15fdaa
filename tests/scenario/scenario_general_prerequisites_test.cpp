// The list of prerequisites: what it offers, and what a click on it does.
#include "tests/scenario/general_tab.h"
#include "tests/support/processor_time.h"

class ScenarioGeneralPrerequisitesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init() { fixture->reset(); }

    void itemsOfferTheOtherMaps();
    void listShowsWhatIsRequired_data();
    void listShowsWhatIsRequired();
    void campaignWithoutMapHasNoList();
    void checkingImpliesWhatThePrerequisiteRequires();
    void checkingTakesWhatIsImpliedFromThoseThatRequireThis();
    void uncheckingMakesTheIndirectDirect();
    void uncheckingLeavesOthersTheirDependency();
    void impliedBoxesAndTextsTakeNoClick();
    void oneClickIsAChange();
    void listIsThatOfTheSelectedScenario();
    void cyclesInAFileHarmNothing();
    void twoThatRequireEachOtherHarmNothing();
    void ownBitHarmsNothing();
    void bitsOfAbsentScenariosHarmNothing();
    void shortArraysGrow();
    void manyWaysThroughTheGraphTakeNoTime();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioGeneralPrerequisitesTest::initTestCase()
{
    fixture = std::make_unique<ScenarioFixture>();
    addRegions(128);
}

void ScenarioGeneralPrerequisitesTest::itemsOfferTheOtherMaps()
{
    CampaignData campaign = campaignOf(true, {"north", "", "south", "west"});
    GeneralTab tab(campaign, 2);
    QCOMPARE(tab.prerequisites()->count(), 2);
    const QListWidgetItem *first = tab.prerequisites()->item(0);
    const QListWidgetItem *second = tab.prerequisites()->item(1);
    QCOMPARE(first->text(), QStringLiteral("north map — Alder Bay"));
    QCOMPARE(first->data(Qt::UserRole).toInt(), 0);
    QCOMPARE(second->text(), QStringLiteral("west map — Reach 3"));
    QCOMPARE(second->data(Qt::UserRole).toInt(), 3);
    for (const QListWidgetItem *item : {first, second}) {
        QVERIFY(item->flags() & Qt::ItemIsUserCheckable);
        QVERIFY(!(item->flags() & Qt::ItemIsDragEnabled));
    }
}

void ScenarioGeneralPrerequisitesTest::listShowsWhatIsRequired_data()
{
    QTest::addColumn<int>("selected");
    QTest::addColumn<QStringList>("rows");
    // 0 requires 1, which requires 2, which requires 3; 4 stands alone; 5 has no map.
    QTest::newRow("first of the chain")
        << 0 << QStringList{"1 checked", "2 implied", "3 implied", "4 free"};
    QTest::newRow("second, which the first requires")
        << 1 << QStringList{"2 checked", "3 implied", "4 free"};
    QTest::newRow("last, which all require") << 3 << QStringList{"4 free"};
    QTest::newRow("alone") << 4 << QStringList{"0 free", "1 free", "2 free", "3 free"};
    QTest::newRow("without a map") << 5 << QStringList();
}

void ScenarioGeneralPrerequisitesTest::listShowsWhatIsRequired()
{
    QFETCH(int, selected);
    QFETCH(QStringList, rows);
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d", "e", ""});
    require(campaign, 0, {1});
    require(campaign, 1, {2});
    require(campaign, 2, {3});
    GeneralTab tab(campaign, unsigned(selected));
    QCOMPARE(tab.shownPrerequisites(), rows);
    tab.select(selected == 0 ? 1 : 0);
    tab.select(selected);
    QCOMPARE(tab.shownPrerequisites(), rows);
}

void ScenarioGeneralPrerequisitesTest::campaignWithoutMapHasNoList()
{
    CampaignData campaign = campaignOf(false, {"a", "b"});
    GeneralTab tab(campaign);
    QCOMPARE(tab.prerequisites()->count(), 0);
    QVERIFY(!tab.prerequisites()->isVisible());
}

void ScenarioGeneralPrerequisitesTest::checkingImpliesWhatThePrerequisiteRequires()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d"});
    require(campaign, 0, {2});
    require(campaign, 1, {2});
    require(campaign, 2, {3});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 checked", "3 implied"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied", "3 implied"}));
    QCOMPARE(tab.storedFor(0), QList<int>({1}));
    QCOMPARE(tab.storedFor(1), QList<int>({2}));
    QCOMPARE(tab.storedFor(2), QList<int>({3}));
    tab.select(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"2 checked", "3 implied"}));
}

void ScenarioGeneralPrerequisitesTest::checkingTakesWhatIsImpliedFromThoseThatRequireThis()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d", "e"});
    require(campaign, 1, {0, 4}); // both, and the second comes with the first from now on
    require(campaign, 2, {0});
    require(campaign, 3, {4});
    GeneralTab tab(campaign);
    tab.clickOnBoxOf(4);
    QCOMPARE(tab.storedFor(0), QList<int>({4}));
    QCOMPARE(tab.storedFor(1), QList<int>({0}));
    QCOMPARE(tab.storedFor(2), QList<int>({0}));
    QCOMPARE(tab.storedFor(3), QList<int>({4}));
}

void ScenarioGeneralPrerequisitesTest::uncheckingMakesTheIndirectDirect()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d"});
    require(campaign, 0, {1});
    require(campaign, 1, {2});
    require(campaign, 2, {3});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied", "3 implied"}));
    tab.clickOnBoxOf(1);
    // Scenario 3 is implied by 2 as well, and a direct one all the same.
    QCOMPARE(tab.storedFor(0), QList<int>({2, 3}));
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 checked", "3 checked"}));
    tab.clickOnBoxOf(3);
    QCOMPARE(tab.storedFor(0), QList<int>({2}));
    tab.select(1);
    tab.select(0);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 checked", "3 implied"}));
}

void ScenarioGeneralPrerequisitesTest::uncheckingLeavesOthersTheirDependency()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d"});
    require(campaign, 0, {3});
    require(campaign, 1, {0});
    require(campaign, 2, {1});
    GeneralTab tab(campaign);
    tab.clickOnBoxOf(3);
    QCOMPARE(tab.storedFor(0), QList<int>());
    QCOMPARE(tab.storedFor(1), QList<int>({0, 3}));
    QCOMPARE(tab.storedFor(2), QList<int>({1}));
}

void ScenarioGeneralPrerequisitesTest::impliedBoxesAndTextsTakeNoClick()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, 0, {1});
    require(campaign, 1, {2});
    GeneralTab tab(campaign);
    tab.clickOnBoxOf(2);
    const QRect text = tab.prerequisites()->visualItemRect(tab.prerequisite(1));
    clickOn(tab.prerequisites()->viewport(), {text.left() + 60, text.center().y()});
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied"}));
    QCOMPARE(tab.storedFor(0), QList<int>({1}));
    QVERIFY(!tab.dialog.hasChanged());
}

void ScenarioGeneralPrerequisitesTest::oneClickIsAChange()
{
    CampaignData campaign = campaignOf(true, {"a", "b"});
    {
        GeneralTab tab(campaign);
        QVERIFY(!tab.dialog.hasChanged());
        tab.clickOnBoxOf(1);
        QVERIFY(tab.dialog.hasChanged());
        QCOMPARE(tab.storedFor(0), QList<int>({1}));
    }
    QVERIFY(!campaign.scenarios[0].prerequisites.testBit(1)); // only the dialog's copy
    require(campaign, 0, {1});
    GeneralTab tab(campaign);
    tab.clickOnBoxOf(1);
    QVERIFY(tab.dialog.hasChanged());
    QCOMPARE(tab.storedFor(0), QList<int>());
}

void ScenarioGeneralPrerequisitesTest::listIsThatOfTheSelectedScenario()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    GeneralTab tab(campaign);
    tab.clickOnBoxOf(2);
    tab.select(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 free", "2 free"}));
    tab.clickOnBoxOf(0);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 checked", "2 implied"}));
    tab.select(2);
    QCOMPARE(tab.shownPrerequisites(), QStringList());
    QCOMPARE(tab.storedFor(0), QList<int>({2}));
    QCOMPARE(tab.storedFor(1), QList<int>({0}));
}

void ScenarioGeneralPrerequisitesTest::cyclesInAFileHarmNothing()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d"});
    require(campaign, 0, {1});
    require(campaign, 1, {2});
    require(campaign, 2, {0});
    require(campaign, 3, {0});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>({2}));
    QCOMPARE(tab.storedFor(3), QList<int>({0, 1}));
    tab.select(3);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 checked", "1 checked", "2 implied"}));
    tab.clickOnBoxOf(0);
    QVERIFY(!tab.storedFor(3).contains(0));
    QVERIFY(!tab.storedFor(3).contains(3));
    for (int scenario = 0; scenario < 3; ++scenario) {
        tab.select(scenario);
        tab.click("removeButton");
    }
    for (int scenario = 0; scenario < 4; ++scenario)
        QCOMPARE(tab.storedFor(scenario), QList<int>());
}

void ScenarioGeneralPrerequisitesTest::twoThatRequireEachOtherHarmNothing()
{
    CampaignData campaign = campaignOf(true, {"a", "b"});
    require(campaign, 0, {1});
    require(campaign, 1, {0});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.storedFor(0), QList<int>());
    QCOMPARE(tab.storedFor(1), QList<int>({0}));
}

void ScenarioGeneralPrerequisitesTest::ownBitHarmsNothing()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, 0, {0});
    require(campaign, 1, {1, 2});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 free"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 checked"}));
    tab.click("removeButton");
    QCOMPARE(tab.storedFor(0), QList<int>());
}

void ScenarioGeneralPrerequisitesTest::bitsOfAbsentScenariosHarmNothing()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, 0, {11});
    require(campaign, 1, {2, 7, 90});
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 free"}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 checked", "2 implied"}));
    QCOMPARE(tab.storedFor(0), QList<int>({1, 11}));
    tab.clickOnBoxOf(1);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 checked"}));
    tab.click("removeButton");
    QCOMPARE(tab.storedFor(0), QList<int>());
    QCOMPARE(tab.copy().scenarios[0].prerequisites.size(), 3);
}

void ScenarioGeneralPrerequisitesTest::shortArraysGrow()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    for (ScenarioData &scenario : campaign.scenarios)
        scenario.prerequisites.clear();
    GeneralTab tab(campaign);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free", "2 free"}));
    tab.clickOnBoxOf(2);
    QCOMPARE(tab.storedFor(0), QList<int>({2}));
    tab.select(1);
    tab.clickOnBoxOf(0);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 checked", "2 implied"}));
    tab.select(0);
    tab.clickOnBoxOf(2);
    QCOMPARE(tab.storedFor(1), QList<int>({0, 2}));
}

// Sixty-four layers of two, each of which requires both of the layer below.
void ScenarioGeneralPrerequisitesTest::manyWaysThroughTheGraphTakeNoTime()
{
    constexpr int layers = 64;
    constexpr int top = 2 * layers - 2;
    QStringList names;
    for (int i = 0; i < 2 * layers; ++i)
        names << "m" + QString::number(i);
    CampaignData campaign = campaignOf(true, names);
    for (int i = 2; i < 2 * layers; ++i)
        require(campaign, i, {i - 2 - i % 2, i - 1 - i % 2});
    const ProcessorTime time;
    GeneralTab tab(campaign, top);
    QCOMPARE(tab.prerequisites()->count(), 2 * layers - 1);
    QCOMPARE(tab.shownPrerequisites().filter("implied").size(), top - 2);
    tab.clickOnBoxOf(top - 2);
    QCOMPARE(tab.storedFor(top).size(), top - 1); // all below but the one
    tab.clickOnBoxOf(top - 2);
    QCOMPARE(tab.storedFor(top), QList<int>({top - 2, top - 1}));
    tab.select(0);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"1 free"}));
    tab.clickOnBoxOf(1);
    tab.click("removeButton");
    const qint64 milliseconds = time.milliseconds();
    QVERIFY2(milliseconds < unhurriedMilliseconds, qPrintable(QString::number(milliseconds)));
}

QTEST_MAIN(ScenarioGeneralPrerequisitesTest)
#include "scenario_general_prerequisites_test.moc"
