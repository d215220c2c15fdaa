// The boxes and the numbers of the tabs for stories: which stories begin, go and come into view.
#include "tests/scenario/stories_tab.h"

class ScenarioPrologueBoxesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void storyBegins_data();
    void storyBegins();
    void storyGoesWhenSaved_data();
    void storyGoesWhenSaved();
    void uncheckingDropsTheOtherStoriesAtOnce_data();
    void uncheckingDropsTheOtherStoriesAtOnce();
    void uncheckingWithNothingToDropChangesNothing();
    void uncheckingAtAnotherNumber_data();
    void uncheckingAtAnotherNumber();
    void checkedAgainBeginsAnew_data();
    void checkedAgainBeginsAnew();
    void numbersComeBackWithTheBox_data();
    void numbersComeBackWithTheBox();
    void boxOfOneStory_data();
    void boxOfOneStory();
    void boxOfOneStoryBeginsIt();
    void numberStoresAndShowsAnother_data();
    void numberStoresAndShowsAnother();
    void currentNumberChangesNothing();
    void currentNumberIsLeftBlocked();
    void blockedNumberIsFreedWithItsStory();
    void storyBegunAnewIsEmpty();
    void boxTellsOfTheFirstStory_data();
    void boxTellsOfTheFirstStory();
    void scenarioWithAMapMayHaveAStory();
    void boxesAreTraced();

private:
    std::unique_ptr<ScenarioFixture> m_fixture;
};

void ScenarioPrologueBoxesTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioPrologueBoxesTest::init()
{
    m_fixture->reset();
}

void ScenarioPrologueBoxesTest::storyBegins_data()
{
    addBothTabs();
}

void ScenarioPrologueBoxesTest::storyBegins()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    storiesOf(campaign.scenarios[0], tab).fill(nullptr);
    StoriesTab open(campaign, tab);
    open.clickBox(open.hasStory());
    QCOMPARE(open.enabledControls(), storyControls);
    QCOMPARE(open.stillColour(), tiny::movieColour(0));
    QCOMPARE(open.musicName(), QString("Music 0"));
    QCOMPARE(open.shown(), QString("0 0 "));
    QCOMPARE(open.stored(), QStringList({"-", "-", "-"}));
    QVERIFY(open.save());
    QCOMPARE(open.stored(), QStringList({"0 0 ", "-", "-"}));
}

void ScenarioPrologueBoxesTest::storyGoesWhenSaved_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<bool>("answer");
    QTest::newRow("a prologue reports no change") << prologueTab << false;
    QTest::newRow("an epilogue does") << epilogueTab << true;
}

void ScenarioPrologueBoxesTest::storyGoesWhenSaved()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(1);
    for (const std::size_t ix : {1U, 2U})
        storiesOf(campaign.scenarios[0], tab)[ix].reset();
    StoriesTab open(campaign, tab);
    open.clickBox(open.hasStory());
    QCOMPARE(open.stored().first(), QString("1 2 one"));
    const bool answer = open.save();
    QTEST(answer, "answer");
    QCOMPARE(open.stored(), QStringList({"-", "-", "-"}));
    QVERIFY(open.dialog.hasChanged());
    QVERIFY(!open.save());
}

void ScenarioPrologueBoxesTest::uncheckingDropsTheOtherStoriesAtOnce_data()
{
    addBothTabs();
}

void ScenarioPrologueBoxesTest::uncheckingDropsTheOtherStoriesAtOnce()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.clickBox(open.hasStory());
    QCOMPARE(open.stored(), QStringList({"1 2 one", "-", "-"}));
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.shownNumbers(), QString());
    QCOMPARE(open.enabledControls(), QStringList());
    QVERIFY(!open.stillColour().isValid());
    QCOMPARE(open.shown(), QString("0 0 "));
    open.showTab(generalTab);
    QCOMPARE(open.stored(), QStringList({"-", "-", "-"}));
}

void ScenarioPrologueBoxesTest::uncheckingWithNothingToDropChangesNothing()
{
    CampaignData campaign = storyCampaign(1);
    for (const std::size_t ix : {1U, 2U})
        campaign.scenarios[0].prologues[ix].reset();
    for (auto &told : campaign.scenarios[0].epilogues)
        told.reset();
    StoriesTab open(campaign, prologueTab);
    open.clickBox(open.hasStory());
    QVERIFY(!open.dialog.hasChanged());
}

void ScenarioPrologueBoxesTest::uncheckingAtAnotherNumber_data()
{
    addBothTabs();
}

void ScenarioPrologueBoxesTest::uncheckingAtAnotherNumber()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(1);
    open.clickBox(open.hasStory());
    QCOMPARE(open.stored(), QStringList({"-", "2 1 two", "-"}));
    QCOMPARE(open.save(), tab == epilogueTab);
    QCOMPARE(open.stored(), QStringList({"-", "-", "-"}));
}

void ScenarioPrologueBoxesTest::checkedAgainBeginsAnew_data()
{
    QTest::addColumn<int>("ix");
    QTest::addColumn<QStringList>("stored");
    QTest::newRow("the first") << 0 << QStringList{"0 0 X", "-", "-"};
    QTest::newRow("another") << 1 << QStringList{"-", "0 0 X", "-"};
}

void ScenarioPrologueBoxesTest::checkedAgainBeginsAnew()
{
    QFETCH(int, ix);
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[0] = story(200, 201, "");
    StoriesTab open(campaign, prologueTab);
    open.press(ix);
    open.clickBox(open.hasStory());
    open.clickBox(open.hasStory());
    QCOMPARE(open.enabledControls(), storyControls);
    open.type("X");
    QVERIFY(open.save());
    QTEST(open.stored(), "stored");
}

void ScenarioPrologueBoxesTest::numbersComeBackWithTheBox_data()
{
    QTest::addColumn<int>("options");
    QTest::addColumn<QString>("numbers");
    QTest::newRow("none") << 0 << "";
    QTest::newRow("one") << 1 << "";
    QTest::newRow("two") << 2 << "1 2";
    QTest::newRow("three") << 3 << "1 2 3";
}

void ScenarioPrologueBoxesTest::numbersComeBackWithTheBox()
{
    QFETCH(int, options);
    CampaignData campaign = storyCampaign(options);
    StoriesTab open(campaign, prologueTab);
    open.clickBox(open.hasStory());
    QCOMPARE(open.shownNumbers(), QString());
    open.clickBox(open.hasStory());
    QTEST(open.shownNumbers(), "numbers");
}

void ScenarioPrologueBoxesTest::boxOfOneStory_data()
{
    addBothTabs();
}

void ScenarioPrologueBoxesTest::boxOfOneStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(1);
    open.clickBox(open.setUp());
    QCOMPARE(open.enabledControls(), QStringList());
    QCOMPARE(open.shownNumbers(), QString("1 2 3"));
    QVERIFY(open.hasStory()->isChecked());
    QCOMPARE(open.stored(), allThree);
    QVERIFY(!open.dialog.hasChanged());
    open.press(2);
    QCOMPARE(open.stored(), QStringList({"1 2 one", "-", "0 0 three"}));
    QVERIFY(open.dialog.hasChanged());
    open.press(1);
    QVERIFY(!open.setUp()->isChecked());
}

void ScenarioPrologueBoxesTest::boxOfOneStoryBeginsIt()
{
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[2].reset();
    StoriesTab open(campaign, prologueTab);
    open.press(2);
    QCOMPARE(open.enabledControls(), QStringList());
    open.clickBox(open.setUp());
    QCOMPARE(open.enabledControls(), storyControls);
    open.chooseMusic(1);
    QVERIFY(open.save());
    QCOMPARE(open.stored(), QStringList({"1 2 one", "2 1 two", "0 1 "}));
}

void ScenarioPrologueBoxesTest::numberStoresAndShowsAnother_data()
{
    addBothTabs();
}

void ScenarioPrologueBoxesTest::numberStoresAndShowsAnother()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(2);
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(open.page()->currentIndex(), 2U);
    open.type("X");
    open.press(1);
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.stored(), QStringList({"1 2 one", "2 1 two", "0 0 threeX"}));
    QCOMPARE(open.shown(), QString("2 1 two"));
    QCOMPARE(open.pressedNumber(), 2);
    for (int ix = 0; ix < 3; ++ix)
        QVERIFY(!open.number(ix)->signalsBlocked());
}

void ScenarioPrologueBoxesTest::currentNumberChangesNothing()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    const auto before = open.stories();
    open.type("X");
    open.press(1);
    open.press(1);
    QVERIFY(open.stories() == before);
    QVERIFY(!open.dialog.hasChanged());
    QCOMPARE(open.shown(), QString("2 1 twoX"));
    QCOMPARE(open.pressedNumber(), 2);
}

void ScenarioPrologueBoxesTest::currentNumberIsLeftBlocked()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(0);
    QVERIFY(open.number(0)->signalsBlocked());
    open.press(0);
    QVERIFY(open.number(0)->signalsBlocked());
    open.press(2);
    QVERIFY(!open.number(0)->signalsBlocked());
    QVERIFY(!open.number(2)->signalsBlocked());
    open.press(0);
    QCOMPARE(open.shown(), QString("1 2 one"));
}

void ScenarioPrologueBoxesTest::blockedNumberIsFreedWithItsStory()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    open.press(1);
    QVERIFY(open.number(1)->signalsBlocked());
    open.select(1);
    open.select(0);
    QCOMPARE(open.shown(), QString("1 2 one"));
    open.press(1);
    QCOMPARE(open.shown(), QString("2 1 two"));
}

// The video stays as it was chosen; its still doesn't.
void ScenarioPrologueBoxesTest::storyBegunAnewIsEmpty()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.page()->enableUIpartial();
    QCOMPARE(open.shown(), QString("1 0 "));
    QCOMPARE(open.musicName(), QString("Music 0"));
    QCOMPARE(open.stillColour(), tiny::movieColour(0));
}

void ScenarioPrologueBoxesTest::boxTellsOfTheFirstStory_data()
{
    QTest::addColumn<int>("missing");
    QTest::addColumn<bool>("hasStory");
    QTest::addColumn<bool>("setUp");
    QTest::newRow("another") << 2 << true << true;
    QTest::newRow("the first") << 0 << false << true;
    QTest::newRow("the one on show") << 1 << true << false;
}

void ScenarioPrologueBoxesTest::boxTellsOfTheFirstStory()
{
    QFETCH(int, missing);
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[std::size_t(missing)].reset();
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    QTEST(open.hasStory()->isChecked(), "hasStory");
    QTEST(open.setUp()->isChecked(), "setUp");
}

void ScenarioPrologueBoxesTest::scenarioWithAMapMayHaveAStory()
{
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0] = ScenarioData();
    StoriesTab open(campaign, prologueTab);
    QVERIFY(!open.hasStory()->isEnabled());
    open.select(1);
    QVERIFY(open.hasStory()->isEnabled());
    QVERIFY(!open.hasStory()->isChecked());
}

void ScenarioPrologueBoxesTest::boxesAreTraced()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    const TraceRecorder traces;
    open.clickBox(open.hasStory());
    QCOMPARE(TraceRecorder::messages(), QStringList("CLICK"));
}

QTEST_MAIN(ScenarioPrologueBoxesTest)
#include "scenario_prologue_boxes_test.moc"
