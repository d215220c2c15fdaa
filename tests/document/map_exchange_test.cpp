// A campaign's maps on the way into a folder and back.
#include "document/map_exchange.h"

#include "document/campaign_data.h"
#include "tests/document/samples.h"
#include "tests/support/disk_faults.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

class MapExchangeTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void exportWritesTheBytesOfEveryMap();
    void exportReplacesFiles();
    void exportOfNoMapsWritesNothing();
    void exportLeavesFilesOfEmptyMapsAlone();
    void exportStaysInItsFolder_data();
    void exportStaysInItsFolder();
    void exportPassesNamesOverThatAreNone_data();
    void exportPassesNamesOverThatAreNone();
    void exportLeavesTheCampaignsFileAlone_data();
    void exportLeavesTheCampaignsFileAlone();
    void exportTellsWhatItCannotWriteAndGoesOn();
    void exportOntoAFullDiskKeepsTheOldFile();
    void refreshTakesEveryMap();
    void refreshReadsMapsOfScenariosThatHaveNone();
    void refreshOfNoMapsIsComplete();
    void refreshStaysInItsFolder();
    void refreshTracesEveryPath();
    void refreshEndsAtAMissingFile();
    void refreshGoesOnBehindARefusedMap();
    void refreshEndsAtAnUnreadableFile_data();
    void refreshEndsAtAnUnreadableFile();
    void refreshReplacesSharedHeaders();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString inner(const QString &name) const { return path("maps/" + name); }
    void writeMap(const QString &name, const QByteArray &bytes) const
    {
        samples::writeFile(inner(name), bytes);
    }
    QStringList filesIn(const QString &folder) const
    {
        return QDir(path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QStringList exportMaps(const CampaignData &campaign, const QString &campaignFile = {}) const
    {
        QStringList told;
        exportMapsTo(path("maps"), campaign, campaignFile,
                     [&](const QString &text) { told << text; });
        return told;
    }
    MapRefresh refresh(CampaignData &campaign)
    {
        return refreshMapsFrom(path("maps"), campaign,
                               [this](const QString &text) { m_told << text; });
    }

    std::unique_ptr<QTemporaryDir> m_folder; // the folder "maps" stands in it
    QStringList m_told;
};

namespace {

// A map of this name, of nine letters.
QByteArray mapNamed(const QByteArray &name, unsigned anyPlayers = 1)
{
    return samples::pack(samples::mapHeader(28, 0, anyPlayers).replace("Frostmere", name) +
                         samples::noise(600));
}

// Scenarios with maps of these file names; the bytes are the name's, and no map in truth.
CampaignData campaignOf(const QStringList &fileNames)
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, unsigned(fileNames.size()));
    for (int i = 0; i < fileNames.size(); ++i) {
        if (fileNames[i].isEmpty())
            continue;
        ScenarioData &scenario = campaign.scenarios[std::size_t(i)];
        scenario.mapFileName = fileNames[i];
        scenario.compressedMap = "bytes of " + fileNames[i].toUtf8();
        scenario.mapSize = quint32(scenario.compressedMap.size());
        scenario.mapHeader = std::make_shared<MapHeader>();
        scenario.mapHeader->mapName = "old";
    }
    return campaign;
}

QStringList mapNames(const CampaignData &campaign)
{
    QStringList names;
    for (const ScenarioData &scenario : campaign.scenarios)
        names << (scenario.mapHeader ? scenario.mapHeader->mapName : QString());
    return names;
}

} // namespace

void MapExchangeTest::init()
{
    samples::setTables();
    m_told.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkdir("maps"));
}

void MapExchangeTest::exportWritesTheBytesOfEveryMap()
{
    CampaignData campaign = campaignOf({"one.e3m", "", "three.e3m"});
    campaign.scenarios[0].compressedMap = samples::noise(300000);
    QCOMPARE(exportMaps(campaign), QStringList());
    QCOMPARE(filesIn("maps"), QStringList({"one.e3m", "three.e3m"}));
    QCOMPARE(contents(inner("one.e3m")), samples::noise(300000));
    QCOMPARE(contents(inner("three.e3m")), QByteArray("bytes of three.e3m"));
}

void MapExchangeTest::exportReplacesFiles()
{
    writeMap("one.e3m", samples::noise(5000));
    QCOMPARE(exportMaps(campaignOf({"one.e3m"})), QStringList());
    QCOMPARE(contents(inner("one.e3m")), QByteArray("bytes of one.e3m"));
}

void MapExchangeTest::exportOfNoMapsWritesNothing()
{
    QCOMPARE(exportMaps(campaignOf({"", ""})), QStringList());
    QCOMPARE(exportMaps(CampaignData()), QStringList());
    QCOMPARE(filesIn("maps"), QStringList());
}

void MapExchangeTest::exportLeavesFilesOfEmptyMapsAlone()
{
    writeMap("one.e3m", "the author's");
    CampaignData campaign = campaignOf({"one.e3m", "two.e3m"});
    campaign.scenarios[0].compressedMap.clear();
    QCOMPARE(exportMaps(campaign), QStringList());
    QCOMPARE(contents(inner("one.e3m")), QByteArray("the author's"));
    QCOMPARE(contents(inner("two.e3m")), QByteArray("bytes of two.e3m"));
}

void MapExchangeTest::exportStaysInItsFolder_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("up") << "../out.e3m";
    QTest::newRow("far up") << "../../../out.e3m";
    QTest::newRow("other slashes") << "..\\out.e3m";
    QTest::newRow("from the root") << "/out.e3m";
    QTest::newRow("drive") << "C:\\maps\\out.e3m";
    QTest::newRow("both") << "a\\..\\b/../out.e3m";
}

void MapExchangeTest::exportStaysInItsFolder()
{
    QFETCH(QString, name);
    QCOMPARE(exportMaps(campaignOf({name})), QStringList());
    QCOMPARE(filesIn("."), QStringList());
    QCOMPARE(filesIn("maps"), QStringList({"out.e3m"}));
}

void MapExchangeTest::exportPassesNamesOverThatAreNone_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {".", "..", "../", "a/", "\\", "../.."})
        QTest::newRow(name) << QString(name);
}

void MapExchangeTest::exportPassesNamesOverThatAreNone()
{
    QFETCH(QString, name);
    CampaignData campaign = campaignOf({name, "next.e3m"});
    QCOMPARE(exportMaps(campaign), QStringList());
    QCOMPARE(filesIn("maps"), QStringList({"next.e3m"}));
    QCOMPARE(filesIn("."), QStringList());
    campaign.scenarios.pop_back();
    QVERIFY(refresh(campaign).complete);
    QCOMPARE(m_told, QStringList());
}

void MapExchangeTest::exportLeavesTheCampaignsFileAlone_data()
{
    QTest::addColumn<QString>("campaignFile");
    QTest::addColumn<QString>("mapName");
    QTest::newRow("its name") << "maps/home.e3c"
                              << "home.e3c";
    QTest::newRow("its name in a folder") << "maps/home.e3c"
                                          << "..\\home.e3c";
    QTest::newRow("path the long way") << "maps/../maps//home.e3c"
                                       << "home.e3c";
    QTest::newRow("campaign opened by a link") << "link.e3c"
                                               << "home.e3c";
    QTest::newRow("map named like a link") << "maps/home.e3c"
                                           << "link.e3m";
}

void MapExchangeTest::exportLeavesTheCampaignsFileAlone()
{
    QFETCH(QString, campaignFile);
    QFETCH(QString, mapName);
    writeMap("home.e3c", "the campaign");
    QVERIFY(QFile::link(inner("home.e3c"), path("link.e3c")));
    QVERIFY(QFile::link(inner("home.e3c"), inner("link.e3m")));
    QCOMPARE(exportMaps(campaignOf({mapName, "next.e3m"}), path(campaignFile)),
             QStringList({"Cannot write file " + inner(QString(mapName).remove("..\\")) +
                          ":\nFile exists."}));
    QCOMPARE(contents(inner("home.e3c")), QByteArray("the campaign"));
    QCOMPARE(contents(inner("next.e3m")), QByteArray("bytes of next.e3m"));
}

void MapExchangeTest::exportTellsWhatItCannotWriteAndGoesOn()
{
    QVERIFY(QDir(path("maps")).mkdir("one.e3m"));
    QCOMPARE(exportMaps(campaignOf({"one.e3m", "two%1%2.e3m"})),
             QStringList({"Cannot write file " + inner("one.e3m") + ":\nIs a directory."}));
    QCOMPARE(filesIn("maps"), QStringList({"two%1%2.e3m"}));
    QVERIFY(m_folder->remove());
    QCOMPARE(exportMaps(campaignOf({"two%1%2.e3m"})),
             QStringList(
                 {"Cannot write file " + inner("two%1%2.e3m") + ":\nNo such file or directory."}));
}

void MapExchangeTest::exportOntoAFullDiskKeepsTheOldFile()
{
    writeMap("one.e3m", "old");
    CampaignData campaign = campaignOf({"one.e3m", "two.e3m"});
    campaign.scenarios[0].compressedMap = samples::noise(200000);
    const FileSizeLimit limit(100000);
    QCOMPARE(exportMaps(campaign),
             QStringList({"Cannot write file " + inner("one.e3m") + ":\nFile too large."}));
    QCOMPARE(contents(inner("one.e3m")), QByteArray("old"));
    QCOMPARE(filesIn("maps"), QStringList({"one.e3m", "two.e3m"}));
}

void MapExchangeTest::refreshTakesEveryMap()
{
    CampaignData campaign = campaignOf({"one.e3m", "", "three.e3m"});
    campaign.scenarios[0].regionText = "stays";
    writeMap("one.e3m", mapNamed("Ironmoors"));
    writeMap("three.e3m", mapNamed("Stonegate"));
    const MapRefresh result = refresh(campaign);
    QVERIFY(result.complete);
    QCOMPARE(result.missing, QString());
    QCOMPARE(m_told, QStringList());
    QCOMPARE(mapNames(campaign), QStringList({"Ironmoors", "", "Stonegate"}));
    QCOMPARE(campaign.scenarios[0].compressedMap, mapNamed("Ironmoors"));
    QCOMPARE(campaign.scenarios[0].mapSize, quint32(mapNamed("Ironmoors").size()));
    QCOMPARE(campaign.scenarios[0].mapFileName, QString("one.e3m"));
    QCOMPARE(campaign.scenarios[0].regionText, QString("stays"));
    QCOMPARE(campaign.scenarios[1].mapSize, 0u);
}

// It has lost its bytes, in a torn file say, and gets them back so.
void MapExchangeTest::refreshReadsMapsOfScenariosThatHaveNone()
{
    CampaignData campaign = campaignOf({""});
    campaign.scenarios[0].mapFileName = "one.e3m";
    writeMap("one.e3m", mapNamed("Ironmoors"));
    QVERIFY(refresh(campaign).complete);
    QCOMPARE(mapNames(campaign), QStringList({"Ironmoors"}));
}

void MapExchangeTest::refreshOfNoMapsIsComplete()
{
    CampaignData campaign = campaignOf({"", ""});
    QVERIFY(refresh(campaign).complete);
    CampaignData empty;
    QVERIFY(refresh(empty).complete);
    QCOMPARE(m_told, QStringList());
}

void MapExchangeTest::refreshStaysInItsFolder()
{
    samples::writeFile(path("out.e3m"), mapNamed("Outsiders"));
    writeMap("out.e3m", mapNamed("Ironmoors"));
    CampaignData campaign = campaignOf({"../out.e3m"});
    QVERIFY(refresh(campaign).complete);
    QCOMPARE(mapNames(campaign), QStringList({"Ironmoors"}));
    QCOMPARE(campaign.scenarios[0].mapFileName, QString("out.e3m"));
}

void MapExchangeTest::refreshTracesEveryPath()
{
    CampaignData campaign = campaignOf({"one.e3m", "", "a/two.e3m"});
    writeMap("one.e3m", mapNamed("Ironmoors"));
    for (const char *name : {"one.e3m", "two.e3m"})
        QTest::ignoreMessage(QtDebugMsg, qPrintable('"' + inner(name) + '"'));
    QVERIFY(!refresh(campaign).complete);
}

void MapExchangeTest::refreshEndsAtAMissingFile()
{
    CampaignData campaign = campaignOf({"one.e3m", "a/two.e3m", "three.e3m"});
    writeMap("one.e3m", mapNamed("Ironmoors"));
    writeMap("three.e3m", mapNamed("Stonegate"));
    const MapRefresh result = refresh(campaign);
    QVERIFY(!result.complete);
    QCOMPARE(result.missing, QString("two.e3m"));
    QCOMPARE(m_told, QStringList());
    QCOMPARE(mapNames(campaign), QStringList({"Ironmoors", "old", "old"}));
}

void MapExchangeTest::refreshGoesOnBehindARefusedMap()
{
    CampaignData campaign = campaignOf({"one%2.e3m", "two.e3m"});
    writeMap("one%2.e3m", mapNamed("Nobodies.", 0));
    writeMap("two.e3m", mapNamed("Stonegate"));
    QVERIFY(refresh(campaign).complete);
    QCOMPARE(m_told, QStringList({"Cannot read file one%2.e3m. Map has errors."}));
    QCOMPARE(mapNames(campaign), QStringList({"old", "Stonegate"}));
    QCOMPARE(campaign.scenarios[0].compressedMap, QByteArray("bytes of one%2.e3m"));
}

void MapExchangeTest::refreshEndsAtAnUnreadableFile_data()
{
    QTest::addColumn<bool>("folder");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty file") << false << "Unknown error";
    QTest::newRow("folder") << true << "file to open is a directory";
}

void MapExchangeTest::refreshEndsAtAnUnreadableFile()
{
    QFETCH(bool, folder);
    QFETCH(QString, reason);
    CampaignData campaign = campaignOf({"one.e3m", "two.e3m", "three.e3m"});
    writeMap("one.e3m", mapNamed("Ironmoors"));
    if (folder)
        QVERIFY(QDir(path("maps")).mkdir("two.e3m"));
    else
        writeMap("two.e3m", "");
    writeMap("three.e3m", mapNamed("Stonegate"));
    const MapRefresh result = refresh(campaign);
    QVERIFY(!result.complete);
    QCOMPARE(result.missing, QString());
    QCOMPARE(m_told, QStringList({"Cannot read file two.e3m:\n" + reason + "."}));
    QCOMPARE(mapNames(campaign), QStringList({"Ironmoors", "old", "old"}));
}

void MapExchangeTest::refreshReplacesSharedHeaders()
{
    CampaignData campaign = campaignOf({"one.e3m"});
    const CampaignData copy = campaign;
    writeMap("one.e3m", mapNamed("Ironmoors"));
    QVERIFY(refresh(campaign).complete);
    QCOMPARE(mapNames(copy), QStringList({"old"}));
}

QTEST_GUILESS_MAIN(MapExchangeTest)
#include "map_exchange_test.moc"
