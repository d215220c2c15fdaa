// The music of the tabs for stories: its name, its button and, as SDL's driver "disk" writes it
// down, its sound.
#include "shell/mss_info.h"
#include "tests/scenario/stories_tab.h"
#include "tests/support/heard_sound.h"
#include "tests/support/longest_wait.h"
#include "tests/support/tunes.h"

#include <QDir>
#include <QStyle>

namespace {

constexpr int chunkMilliseconds = 3;
constexpr int silence = 20000; // frames; more than the mixer has under way
constexpr int tuneFrames = 5000;
constexpr int markOfTwo = 2222; // on the right of the tune "Music 2"

} // namespace

class ScenarioPrologueMusicTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();
    void nameFollowsTheMouse();
    void nameFollowsTheKeyboard();
    void trackStaysCurrentWithoutItsSelection();
    void loadingAStoryPausesNothing();
    void newPageCanPlay();
    void leavingTheTabPauses_data();
    void leavingTheTabPauses();
    void everyTabChangePausesBothTabs();
    void playAndPauseAreTraced();
    void buttonWorksWhenItGoesDown();
    void anotherChoicePauses();
    void playsUntilPaused_data();
    void playsUntilPaused();
    void playsForEver();
    void pausesWhenSomethingElseComes_data();
    void pausesWhenSomethingElseComes();
    void endOfThePageStopsTheMusic();
    void missingTuneIsSilence();
    void runsWithoutSound();

private:
    bool showsIcon(StoriesTab &open, QStyle::StandardPixmap icon);

    std::unique_ptr<ScenarioFixture> m_fixture;
    std::unique_ptr<HeardSound> m_sound;
    MssInfo m_player;
};

void ScenarioPrologueMusicTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
    QDir(m_fixture->game.path()).mkdir("MP3");
    m_fixture->game.write("MP3/Music 2.mp3", tunes::wave({tuneFrames, markOfTwo}));
    m_sound = std::make_unique<HeardSound>(chunkMilliseconds);
    m_player.LoadDll();
    QVERIFY(m_player.initialized);
}

void ScenarioPrologueMusicTest::init()
{
    m_fixture->reset();
    mss = &m_player;
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->endsSilent(silence), longestWait);
    m_sound->clear();
}

void ScenarioPrologueMusicTest::cleanup()
{
    m_player.StopMusic();
    m_sound->clear();
}

void ScenarioPrologueMusicTest::cleanupTestCase()
{
    mss = nullptr;
}

bool ScenarioPrologueMusicTest::showsIcon(StoriesTab &open, QStyle::StandardPixmap icon)
{
    const QIcon shown = open.find<QPushButton>("playMusicBtn")->icon();
    const QIcon wanted = open.page()->style()->standardIcon(icon);
    return shown.pixmap(16, 16).toImage() == wanted.pixmap(16, 16).toImage();
}

void ScenarioPrologueMusicTest::nameFollowsTheMouse()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    QCOMPARE(open.musicName(), QString("Music 2"));
    open.chooseMusic(1);
    QCOMPARE(open.musicName(), QString("Music 1"));
}

void ScenarioPrologueMusicTest::nameFollowsTheKeyboard()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    QTest::keyClick(open.music(), Qt::Key_Up);
    QCOMPARE(open.musicName(), QString("Music 1"));
    QTest::keyClick(open.music(), Qt::Key_Home);
    QCOMPARE(open.musicName(), QString("Music 0"));
}

void ScenarioPrologueMusicTest::trackStaysCurrentWithoutItsSelection()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.chooseMusic(1);
    QListWidgetItem *track = open.music()->item(1);
    QWidget *viewport = open.music()->viewport();
    const QPoint middle = open.music()->visualItemRect(track).center();
    QTest::mouseClick(open.dialog.windowHandle(), Qt::LeftButton, Qt::ControlModifier,
                      viewport->mapTo(&open.dialog, middle));
    QVERIFY(open.music()->selectedItems().isEmpty());
    QCOMPARE(open.musicName(), QString("Music 1"));
    QVERIFY(open.save());
    QCOMPARE(open.stored().first(), QString("1 1 one"));
}

void ScenarioPrologueMusicTest::loadingAStoryPausesNothing()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    const TraceRecorder traces;
    open.press(1);
    open.press(2);
    open.page()->updatePrologue(3);
    QCOMPARE(open.musicName(), QString("Music 2"));
    QCOMPARE(TraceRecorder::messages(), QStringList());
}

void ScenarioPrologueMusicTest::newPageCanPlay()
{
    const ScenarioPrologue page(nullptr);
    const QIcon shown = page.findChild<QPushButton *>("playMusicBtn")->icon();
    const QIcon wanted = page.style()->standardIcon(QStyle::SP_MediaPlay);
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixmap(16, 16).toImage(), wanted.pixmap(16, 16).toImage());
}

void ScenarioPrologueMusicTest::leavingTheTabPauses_data()
{
    addBothTabs();
}

void ScenarioPrologueMusicTest::leavingTheTabPauses()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QTRY_VERIFY_WITH_TIMEOUT(!m_sound->sound().isEmpty(), longestWait);
    open.showTab(generalTab);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->endsSilent(silence), longestWait);
}

// Whether anything plays or not.
void ScenarioPrologueMusicTest::everyTabChangePausesBothTabs()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, generalTab);
    const QStringList both{"MSS - PAUSE MUSIC [1]", "MSS - PAUSE MUSIC [1]"};
    for (const int tab : {startOptionsTab, prologueTab, epilogueTab, generalTab}) {
        const TraceRecorder traces;
        open.showTab(tab);
        QCOMPARE(TraceRecorder::messages(), both);
    }
}

void ScenarioPrologueMusicTest::playAndPauseAreTraced()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
    const TraceRecorder traces;
    auto *button = open.find<QPushButton>("playMusicBtn");
    clickOn(button);
    QCOMPARE(TraceRecorder::messages().first(), QString("MSS - START MUSIC STREAM"));
    QVERIFY(showsIcon(open, QStyle::SP_MediaPause));
    TraceRecorder::messages().clear();
    clickOn(button);
    QCOMPARE(TraceRecorder::messages(), QStringList("MSS - PAUSE MUSIC"));
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
}

void ScenarioPrologueMusicTest::buttonWorksWhenItGoesDown()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    auto *button = open.find<QPushButton>("playMusicBtn");
    const QPoint middle = button->mapTo(&open.dialog, button->rect().center());
    QTest::mousePress(open.dialog.windowHandle(), Qt::LeftButton, {}, middle);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPause));
    QTest::mouseRelease(open.dialog.windowHandle(), Qt::LeftButton, {}, middle);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPause));
}

void ScenarioPrologueMusicTest::anotherChoicePauses()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    const TraceRecorder traces;
    open.chooseMusic(1);
    QCOMPARE(TraceRecorder::messages(), QStringList("MSS - PAUSE MUSIC [1]"));
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
}

void ScenarioPrologueMusicTest::playsUntilPaused_data()
{
    addBothTabs();
}

void ScenarioPrologueMusicTest::playsUntilPaused()
{
    QFETCH(int, tab);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, tab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QTRY_VERIFY_WITH_TIMEOUT(!m_sound->sound().isEmpty(), longestWait);
    QCOMPARE(m_sound->sound().first().right, markOfTwo);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->endsSilent(silence), longestWait);
    QVERIFY(m_player.stream != 0);
}

void ScenarioPrologueMusicTest::playsForEver()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->sound().size() > 5 * tuneFrames, longestWait);
}

void ScenarioPrologueMusicTest::pausesWhenSomethingElseComes_data()
{
    QTest::addColumn<QByteArray>("what");
    for (const char *what : {"another tab", "another scenario", "another story", "no story"})
        QTest::newRow(what) << QByteArray(what);
}

void ScenarioPrologueMusicTest::pausesWhenSomethingElseComes()
{
    QFETCH(QByteArray, what);
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QTRY_VERIFY_WITH_TIMEOUT(!m_sound->sound().isEmpty(), longestWait);
    if (what == "another tab")
        open.showTab(epilogueTab);
    else if (what == "another scenario")
        open.select(1);
    else if (what == "another story")
        open.press(1);
    else
        open.clickBox(open.hasStory());
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
    QTRY_VERIFY_WITH_TIMEOUT(m_sound->endsSilent(silence), longestWait);
}

void ScenarioPrologueMusicTest::endOfThePageStopsTheMusic()
{
    const TraceRecorder traces;
    CampaignData campaign = storyCampaign(3);
    {
        StoriesTab open(campaign, prologueTab);
        clickOn(open.find<QPushButton>("playMusicBtn"));
        QVERIFY(m_player.stream != 0);
        TraceRecorder::messages().clear();
    }
    QCOMPARE(m_player.stream, 0U);
    QCOMPARE(TraceRecorder::messages(), QStringList({"MSS - STOP MUSIC", "MSS - STOP MUSIC"}));
}

void ScenarioPrologueMusicTest::missingTuneIsSilence()
{
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    open.chooseMusic(0);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    QCOMPARE(m_player.stream, 0U);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPause));
}

void ScenarioPrologueMusicTest::runsWithoutSound()
{
    mss = nullptr;
    CampaignData campaign = storyCampaign(3);
    StoriesTab open(campaign, prologueTab);
    clickOn(open.find<QPushButton>("playMusicBtn"));
    clickOn(open.find<QPushButton>("playMusicBtn"));
    open.chooseMusic(1);
    QVERIFY(showsIcon(open, QStyle::SP_MediaPlay));
}

QTEST_MAIN(ScenarioPrologueMusicTest)
#include "scenario_prologue_music_test.moc"
