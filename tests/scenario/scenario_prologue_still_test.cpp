// The stills of the tabs for stories: which one is shown, and what becomes of one that isn't there.
#include "tests/scenario/stories_tab.h"
#include "tests/support/game_bytes.h"
#include "tests/support/picture_records.h"
#include "tests/support/report_recorder.h"

class ScenarioPrologueStillTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void newPageShowsTheFirstStill();
    void stillFollowsTheVideo();
    void stillFillsItsPlace();
    void stillIsScaledSmoothly();
    void stillThatCannotBeReadIsNotShown();
    void missingStillEndsTheProcess();
    void missingFirstStillEndsTheProcess();
    void videoWithoutAStillShowsNothing();

private:
    std::unique_ptr<ScenarioFixture> m_fixture;
};

void ScenarioPrologueStillTest::initTestCase()
{
    m_fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioPrologueStillTest::init()
{
    m_fixture->reset();
}

void ScenarioPrologueStillTest::newPageShowsTheFirstStill()
{
    const ScenarioPrologue page(nullptr);
    const auto *still = page.findChild<QLabel *>("prologueImage");
    const QImage shown = still->pixmap(Qt::ReturnByValue).toImage();
    QVERIFY(!shown.isNull());
    QCOMPARE(shown.pixelColor(shown.rect().center()), tiny::movieColour(0));
}

void ScenarioPrologueStillTest::stillFollowsTheVideo()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    open.chooseNextVideo();
    QCOMPARE(open.stillColour(), tiny::movieColour(2));
    open.choosePreviousVideo();
    QCOMPARE(open.stillColour(), tiny::movieColour(1));
}

void ScenarioPrologueStillTest::stillFillsItsPlace()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    const QSize place = open.find<QLabel>("prologueImage")->size();
    QCOMPARE(open.still().size(), place);
    open.page()->setMovieImage("backhome.pcx"); // higher than wide
    QCOMPARE(open.still().size(), place);
    QCOMPARE(open.stillColour(), tiny::backgroundColour("backhome.pcx"));
}

// Two pixels, red and blue, become far more, with every shade between.
void ScenarioPrologueStillTest::stillIsScaledSmoothly()
{
    const QByteArray record = picture_records::plainRecord(2, 1, {Qt::red, Qt::blue});
    QFile file(m_fixture->game.write("Data/two.lod", game_files::archive({{"two.pcx", record}})));
    QVERIFY(file.open(QIODevice::ReadOnly));
    LodArchive archive;
    archive.Read(file, file.fileName());
    EditorData::lod_archives.push_back(archive);
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    open.page()->setMovieImage("two.pcx");
    EditorData::lod_archives.pop_back();
    const QColor middle = open.stillColour();
    QVERIFY(middle.red() > 64 && middle.red() < 192);
    QVERIFY(middle.blue() > 64 && middle.blue() < 192);
}

void ScenarioPrologueStillTest::stillThatCannotBeReadIsNotShown()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    QVERIFY(open.stillColour().isValid());
    open.page()->setMovieImage("CmpMovie.txt");
    QVERIFY(!open.stillColour().isValid());
}

void ScenarioPrologueStillTest::missingStillEndsTheProcess()
{
    CampaignData campaign = storyCampaign(1);
    StoriesTab open(campaign, prologueTab);
    ReportRecorder recorder;
    QCOMPARE(exitCodeOf([&] { open.page()->setMovieImage("gone.pcx"); }), 1);
    QVERIFY(recorder.errors.isEmpty());
}

void ScenarioPrologueStillTest::missingFirstStillEndsTheProcess()
{
    const auto stills = EditorData::movieImages;
    EditorData::movieImages[0] = "gone.pcx";
    ReportRecorder recorder;
    QCOMPARE(exitCodeOf([] { ScenarioPrologue(nullptr); }), 1);
    EditorData::movieImages = stills;
    QVERIFY(recorder.errors.isEmpty());
}

void ScenarioPrologueStillTest::videoWithoutAStillShowsNothing()
{
    EditorData::videoNames[7] = "Late movie";
    CampaignData campaign = storyCampaign(1);
    campaign.scenarios[0].prologues[0] = story(7, 0, "late");
    StoriesTab open(campaign, prologueTab);
    EditorData::videoNames.erase(7);
    QCOMPARE(open.videos()->currentText(), QString("Late movie"));
    QVERIFY(!open.stillColour().isValid());
}

QTEST_MAIN(ScenarioPrologueStillTest)
#include "scenario_prologue_still_test.moc"
