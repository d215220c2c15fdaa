// The controls of the tabs for stories: what they are, and what they show of a story, of none, and
// of numbers that the game's tables lack.
#include "scenario/scenario_host.h"
#include "tests/scenario/stories_tab.h"

#include <QGroupBox>
#include <QStyle>

namespace {

// A dialog around a page that answers what it is told to.
class SomeHost : public QWidget, public ScenarioHost
{
public:
    void setChanged() override {}
    void updateCurrentItem() override {}
    void enableUI() override {}
    void disableUI() override {}
    void updateScenarioData(ScenarioData *) override {}
    void updateScenarioUI() override {}
    unsigned int getSelectedOption() override { return kind; }
    unsigned int getOptionCount() override { return count; }

    unsigned int kind = 0;
    unsigned int count = 0;
};

QImage picture(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

} // namespace

class ScenarioPrologueTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void controlsHaveTypesAndTexts_data();
    void controlsHaveTypesAndTexts();
    void boxSaysWhichPageItIs_data();
    void boxSaysWhichPageItIs();
    void choicesAreThoseOfTheGame();
    void numbersHoldTheirStory();
    void pageHasItsLook();
    void rightClicksDoNothingToTheVideo();
    void showsAStory_data();
    void showsAStory();
    void showsNothingOfNoStory_data();
    void showsNothingOfNoStory();
    void withoutAMapEverythingIsDisabled_data();
    void withoutAMapEverythingIsDisabled();
    void withoutAMapThePageKeepsNoData_data();
    void withoutAMapThePageKeepsNoData();
    void firstMapLetsAStoryBegin();
    void removedMapEndsTheStories();
    void numbersFollowTheStartOptions_data();
    void numbersFollowTheStartOptions();
    void countsWhatTheStartOptionsAskFor_data();
    void countsWhatTheStartOptionsAskFor();
    void pageByItselfHasOneStory();
    void unknownNumbersLeaveTheControls_data();
    void unknownNumbersLeaveTheControls();

private:
    std::unique_ptr<ScenarioFixture> m_fixture;
};

void ScenarioPrologueTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioPrologueTest::init()
{
    m_fixture->reset();
}

void ScenarioPrologueTest::controlsHaveTypesAndTexts_data()
{
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QString>("text");
    QTest::newRow("hasPrologueCheckbox") << QByteArray("QCheckBox") << "Has prologue";
    QTest::newRow("settingsCheckbox") << QByteArray("QCheckBox") << "Set up";
    QTest::newRow("horizontalLayoutWidget") << QByteArray("QWidget") << "";
    QTest::newRow("btn1") << QByteArray("QPushButton") << "1";
    QTest::newRow("btn2") << QByteArray("QPushButton") << "2";
    QTest::newRow("btn3") << QByteArray("QPushButton") << "3";
    QTest::newRow("videoLabel") << QByteArray("QLabel") << "Video:";
    QTest::newRow("videoCombobox") << QByteArray("QComboBox") << "";
    QTest::newRow("prologueImage") << QByteArray("QLabel") << "";
    QTest::newRow("musicLabel") << QByteArray("QLabel") << "Music:";
    QTest::newRow("musicListWidget") << QByteArray("QListWidget") << "";
    QTest::newRow("selectedMusicLabel") << QByteArray("QLabel") << "Music 1";
    QTest::newRow("playMusicBtn") << QByteArray("QPushButton") << "";
    QTest::newRow("messageLabel") << QByteArray("QLabel") << "Message:";
    QTest::newRow("textEdit") << QByteArray("QTextEdit") << "";
    QTest::newRow("groupBox") << QByteArray("QGroupBox") << "";
    QTest::newRow("line1") << QByteArray("QFrame") << "";
    QTest::newRow("line2") << QByteArray("QFrame") << "";
}

void ScenarioPrologueTest::controlsHaveTypesAndTexts()
{
    QFETCH(QByteArray, type);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    const auto *widget = open.find<QWidget>(QTest::currentDataTag());
    QVERIFY(widget->inherits(type));
    QVERIFY(widget->isVisible());
    QTEST(widget->property("text").toString(), "text");
}

void ScenarioPrologueTest::boxSaysWhichPageItIs_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<QString>("text");
    QTest::newRow("prologue") << prologueTab << "Has prologue";
    QTest::newRow("epilogue") << epilogueTab << "Has epilogue";
}

void ScenarioPrologueTest::boxSaysWhichPageItIs()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    QTEST(open.hasStory()->text(), "text");
    QCOMPARE(open.page()->windowTitle(), QString("Form"));
}

void ScenarioPrologueTest::choicesAreThoseOfTheGame()
{
    EditorData::videoNames[7] = "Late movie";
    EditorData::musicNames[49] = "Late tune";
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    EditorData::videoNames.erase(7);
    EditorData::musicNames.erase(49);
    QCOMPARE(textsOf(open.videos()), QStringList({"Movie 0", "Movie 1", "Movie 2", "Late movie"}));
    const QStringList tunes{"Music 0", "Music 1", "Music 2", "Late tune"};
    const QList<int> videoKeys{0, 1, 2, 7};
    const QList<int> tuneKeys{0, 1, 2, 49};
    QCOMPARE(open.music()->count(), tunes.size());
    for (int row = 0; row < tunes.size(); ++row) {
        QCOMPARE(open.videos()->itemData(row), QVariant(videoKeys[row]));
        QCOMPARE(open.music()->item(row)->text(), tunes[row]);
        QCOMPARE(open.music()->item(row)->data(Qt::UserRole), QVariant(tuneKeys[row]));
    }
}

void ScenarioPrologueTest::numbersHoldTheirStory()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    for (int ix = 0; ix < 3; ++ix) {
        QVERIFY(open.number(ix)->isCheckable());
        QCOMPARE(open.number(ix)->property("ix").toInt(), ix);
        QCOMPARE(open.number(ix)->parentWidget(), open.find<QWidget>("horizontalLayoutWidget"));
    }
}

void ScenarioPrologueTest::pageHasItsLook()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    QVERIFY(open.find<QGroupBox>("groupBox")->isFlat());
    QCOMPARE(open.find<QGroupBox>("groupBox")->styleSheet(),
             QString("QGroupBox#groupBox {border:0;}"));
    QCOMPARE(picture(open.find<QPushButton>("playMusicBtn")->icon()),
             picture(open.page()->style()->standardIcon(QStyle::SP_MediaPlay)));
    open.clickBox(open.hasStory());
    auto *still = open.find<QLabel>("prologueImage");
    QCOMPARE(still->grab().toImage().pixelColor(5, 5), QColor(Qt::black));
}

void ScenarioPrologueTest::rightClicksDoNothingToTheVideo()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    verifyRightClicksDoNothing(open.videos());
}

void ScenarioPrologueTest::showsAStory_data()
{
    addBothTabs();
}

void ScenarioPrologueTest::showsAStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    QVERIFY(open.hasStory()->isEnabled());
    QVERIFY(open.hasStory()->isChecked());
    QVERIFY(!open.setUp()->isVisible());
    QCOMPARE(open.pressedNumber(), 1);
    QCOMPARE(open.shown(), QString("1 2 one"));
    QCOMPARE(open.musicName(), QString("Music 2"));
    QCOMPARE(open.stillColour(), tiny::movieColour(1));
    QCOMPARE(open.enabledControls(), storyControls);
    open.press(2);
    QVERIFY(open.hasStory()->isChecked());
    QVERIFY(open.setUp()->isVisible());
    QVERIFY(open.setUp()->isChecked());
    QCOMPARE(open.pressedNumber(), 3);
    QCOMPARE(open.shown(), QString("0 0 three"));
    QCOMPARE(open.musicName(), QString("Music 0"));
    QCOMPARE(open.stillColour(), tiny::movieColour(0));
}

void ScenarioPrologueTest::showsNothingOfNoStory_data()
{
    addBothTabs();
}

void ScenarioPrologueTest::showsNothingOfNoStory()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    open.select(1);
    QVERIFY(open.hasStory()->isEnabled());
    QVERIFY(!open.hasStory()->isChecked());
    QCOMPARE(open.enabledControls(), QStringList());
    QCOMPARE(open.shown(), QString("0 0 "));
    QVERIFY(open.music()->selectedItems().isEmpty());
    QCOMPARE(open.musicName(), QString());
    QVERIFY(!open.stillColour().isValid());
    QCOMPARE(open.shownNumbers(), QString("1 2 3"));
    open.press(1);
    QVERIFY(open.setUp()->isVisible());
    QVERIFY(!open.setUp()->isChecked());
    QCOMPARE(open.enabledControls(), QStringList());
}

void ScenarioPrologueTest::withoutAMapEverythingIsDisabled_data()
{
    addBothTabs();
}

void ScenarioPrologueTest::withoutAMapEverythingIsDisabled()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[1] = ScenarioData();
    StoriesTab open(campaign, tab);
    open.press(1);
    open.select(1);
    QVERIFY(!open.hasStory()->isEnabled());
    QVERIFY(!open.hasStory()->isChecked());
    QVERIFY(!open.setUp()->isVisible());
    QVERIFY(!open.setUp()->isChecked());
    QCOMPARE(open.shownNumbers(), QString());
    QCOMPARE(open.enabledControls(), QStringList());
    QCOMPARE(open.shown(), QString("0 0 "));
    QVERIFY(!open.stillColour().isValid());
}

void ScenarioPrologueTest::withoutAMapThePageKeepsNoData_data()
{
    addBothTabs();
}

void ScenarioPrologueTest::withoutAMapThePageKeepsNoData()
{
    QFETCH(int, tab);
    CampaignData campaign = campaignOf(true, {"", "pass"});
    StoriesTab empty(campaign, tab);
    QVERIFY(!empty.save());
    QCOMPARE(empty.stored(), QStringList({"-", "-", "-"}));
    QVERIFY(!empty.dialog.hasChanged());
    storiesOf(campaign.scenarios[0], tab)[0] = story(1, 1, "stray");
    StoriesTab open(campaign, generalTab);
    QCOMPARE(qobject_cast<ScenarioPrologue *>(open.tabs()->widget(tab))->saveScenarioInfo(0),
             tab == epilogueTab);
    QVERIFY(!storiesOf(open.copy().scenarios[0], tab)[0]);
    QVERIFY(open.dialog.hasChanged());
}

void ScenarioPrologueTest::firstMapLetsAStoryBegin()
{
    CampaignData campaign = campaignOf(true, {"", "pass"});
    StoriesTab open(campaign, prologueTab);
    QVERIFY(!open.hasStory()->isEnabled());
    open.dialog.enableUI();
    QVERIFY(open.hasStory()->isEnabled());
    QVERIFY(!open.hasStory()->isChecked());
    QCOMPARE(open.enabledControls(), QStringList());
}

void ScenarioPrologueTest::removedMapEndsTheStories()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    open.showTab(generalTab);
    clickOn(childOf<QPushButton>(open.tabs()->widget(generalTab), "removeButton"));
    open.showTab(prologueTab);
    QVERIFY(!open.hasStory()->isEnabled());
    QVERIFY(!open.hasStory()->isChecked());
    QVERIFY(!open.setUp()->isVisible());
    QCOMPARE(open.shownNumbers(), QString());
    QCOMPARE(open.enabledControls(), QStringList());
    open.showTab(generalTab);
    QVERIFY(!open.stories()[0]);
}

void ScenarioPrologueTest::numbersFollowTheStartOptions_data()
{
    QTest::addColumn<int>("tab");
    QTest::addColumn<int>("options");
    QTest::addColumn<QString>("numbers");
    const QStringList numbers{"", "", "1 2", "1 2 3"};
    for (int options = 0; options < numbers.size(); ++options) {
        QTest::addRow("prologue, %d options", options)
            << prologueTab << options << numbers[options];
        QTest::addRow("epilogue, %d options", options)
            << epilogueTab << options << numbers[options];
    }
}

void ScenarioPrologueTest::numbersFollowTheStartOptions()
{
    QFETCH(int, tab);
    QFETCH(int, options);
    CampaignData campaign = storyCampaign(options);
    StoriesTab open(campaign, tab);
    QTEST(open.shownNumbers(), "numbers");
    QCOMPARE(open.page()->getPrologueCount(), unsigned(options));
    QCOMPARE(open.page()->canHaveMultiplePrologues(), options > 1);
    QVERIFY(!open.setUp()->isVisible());
}

void ScenarioPrologueTest::countsWhatTheStartOptionsAskFor_data()
{
    QTest::addColumn<unsigned>("kind");
    QTest::addColumn<unsigned>("options");
    QTest::addColumn<unsigned>("count");
    QTest::addColumn<bool>("several");
    QTest::newRow("no kind") << 0U << 3U << 1U << false;
    QTest::newRow("no row") << 1U << 0U << 0U << false;
    QTest::newRow("one row") << 2U << 1U << 1U << false;
    QTest::newRow("two rows") << 3U << 2U << 2U << true;
}

void ScenarioPrologueTest::countsWhatTheStartOptionsAskFor()
{
    SomeHost host;
    ScenarioPrologue page(&host);
    QFETCH(unsigned, kind);
    QFETCH(unsigned, options);
    host.kind = kind;
    host.count = options;
    QTEST(page.getPrologueCount(), "count");
    QTEST(page.canHaveMultiplePrologues(), "several");
}

void ScenarioPrologueTest::pageByItselfHasOneStory()
{
    ScenarioPrologue page(nullptr);
    QCOMPARE(page.getPrologueCount(), 1U);
    QVERIFY(!page.canHaveMultiplePrologues());
    QVERIFY(!page.saveScenarioInfo(0));
    page.updatePrologue(3);
}

void ScenarioPrologueTest::unknownNumbersLeaveTheControls_data()
{
    QTest::addColumn<int>("video");
    QTest::addColumn<int>("music");
    QTest::addColumn<QString>("shown");
    QTest::newRow("video") << 200 << 1 << "1 1 odd";
    QTest::newRow("music") << 2 << 200 << "2 0 odd";
    QTest::newRow("both") << 255 << 48 << "1 0 odd";
}

// The second story follows on the first, which shows video 1; the list begins anew at its top.
void ScenarioPrologueTest::unknownNumbersLeaveTheControls()
{
    QFETCH(int, video);
    QFETCH(int, music);
    CampaignData campaign = storyCampaign(3);
    campaign.scenarios[0].prologues[1] = story(video, music, "odd");
    StoriesTab open(campaign, prologueTab);
    open.press(1);
    QTEST(open.shown(), "shown");
    QVERIFY(open.setUp()->isChecked());
}

QTEST_MAIN(ScenarioPrologueTest)
#include "scenario_prologue_test.moc"
