// The stories that the two tabs store and drop: what choices and texts become, what stays as it
// was, and which go with the start options.
#include "scenario/starting_bonus.h"
#include "tests/scenario/stories_tab.h"

namespace {

// All pages shown, all numbers pressed, and back again.
void walkThrough(StoriesTab &open)
{
    for (const int ix : {1, 2, 0, 2, 1})
        open.press(ix);
    open.select(1);
    open.select(0);
    for (const int tab : {generalTab, epilogueTab, prologueTab, startOptionsTab, open.tab})
        open.showTab(tab);
}

} // namespace

class ScenarioPrologueStoriesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void storyNobodyTouchedStays_data();
    void storyNobodyTouchedStays();
    void choicesAreStored_data();
    void choicesAreStored();
    void documentsRecordStays();
    void recordIsReplacedEvenIfNothingChanged();
    void oneChoiceLeavesUnknownNumbersAlone();
    void shownVideoReplacesAnUnknownOneOnceChosen();
    void editedTextIsStoredAsShown();
    void undoneTextIsStoredAgain();
    void anyLengthOfText();
    void savesIntoAnotherIndex();
    void removedOptionDropsItsStory_data();
    void removedOptionDropsItsStory();
    void storiesBeyondTheOptionsAreDropped_data();
    void storiesBeyondTheOptionsAreDropped();

private:
    std::unique_ptr<ScenarioFixture> m_fixture;
};

void ScenarioPrologueStoriesTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioPrologueStoriesTest::init()
{
    m_fixture->reset();
}

void ScenarioPrologueStoriesTest::storyNobodyTouchedStays_data()
{
    QTest::addColumn<int>("video");
    QTest::addColumn<int>("music");
    QTest::addColumn<QString>("text");
    QTest::newRow("known") << 1 << 1 << "plain";
    QTest::newRow("unknown video") << 200 << 1 << "plain";
    QTest::newRow("unknown music") << 1 << 200 << "plain";
    QTest::newRow("unknown both") << 255 << 255 << "";
    QTest::newRow("line ends") << 1 << 1 << "a\r\nb\rc\n";
    QTest::newRow("hard spaces") << 1 << 1 << QString("a") + QChar(0xa0) + "b";
    QTest::newRow("separators") << 1 << 1 << QString("a") + QChar(0x2029) + QChar(0x2028) + "b";
    QTest::newRow("markup") << 1 << 1 << "<b>a</b>";
}

void ScenarioPrologueStoriesTest::storyNobodyTouchedStays()
{
    QFETCH(int, video);
    QFETCH(int, music);
    QFETCH(QString, text);
    CampaignData campaign = storyCampaign(3);
    for (const int tab : {prologueTab, epilogueTab}) {
        for (auto &told : storiesOf(campaign.scenarios[0], tab))
            told = story(video, music, text);
    }
    const QByteArrayList before = stateOf(campaign);
    for (const int tab : {prologueTab, epilogueTab}) {
        StoriesTab open(campaign, tab);
        walkThrough(open);
        QVERIFY(!open.dialog.saveScenarioInfo());
        QVERIFY(!open.dialog.hasChanged());
        QCOMPARE(stateOf(open.copy()), before);
        QCOMPARE(open.stories()[1]->text, text);
    }
}

void ScenarioPrologueStoriesTest::choicesAreStored_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QByteArray>("choice");
    QTest::addColumn<QString>("stored");
    for (const int tab : {prologueTab, epilogueTab}) {
        QTest::addRow("video %d", tab) << tab << QByteArray("video") << "2 2 one";
        QTest::addRow("music %d", tab) << tab << QByteArray("music") << "1 0 one";
        QTest::addRow("text %d", tab) << tab << QByteArray("text") << "1 2 oneX";
    }
}

void ScenarioPrologueStoriesTest::choicesAreStored()
{
    QFETCH(int, tab);
    QFETCH(QByteArray, choice);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    if (choice == "video")
        open.chooseNextVideo();
    else if (choice == "music")
        open.chooseMusic(0);
    else
        open.type("X");
    QCOMPARE(open.stored(), allThree);
    QVERIFY(open.save());
    QTEST(open.stored().first(), "stored");
    QCOMPARE(open.stored().mid(1), allThree.mid(1));
    QVERIFY(!open.save());
}

void ScenarioPrologueStoriesTest::documentsRecordStays()
{
    CampaignData campaign = storyCampaign(3);
    const QByteArrayList before = stateOf(campaign);
    StoriesTab open(campaign, prologueTab);
    open.type("X");
    open.press(1);
    open.clickBox(open.setUp());
    open.press(2);
    QCOMPARE(open.stored(), QStringList({"1 2 oneX", "-", "0 0 three"}));
    QCOMPARE(stateOf(campaign), before);
}

void ScenarioPrologueStoriesTest::recordIsReplacedEvenIfNothingChanged()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    const auto before = open.stories()[0];
    QVERIFY(!open.save());
    QVERIFY(open.stories()[0] != before);
    QCOMPARE(open.stored(), allThree);
}

void ScenarioPrologueStoriesTest::oneChoiceLeavesUnknownNumbersAlone()
{
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[0] = story(200, 201, "a\r\nb");
    StoriesTab open(campaign, prologueTab);
    open.chooseMusic(2);
    QVERIFY(open.save());
    QCOMPARE(open.stored().first(), QString("200 2 a\r\nb"));
    open.chooseNextVideo();
    QVERIFY(open.save());
    QCOMPARE(open.stored().first(), QString("1 2 a\r\nb"));
}

// What the box shows for it isn't the story's; another video and back again is.
void ScenarioPrologueStoriesTest::shownVideoReplacesAnUnknownOneOnceChosen()
{
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[0] = story(200, 1, "odd");
    StoriesTab open(campaign, prologueTab);
    QCOMPARE(open.shown(), QString("0 1 odd"));
    open.chooseNextVideo();
    open.choosePreviousVideo();
    QVERIFY(open.save());
    QCOMPARE(open.stored().first(), QString("0 1 odd"));
}

void ScenarioPrologueStoriesTest::editedTextIsStoredAsShown()
{
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[0] = story(1, 1, "a\r\nb");
    StoriesTab open(campaign, prologueTab);
    open.text()->moveCursor(QTextCursor::End);
    QTest::keyClicks(open.text(), "c");
    QVERIFY(open.save());
    QCOMPARE(open.stored().first(), QString("1 1 a\nbc"));
}

void ScenarioPrologueStoriesTest::undoneTextIsStoredAgain()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.type("X");
    QVERIFY(open.save());
    open.text()->undo();
    QCOMPARE(open.text()->toPlainText(), QString("one"));
    QVERIFY(open.save());
    QCOMPARE(open.stored(), allThree);
}

void ScenarioPrologueStoriesTest::anyLengthOfText()
{
    const QString longText(70000, 'a');
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.text()->setPlainText(longText);
    QVERIFY(open.save());
    QCOMPARE(open.stories()[0]->text, longText);
}

// A page stores what it shows, wherever it is told to.
void ScenarioPrologueStoriesTest::savesIntoAnotherIndex()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    QVERIFY(open.page()->saveScenarioInfo(2));
    QCOMPARE(open.stored(), QStringList({"1 2 one", "2 1 two", "2 1 two"}));
    QVERIFY(!open.page()->saveScenarioInfo(3));
}

void ScenarioPrologueStoriesTest::removedOptionDropsItsStory_data()
{
    addBothTabs();
}

void ScenarioPrologueStoriesTest::removedOptionDropsItsStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.press(2);
    open.showTab(startOptionsTab);
    auto *options = open.dialog.findChild<StartingBonus *>();
    auto *table = childOf<QTableWidget>(options, "tableWidget");
    clickOn(table->viewport(), table->visualItemRect(table->item(1, 0)).center());
    clickOn(childOf<QPushButton>(options, "removeButton"));
    QCOMPARE(table->rowCount(), 2);
    open.showTab(tab);
    QCOMPARE(open.stored(), QStringList({"1 2 one", "2 1 two", "-"}));
    QVERIFY(open.dialog.hasChanged());
    QCOMPARE(open.page()->currentIndex(), 0U);
    QCOMPARE(open.shown(), QString("1 2 one"));
    QCOMPARE(open.shownNumbers(), QString("1 2"));
}

void ScenarioPrologueStoriesTest::storiesBeyondTheOptionsAreDropped_data()
{
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<QStringList>("stored");
    QTest::addColumn<bool>("changed");
    QTest::newRow("none") << 0U << QStringList{"1 2 one", "-", "-"} << true;
    QTest::newRow("one") << 1U << QStringList{"1 2 one", "-", "-"} << true;
    QTest::newRow("two") << 2U << QStringList{"1 2 one", "2 1 two", "-"} << true;
    QTest::newRow("three") << 3U << allThree << false;
    QTest::newRow("more than there are") << 9U << allThree << false;
}

void ScenarioPrologueStoriesTest::storiesBeyondTheOptionsAreDropped()
{
    QFETCH(unsigned, count);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    open.page()->updatePrologue(count);
    QTEST(open.stored(), "stored");
    QTEST(open.dialog.hasChanged(), "changed");
    QCOMPARE(open.page()->currentIndex(), 0U);
    QCOMPARE(open.pressedNumber(), 1);
}

QTEST_MAIN(ScenarioPrologueStoriesTest)
#include "scenario_prologue_stories_test.moc"
