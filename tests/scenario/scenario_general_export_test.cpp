// Exporting a scenario's map, and taking it away.
#include "tests/scenario/map_fixture.h"
#include "tests/support/disk_faults.h"
#include "tests/support/file_contents.h"

#include <cerrno>
#include <cstring>

#include <QDir>

namespace {

// Closes boxes that nobody expects; the test fails then.
class NoBox
{
public:
    NoBox()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                QTest::qFail(qPrintable("Unexpected: " + box->text()), __FILE__, __LINE__);
                box->close();
            }
        });
        m_timer.start(20);
    }

private:
    QTimer m_timer;
};

ExpectedBox failure(const QString &path, int code)
{
    const QString why = QString::fromLocal8Bit(strerror(code));
    return {"Error", "Cannot write file " + path + ":\n" + why + ".", QMessageBox::Warning};
}

} // namespace

class ScenarioGeneralExportTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<MapFixture>(); }
    void init() { fixture->reset(); }

    void exportWritesTheBytesThatWereImported();
    void exportReplacesAFile();
    void cancelledExportDoesNothing();
    void exportWhereNothingOpensIsSilent();
    void exportOntoAFullDiskWarns();
    void exportOntoAFullDiskLeavesALinkToNowhere();
    void exportOntoADiskWithoutRoomForAName();
    void removePassesPrerequisitesOn();
    void removeLeavesAnEmptyScenario();
    void removeInACampaignWithoutMap();

private:
    std::unique_ptr<MapFixture> fixture;
};

void ScenarioGeneralExportTest::exportWritesTheBytesThatWereImported()
{
    const QByteArray bytes = mapNamed("Ironmoors");
    CampaignData campaign = campaignOf(true, {"", ""});
    GeneralTab tab(campaign);
    {
        NextDialog dialog(chooseFile(fixture->opening(""), fixture->writeMap("isle.e3m", bytes)));
        tab.click("refreshButton");
    }
    QTemporaryDir other;
    {
        NextDialog dialog(chooseFile(MapFixture::saving(fixture->folderPath(), "isle.e3m"),
                                     other.filePath("copy.e3m")));
        NoBox none;
        tab.click("exportButton");
    }
    QCOMPARE(contents(other.filePath("copy.e3m")), bytes);
    QCOMPARE(QDir(other.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"copy.e3m"}));
    QCOMPARE(usedFolderBytes(), QFile::encodeName(other.path()));
    QCOMPARE(tab.copy().scenarios[0].mapFileName, QString("isle.e3m"));
}

void ScenarioGeneralExportTest::exportReplacesAFile()
{
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    const QString path = fixture->writeMap("there.e3m", samples::noise(5000));
    {
        NextDialog dialog(chooseFile(fixture->saving("isle.e3m"), path));
        NextDialog question(boxAnswer(
            {"Save", "there.e3m already exists.\nDo you want to replace it?", QMessageBox::Warning,
             QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes}));
        tab.click("exportButton");
    }
    QCOMPARE(contents(path), QByteArray("packed isle.e3m"));
    QVERIFY(!tab.dialog.hasChanged());
}

void ScenarioGeneralExportTest::cancelledExportDoesNothing()
{
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    {
        NextDialog dialog(chooseFile(fixture->saving("isle.e3m"), ""));
        tab.click("exportButton");
    }
    QCOMPARE(usedFolderBytes(), QByteArray());
    QVERIFY(!QFile::exists(fixture->maps() + "/isle.e3m"));
    QVERIFY(!tab.dialog.hasChanged());
}

void ScenarioGeneralExportTest::exportWhereNothingOpensIsSilent()
{
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    NoBox none;
    {
        NextDialog dialog(
            chooseFile(fixture->saving("isle.e3m"), fixture->filePath("no/such/place.e3m")));
        tab.click("exportButton");
    }
    QCOMPARE(usedFolderBytes(), QByteArray());
    QVERIFY(QDir(fixture->folderPath()).isEmpty());
}

void ScenarioGeneralExportTest::exportOntoAFullDiskWarns()
{
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    campaign.scenarios[0].compressedMap = samples::noise(200000);
    GeneralTab tab(campaign);
    const QString path = fixture->filePath("large.e3m");
    {
        NextDialog dialog(chooseFile(fixture->saving("isle.e3m"), path));
        NextDialog told(boxAnswer(failure(path, EFBIG)));
        const FileSizeLimit limit(100000);
        tab.click("exportButton");
    }
    QVERIFY(QDir(fixture->folderPath()).isEmpty());
    QCOMPARE(usedFolderBytes(), fixture->folderBytes());
}

void ScenarioGeneralExportTest::exportOntoAFullDiskLeavesALinkToNowhere()
{
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    const QString path = fixture->filePath("link.e3m");
    QVERIFY(QFile::link("nowhere.e3m", path));
    {
        NextDialog dialog(chooseFile(fixture->saving("isle.e3m"), path));
        NextDialog told(boxAnswer(failure(path, EFBIG)));
        const FileSizeLimit limit(3);
        tab.click("exportButton");
    }
    QCOMPARE(QFile::symLinkTarget(path), fixture->filePath("nowhere.e3m"));
    QVERIFY(!QFile::exists(fixture->filePath("nowhere.e3m")));
}

void ScenarioGeneralExportTest::exportOntoADiskWithoutRoomForAName()
{
    const SmallDisk disk(100, 1);
    if (!disk.isMounted())
        QSKIP("no right to mount a disk here");
    CampaignData campaign = campaignOf(true, QStringList{"isle"});
    GeneralTab tab(campaign);
    NextDialog dialog(chooseFile(fixture->saving("isle.e3m"), disk.path("isle.e3m")));
    NextDialog told(boxAnswer(failure(disk.path("isle.e3m"), ENOSPC)));
    tab.click("exportButton");
}

void ScenarioGeneralExportTest::removePassesPrerequisitesOn()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c", "d", "e"});
    require(campaign, 1, {0, 3});
    require(campaign, 2, {1});
    require(campaign, 3, {4});
    GeneralTab tab(campaign, 1);
    tab.click("removeButton");
    QCOMPARE(tab.storedFor(2), QList<int>({0, 3}));
    QCOMPARE(tab.storedFor(1), QList<int>());
    QCOMPARE(tab.storedFor(0), QList<int>());
    QCOMPARE(tab.storedFor(3), QList<int>({4}));
    tab.select(2);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 checked", "3 checked", "4 implied"}));
}

void ScenarioGeneralExportTest::removeLeavesAnEmptyScenario()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, 1, {0, 11});
    campaign.scenarios[1].regionText = "Beware of the marsh";
    campaign.scenarios[1].regionColor = 5;
    GeneralTab tab(campaign, 1);
    tab.click("removeButton");
    const ScenarioData &scenario = tab.copy().scenarios[1];
    QCOMPARE(scenario.mapFileName, QString());
    QCOMPARE(scenario.mapSize, 0u);
    QCOMPARE(scenario.compressedMap, QByteArray());
    QVERIFY(!scenario.mapHeader);
    QCOMPARE(scenario.prerequisites, QBitArray(3));
    QCOMPARE(scenario.regionText, QString("Beware of the marsh"));
    QCOMPARE(scenario.regionColor, quint8(5));
    QCOMPARE(tab.shownPrerequisites(), QStringList());
    QVERIFY(!tab.find<QPushButton>("exportButton")->isEnabled());
    QVERIFY(!tab.find<QPushButton>("removeButton")->isEnabled());
    QVERIFY(tab.find<QPushButton>("refreshButton")->isEnabled());
    QCOMPARE(tab.labelText("scenarioNameLabelMain"), QString("(None)"));
    QCOMPARE(tab.labelText("mapFileIdentifier"), QString("(None)"));
    QCOMPARE(tab.texts()[1], QStringLiteral("Empty — Birch Hill"));
    QVERIFY(tab.dialog.hasChanged());
    QVERIFY(campaign.scenarios[1].mapHeader); // the document's
    tab.select(2);
    QCOMPARE(tab.shownPrerequisites(), QStringList({"0 free"}));
}

void ScenarioGeneralExportTest::removeInACampaignWithoutMap()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c"});
    require(campaign, 1, {0});
    require(campaign, 2, {1});
    GeneralTab tab(campaign, 1);
    QCOMPARE(tab.texts()[1], QString("2. b.e3m"));
    tab.click("removeButton");
    QCOMPARE(tab.texts()[1], QString("2. Empty"));
    QCOMPARE(tab.storedFor(2), QList<int>({0}));
    QVERIFY(!tab.copy().scenarios[1].mapHeader);
    {
        NextDialog dialog(
            chooseFile(fixture->opening(""), fixture->writeMap("new.e3m", mapNamed("Ironmoors"))));
        tab.click("refreshButton");
    }
    QCOMPARE(tab.texts()[1], QString("2. new.e3m"));
    QCOMPARE(tab.prerequisites()->count(), 0);
}

QTEST_MAIN(ScenarioGeneralExportTest)
#include "scenario_general_export_test.moc"
