// Listening to the music in the campaign's properties: SDL's driver "disk" writes down what is
// played.
#include "campaign_dialogs/edit_campaign.h"
#include "shell/mss_info.h"
#include "tests/shell/campaign_dialog_support.h"
#include "tests/support/heard_sound.h"
#include "tests/support/longest_wait.h"
#include "tests/support/tunes.h"

#include <algorithm>

class EditCampaignMusicTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void buttonPlaysForEverAndPauses();
    void anotherChoiceStopsTheMusic();
    void anotherChoiceInSilenceLeavesTheButton();
    void closingStopsTheMusic();
    void closingInSilenceTellsNothing();
    void missingFileIsSilent();
    void worksWithoutSound();

private:
    bool hears(int mark) const;
    void compareIcon(const EditCampaign &dialog, QStyle::StandardPixmap icon) const;

    HeardSound heard{3};
    std::unique_ptr<WindowFixture> fixture;
    MssInfo sound;
    CampaignData campaign;
};

namespace {

constexpr int tuneFrames = 3000;
constexpr int silence = 20000; // frames; more than the mixer has under way
constexpr int firstMark = 1111;
constexpr int secondMark = 2222;

QPushButton *button(const EditCampaign &dialog)
{
    return control<QPushButton>(dialog, "playMusicBtn");
}

void expect(const char *trace)
{
    QTest::ignoreMessage(QtDebugMsg, trace);
}

} // namespace

void EditCampaignMusicTest::initTestCase()
{
    fixture = std::make_unique<WindowFixture>();
    QVERIFY(QDir(fixture->game.path()).mkpath("MP3"));
    fixture->game.write("MP3/Music 0.mp3", tunes::wave({tuneFrames, firstMark}));
    fixture->game.write("MP3/Music 1.mp3", tunes::wave({tuneFrames, secondMark}));
    sound.LoadDll();
    QVERIFY(sound.initialized);
}

void EditCampaignMusicTest::init()
{
    fixture->reset();
    mss = &sound;
    campaign = campaignOnBackground(0, "m");
    campaign.musicId = 0;
    QTRY_VERIFY_WITH_TIMEOUT(heard.endsSilent(silence), longestWait);
    heard.clear();
}

void EditCampaignMusicTest::cleanup()
{
    sound.StopMusic();
    mss = nullptr;
}

bool EditCampaignMusicTest::hears(int mark) const
{
    const QVector<HeardFrame> frames = heard.sound();
    return std::any_of(frames.begin(), frames.end(),
                       [mark](const HeardFrame &frame) { return frame.right == mark; });
}

void EditCampaignMusicTest::compareIcon(const EditCampaign &dialog,
                                        QStyle::StandardPixmap icon) const
{
    QCOMPARE(button(dialog)->icon().pixmap(16).toImage(),
             dialog.style()->standardIcon(icon).pixmap(16).toImage());
}

void EditCampaignMusicTest::buttonPlaysForEverAndPauses()
{
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    compareIcon(dialog, QStyle::SP_MediaPlay);
    expect("MSS - START MUSIC STRIC");
    clickOn(button(dialog));
    compareIcon(dialog, QStyle::SP_MediaPause);
    QTRY_VERIFY_WITH_TIMEOUT(heard.sound().size() > 5 * tuneFrames, longestWait);
    QVERIFY(hears(firstMark));
    expect("MSS - PAUSE MUSIC");
    clickOn(button(dialog));
    compareIcon(dialog, QStyle::SP_MediaPlay);
    QTRY_VERIFY_WITH_TIMEOUT(heard.endsSilent(silence), longestWait);
    QVERIFY(sound.stream != 0);
    heard.clear();
    expect("MSS - START MUSIC STRIC");
    clickOn(button(dialog));
    QTRY_VERIFY_WITH_TIMEOUT(hears(firstMark), longestWait);
}

void EditCampaignMusicTest::anotherChoiceStopsTheMusic()
{
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    clickOn(button(dialog));
    QTRY_VERIFY_WITH_TIMEOUT(hears(firstMark), longestWait);
    expect("MSS - PAUSE MUSIC");
    control<QComboBox>(dialog, "musicCombobox")->setCurrentIndex(1);
    compareIcon(dialog, QStyle::SP_MediaPlay);
    QTRY_VERIFY_WITH_TIMEOUT(heard.endsSilent(silence), longestWait);
    heard.clear();
    expect("MSS - START MUSIC STRIC");
    clickOn(button(dialog));
    compareIcon(dialog, QStyle::SP_MediaPause);
    QTRY_VERIFY_WITH_TIMEOUT(hears(secondMark), longestWait);
    QVERIFY(!hears(firstMark));
}

void EditCampaignMusicTest::anotherChoiceInSilenceLeavesTheButton()
{
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    expect("MSS - PAUSE MUSIC");
    control<QComboBox>(dialog, "musicCombobox")->setCurrentIndex(1);
    compareIcon(dialog, QStyle::SP_MediaPlay);
    expect("MSS - START MUSIC STRIC");
    clickOn(button(dialog));
    QTRY_VERIFY_WITH_TIMEOUT(hears(secondMark), longestWait);
}

void EditCampaignMusicTest::closingStopsTheMusic()
{
    {
        EditCampaign dialog(nullptr, &campaign);
        QVERIFY(show(dialog));
        clickOn(button(dialog));
        QTRY_VERIFY_WITH_TIMEOUT(hears(firstMark), longestWait);
        expect("MSS - STOP MUSIC STREAM");
    }
    QCOMPARE(sound.stream, 0U);
    QTRY_VERIFY_WITH_TIMEOUT(heard.endsSilent(silence), longestWait);
}

void EditCampaignMusicTest::closingInSilenceTellsNothing()
{
    static QStringList traces;
    traces.clear();
    const QtMessageHandler before = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &text) { traces << text; });
    {
        const EditCampaign dialog(nullptr, &campaign);
    }
    qInstallMessageHandler(before);
    QVERIFY2(traces.filter("MSS").isEmpty(), qPrintable(traces.join('\n')));
}

void EditCampaignMusicTest::missingFileIsSilent()
{
    campaign.musicId = 2;
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    clickOn(button(dialog));
    QCOMPARE(sound.stream, 0U);
    compareIcon(dialog, QStyle::SP_MediaPause);
}

void EditCampaignMusicTest::worksWithoutSound()
{
    mss = nullptr;
    EditCampaign dialog(nullptr, &campaign);
    QVERIFY(show(dialog));
    clickOn(button(dialog));
    compareIcon(dialog, QStyle::SP_MediaPause);
    clickOn(button(dialog));
    compareIcon(dialog, QStyle::SP_MediaPlay);
    control<QComboBox>(dialog, "musicCombobox")->setCurrentIndex(1);
}

QTEST_MAIN(EditCampaignMusicTest)
#include "edit_campaign_music_test.moc"
