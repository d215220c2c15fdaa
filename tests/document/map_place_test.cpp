// Where the maps of a stranger's campaign are written and read: links and other files in its
// folder.
#include "document/campaign_data.h"
#include "document/map_exchange.h"
#include "tests/document/samples.h"
#include "tests/support/file_contents.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <map>

class MapPlaceTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void exportFollowsLinksWithinTheFolder_data() { addLinks(); }
    void exportFollowsLinksWithinTheFolder();
    void refreshFollowsLinksWithinTheFolder_data() { addLinks(); }
    void refreshFollowsLinksWithinTheFolder();
    void folderMayBeReachedByALink();
    void refreshEndsSilentlyAtALinkToNowhereInside();
    void exportReplacesNothingButMaps_data();
    void exportReplacesNothingButMaps();
    void exportMakesNothingHidden_data();
    void exportMakesNothingHidden();
    void whatCantBeOpenedMayBePassedOver();

private:
    static void addLinks();
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString inner(const QString &name) const { return path("maps/" + name); }
    // Every file below the test's folder that is no link.
    std::map<QString, QByteArray> files() const;
    void makeLinks() const;
    QStringList exportMap(const QString &name, Unopened unopened = Unopened::Told) const;

    std::unique_ptr<QTemporaryDir> m_folder; // the folder "maps" stands in it
};

namespace {

const QByteArray map = samples::pack(samples::mapHeader(28) + samples::noise(600));
const QByteArray otherMap = samples::pack(samples::mapHeader(14) + samples::noise(300));

CampaignData campaignOf(const QString &fileName)
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, 1);
    campaign.scenarios[0].mapFileName = fileName;
    campaign.scenarios[0].compressedMap = map;
    return campaign;
}

QString cannotWrite(const QString &path, const QString &reason)
{
    return "Cannot write file " + path + ":\n" + reason + '.';
}

} // namespace

void MapPlaceTest::init()
{
    samples::setTables();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath("maps/sub"));
    samples::writeFile(path("outside.e3m"), otherMap);
    samples::writeFile(inner("real.e3m"), otherMap);
    samples::writeFile(inner("sub/real.e3m"), otherMap);
    samples::writeFile(inner("notes.txt"), "notes");
}

std::map<QString, QByteArray> MapPlaceTest::files() const
{
    std::map<QString, QByteArray> all;
    QDirIterator entries(m_folder->path(), QDir::Files | QDir::Hidden | QDir::NoSymLinks,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString name = entries.next();
        all[QDir(m_folder->path()).relativeFilePath(name)] = contents(name);
    }
    return all;
}

QStringList MapPlaceTest::exportMap(const QString &name, Unopened unopened) const
{
    QStringList told;
    exportMapsTo(
        path("maps"), campaignOf(name), path("maps/home.e3c"),
        [&](const QString &text) { told << text; }, unopened);
    return told;
}

// A link "map.e3m" in the folder. What it names may be a link itself, "second.e3m".
void MapPlaceTest::addLinks()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("file"); // none if it is refused
    QTest::addColumn<QString>("reason");
    const QString links = "Too many levels of symbolic links";
    const auto add = [](const char *title, const char *link, const char *second, const char *file,
                        const QString &reason) {
        QTest::newRow(title) << QString(link) << QString(second) << QString(file) << reason;
    };
    add("inside", "real.e3m", "", "maps/real.e3m", "");
    add("inside, from the root", "%1/maps/real.e3m", "", "maps/real.e3m", "");
    add("inside, by other folders", "../maps/sub/../real.e3m", "", "maps/real.e3m", "");
    add("inside, a chain", "second.e3m", "../maps/real.e3m", "maps/real.e3m", "");
    add("outside, from the root", "%1/outside.e3m", "", "", links);
    add("outside, above", "../outside.e3m", "", "", links);
    add("outside, a chain", "second.e3m", "../outside.e3m", "", links);
    add("outside, to nowhere", "../new.e3m", "", "", links);
    add("outside, into no folder", "../no/new.e3m", "", "", links);
    add("below", "sub/real.e3m", "", "", links);
    add("in a circle", "second.e3m", "map.e3m", "", links);
}

void MapPlaceTest::makeLinks() const
{
    QFETCH(QString, link);
    QFETCH(QString, second);
    QVERIFY(QFile::link(link.replace("%1", m_folder->path()), inner("map.e3m")));
    QVERIFY(second.isEmpty() || QFile::link(second, inner("second.e3m")));
}

void MapPlaceTest::exportFollowsLinksWithinTheFolder()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    makeLinks();
    std::map<QString, QByteArray> expected = files();
    if (!file.isEmpty())
        expected[file] = map;
    const QStringList told =
        reason.isEmpty() ? QStringList() : QStringList(cannotWrite(inner("map.e3m"), reason));
    QCOMPARE(exportMap("map.e3m"), told);
    QCOMPARE(exportMap("map.e3m", Unopened::PassedOver), told);
    QVERIFY(files() == expected);
    QVERIFY(QFileInfo(inner("map.e3m")).isSymLink());
}

void MapPlaceTest::refreshFollowsLinksWithinTheFolder()
{
    QFETCH(QString, file);
    QFETCH(QString, reason);
    makeLinks();
    CampaignData campaign = campaignOf("map.e3m");
    QStringList told;
    const MapRefresh result =
        refreshMapsFrom(path("maps"), campaign, [&](const QString &text) { told << text; });
    QCOMPARE(result.complete, !file.isEmpty());
    QCOMPARE(result.missing, QString());
    QCOMPARE(told, reason.isEmpty() ? QStringList()
                                    : QStringList("Cannot read file map.e3m:\n" + reason + '.'));
    QCOMPARE(campaign.scenarios[0].compressedMap, file.isEmpty() ? map : otherMap);
    QCOMPARE(campaign.scenarios[0].mapFileName, QString("map.e3m"));
}

void MapPlaceTest::folderMayBeReachedByALink()
{
    QVERIFY(QFile::link("maps", path("way")));
    QVERIFY(QFile::link("real.e3m", inner("map.e3m")));
    CampaignData campaign = campaignOf("map.e3m");
    const auto fail = [](const QString &text) { QFAIL(qPrintable(text)); };
    exportMapsTo(path("way"), campaign, {}, fail);
    QCOMPARE(contents(inner("real.e3m")), map);
    samples::writeFile(inner("real.e3m"), otherMap);
    QVERIFY(refreshMapsFrom(path("way"), campaign, fail).complete);
    QCOMPARE(campaign.scenarios[0].compressedMap, otherMap);
}

void MapPlaceTest::refreshEndsSilentlyAtALinkToNowhereInside()
{
    QVERIFY(QFile::link("new.e3m", inner("map.e3m")));
    CampaignData campaign = campaignOf("map.e3m");
    const MapRefresh result = refreshMapsFrom(path("maps"), campaign,
                                              [](const QString &text) { QFAIL(qPrintable(text)); });
    QVERIFY(!result.complete);
    QCOMPARE(result.missing, QString("map.e3m"));
    QCOMPARE(exportMap("map.e3m"), QStringList());
    QCOMPARE(contents(inner("new.e3m")), map);
}

void MapPlaceTest::exportReplacesNothingButMaps_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<bool>("replaced");
    const QByteArray campaign = samples::pack(ByteWriter().u32(10).u32(1).zeros(300).bytes());
    const QByteArray oldCampaign = samples::pack(ByteWriter().u32(5).u32(1).u32(1).bytes());
    const QByteArray archive = samples::pack("backup/notes" + QByteArray(500, 'x'));
    QTest::newRow("a text named as a map") << "notes.e3m" << QByteArray("text") << true;
    QTest::newRow("in capitals") << "NOTES.E3M" << QByteArray("text") << true;
    QTest::newRow("an empty file named as a map") << "notes.e3m" << QByteArray() << true;
    QTest::newRow("a map of another name") << "map.map" << otherMap << true;
    QTest::newRow("an extended map") << "map" << samples::mapFile(32, 7) << true;
    QTest::newRow("what was exported before") << "map.map" << map << true;
    QTest::newRow("an empty file") << "notes" << QByteArray() << false;
    QTest::newRow("a text") << "notes" << QByteArray("text") << false;
    QTest::newRow("a long text") << "notes" << QByteArray(5000, 'x') << false;
    QTest::newRow("a map that isn't packed") << "map" << samples::mapHeader(28) << false;
    QTest::newRow("a campaign") << "mine.e3c" << campaign << false;
    QTest::newRow("an old campaign") << "mine.e3c" << oldCampaign << false;
    QTest::newRow("a map without players") << "map" << samples::mapFile(28, 0, 0) << false;
    QTest::newRow("packed files") << "backup.tar.gz" << archive << false;
    QTest::newRow("the first bytes of a map") << "map" << map.left(9) << false;
}

void MapPlaceTest::exportReplacesNothingButMaps()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(bool, replaced);
    samples::writeFile(inner(name), bytes);
    const QStringList refused(cannotWrite(inner(name), "File exists"));
    QCOMPARE(exportMap(name), replaced ? QStringList() : refused);
    QCOMPARE(contents(inner(name)), replaced ? map : bytes);
    // A link of a map's name is no way to it.
    samples::writeFile(inner(name), bytes);
    QVERIFY(QFile::link(name, inner("link.e3m")));
    QCOMPARE(exportMap("link.e3m"),
             replaced ? QStringList() : QStringList(cannotWrite(inner("link.e3m"), "File exists")));
    QCOMPARE(contents(inner(name)), replaced ? map : bytes);
}

void MapPlaceTest::exportMakesNothingHidden_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {".profile", ".e3m", ".map.e3m", "...", "../.profile"})
        QTest::newRow(name) << QString(name);
}

void MapPlaceTest::exportMakesNothingHidden()
{
    QFETCH(QString, name);
    const QString bare = QFileInfo(name).fileName();
    const QString reason = "Operation not permitted";
    std::map<QString, QByteArray> before = files();
    QCOMPARE(exportMap(name), QStringList(cannotWrite(inner(bare), reason)));
    QVERIFY(QFile::link(bare, inner("link.e3m")));
    QCOMPARE(exportMap("link.e3m"), QStringList(cannotWrite(inner("link.e3m"), reason)));
    QVERIFY(files() == before);
    samples::writeFile(inner(bare), otherMap);
    QCOMPARE(exportMap(name), QStringList(cannotWrite(inner(bare), reason)));
    QCOMPARE(contents(inner(bare)), otherMap);
}

void MapPlaceTest::whatCantBeOpenedMayBePassedOver()
{
    QVERIFY(QDir(path("maps")).mkdir("folder.e3m"));
    QCOMPARE(exportMap("folder.e3m"),
             QStringList(cannotWrite(inner("folder.e3m"), "Is a directory")));
    QCOMPARE(exportMap("folder.e3m", Unopened::PassedOver), QStringList());
}

QTEST_GUILESS_MAIN(MapPlaceTest)
#include "map_place_test.moc"
