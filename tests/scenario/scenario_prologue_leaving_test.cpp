// What the scenario dialog does with a story that is on show when the user goes elsewhere: it is
// stored, whatever comes next, and stories go with their start options.
#include "scenario/starting_bonus.h"
#include "tests/scenario/stories_tab.h"

namespace {

constexpr int crossoverTab = 3;

const QStringList secondEdited{"1 2 one", "2 1 twoX", "0 0 three"};

// Of the tab that isn't in front.
int otherStories(int tab)
{
    return tab == prologueTab ? epilogueTab : prologueTab;
}

void removeOption(StoriesTab &open, int row)
{
    open.showTab(startOptionsTab);
    auto *options = open.dialog.findChild<StartingBonus *>();
    auto *table = childOf<QTableWidget>(options, "tableWidget");
    clickOn(table->viewport(), table->visualItemRect(table->item(row, 0)).center());
    clickOn(childOf<QPushButton>(options, "removeButton"));
}

// Both stories at `ix`, of prologues and of epilogues, are there, or neither is.
bool bothAre(StoriesTab &open, std::size_t ix, bool there)
{
    const ScenarioData &first = open.copy().scenarios[0];
    return bool(first.prologues[ix]) == there && bool(first.epilogues[ix]) == there;
}

} // namespace

class ScenarioPrologueLeavingTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void leavingTheTabStoresItsStory_data();
    void leavingTheTabStoresItsStory();
    void leavingTheTabDropsAStoryWithoutItsBox_data();
    void leavingTheTabDropsAStoryWithoutItsBox();
    void selectingAnotherScenarioStoresTheStory_data();
    void selectingAnotherScenarioStoresTheStory();
    void numbersAreThoseOfTheScenarioSelected_data();
    void numbersAreThoseOfTheScenarioSelected();
    void savingTheDialogStoresTheStory_data();
    void savingTheDialogStoresTheStory();
    void storiesGoWithTheirOption_data();
    void storiesGoWithTheirOption();
    void tabsWithoutStoriesLeaveThemAlone();

private:
    std::unique_ptr<ScenarioFixture> m_fixture;
};

void ScenarioPrologueLeavingTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioPrologueLeavingTest::init()
{
    m_fixture->reset();
}

void ScenarioPrologueLeavingTest::leavingTheTabStoresItsStory_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("next");
    for (const int tab : {prologueTab, epilogueTab}) {
        for (const int next :
             {generalTab, prologueTab, epilogueTab, crossoverTab, startOptionsTab}) {
            if (next != tab)
                QTest::addRow("from tab %d to tab %d", tab, next) << tab << next;
        }
    }
}

void ScenarioPrologueLeavingTest::leavingTheTabStoresItsStory()
{
    QFETCH(int, tab);
    QFETCH(int, next);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(1);
    open.type("X");
    QCOMPARE(open.stored(), allThree);
    open.showTab(next);
    QCOMPARE(open.stored(), secondEdited);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(storiesOf(open.copy().scenarios[0], otherStories(tab))[1]->text, QString("two"));
    open.showTab(tab);
    QCOMPARE(open.shown(), QString("1 2 one"));
    open.press(1);
    QCOMPARE(open.shown(), QString("2 1 twoX"));
}

void ScenarioPrologueLeavingTest::leavingTheTabDropsAStoryWithoutItsBox_data()
{
    addBothTabs();
}

void ScenarioPrologueLeavingTest::leavingTheTabDropsAStoryWithoutItsBox()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(2);
    open.clickBox(open.setUp());
    open.showTab(generalTab);
    QCOMPARE(open.stored(), QStringList({"1 2 one", "2 1 two", "-"}));
    QVERIFY(open.dialog.hasChanged());
    QVERIFY(storiesOf(open.copy().scenarios[0], otherStories(tab))[2]);
}

void ScenarioPrologueLeavingTest::selectingAnotherScenarioStoresTheStory_data()
{
    addBothTabs();
}

void ScenarioPrologueLeavingTest::selectingAnotherScenarioStoresTheStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(1);
    open.type("X");
    open.select(1);
    QCOMPARE(open.stored(), secondEdited);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.shown(), QString("0 0 "));
    QVERIFY(!storiesOf(open.copy().scenarios[1], tab)[1]);
}

void ScenarioPrologueLeavingTest::numbersAreThoseOfTheScenarioSelected_data()
{
    addBothTabs();
}

// Its start options are loaded before its stories.
void ScenarioPrologueLeavingTest::numbersAreThoseOfTheScenarioSelected()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[1].startOptions = resourceBonuses(2);
    StoriesTab open(campaign, tab);
    QCOMPARE(open.shownNumbers(), QString("1 2 3"));
    open.select(1);
    QCOMPARE(open.shownNumbers(), QString("1 2"));
    open.select(0);
    QCOMPARE(open.shownNumbers(), QString("1 2 3"));
    QCOMPARE(open.stored(), allThree);
}

void ScenarioPrologueLeavingTest::savingTheDialogStoresTheStory_data()
{
    addBothTabs();
}

void ScenarioPrologueLeavingTest::savingTheDialogStoresTheStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(1);
    open.type("X");
    QVERIFY(open.dialog.saveScenarioInfo());
    QCOMPARE(open.stored(), secondEdited);
}

void ScenarioPrologueLeavingTest::storiesGoWithTheirOption_data()
{
    QTest::addColumn<QByteArray>("where");
    for (const char *where : {"to the prologue", "to the epilogue", "to another scenario"})
        QTest::newRow(where) << QByteArray(where);
}

void ScenarioPrologueLeavingTest::storiesGoWithTheirOption()
{
    QFETCH(QByteArray, where);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    removeOption(open, 2);
    QVERIFY(bothAre(open, 2, true));
    if (where == "to the prologue")
        open.showTab(prologueTab);
    else if (where == "to the epilogue")
        open.showTab(epilogueTab);
    else
        open.select(1);
    QVERIFY(bothAre(open, 2, false));
    QVERIFY(bothAre(open, 1, true));
    QVERIFY(open.dialog.hasChanged());
}

void ScenarioPrologueLeavingTest::tabsWithoutStoriesLeaveThemAlone()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    removeOption(open, 2);
    open.showTab(crossoverTab);
    open.showTab(generalTab);
    QVERIFY(bothAre(open, 2, true));
}

QTEST_MAIN(ScenarioPrologueLeavingTest)
#include "scenario_prologue_leaving_test.moc"
