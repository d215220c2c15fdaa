// Names of maps in a campaign: whatever they are, nothing outside the campaign's folder is written
// or read because of them.
#include "tests/strangers/strangely_named_map.h"
#include "tests/support/child_process.h"

namespace {

std::string inFolder(const QString &name)
{
    return "home/" + QFile::encodeName(name).toStdString();
}

} // namespace

class MapNamesTest : public QObject, private StrangelyNamedMap
{
    Q_OBJECT

private slots:
    void initTestCase() { QVERIFY(setLocaleCodec(QString())); }
    void init();
    void cleanup() { window.reset(); }

    void windowExportsIntoTheFolder_data() { addNames(); }
    void windowExportsIntoTheFolder();
    void commandExportsIntoTheFolder_data() { addNames(); }
    void commandExportsIntoTheFolder();
    void windowRefreshesFromTheFolder_data() { addNames(); }
    void windowRefreshesFromTheFolder();
    void commandRefreshesFromTheFolder_data() { addNames(); }
    void commandRefreshesFromTheFolder();
    void fileOutsideIsNoMap_data() { addNames(); }
    void fileOutsideIsNoMap();
    void nothingButMapsIsReplaced_data();
    void nothingButMapsIsReplaced();

private:
    ChildResult cli(const QStringList &words) const;
    // All files but the one map that is exported as it should be, and links to nowhere.
    Folder foldersFiles() const;
    // What an export has to leave.
    Folder expectedExport(const Folder &before) const;
};

void MapNamesTest::init()
{
    reset();
    saveCampaign();
}

ChildResult MapNamesTest::cli(const QStringList &words) const
{
    return runChild(builtProgram("cmped-cli"), QStringList{"--game", fixture.game.path()} + words);
}

Folder MapNamesTest::foldersFiles() const
{
    QFile::remove(path("home/three.e3m"));
    return filesBelow(folder->path());
}

Folder MapNamesTest::expectedExport(const Folder &before) const
{
    Folder expected = before;
    expected["home/three.e3m"] = mapNamed("Stonegate");
    if (namesAFile())
        expected[inFolder(m_name.file)] = mapNamed("Ironmoors");
    return expected;
}

void MapNamesTest::windowExportsIntoTheFolder()
{
    window->loadFile(path("home/home.e3c"));
    const Folder before = filesBelow(folder->path());
    trigger("actionExport_Scenario_Maps");
    QVERIFY(filesBelow(folder->path()) == expectedExport(before));
}

void MapNamesTest::commandExportsIntoTheFolder()
{
    const Folder before = filesBelow(folder->path());
    const ChildResult result = cli({"export-maps", path("home/home.e3c"), path("home")});
    QVERIFY(filesBelow(folder->path()) == expectedExport(before));
    QCOMPARE(result.exitCode, m_name.canBeFile ? 0 : 2);
    QCOMPARE(result.error.startsWith("Error: Cannot write file "), !m_name.canBeFile);
}

void MapNamesTest::windowRefreshesFromTheFolder()
{
    window->loadFile(path("home/home.e3c"));
    QVERIFY(!namesAFile() || writeMap(m_name.file, mapNamed("Northwall")));
    QVERIFY(writeMap("three.e3m", mapNamed("Southgate")));
    trigger("actionRefresh_Scenario_Maps");
    // A name that can't be one of a file is that of a file that isn't there.
    QCOMPARE(EditorData::info.modified, m_name.canBeFile);
    const CampaignData refreshed = savedByTheWindow();
    QVERIFY(refreshed.scenarios[0].compressedMap ==
            mapNamed(namesAFile() ? "Northwall" : "Ironmoors"));
    QVERIFY(refreshed.scenarios[2].compressedMap ==
            mapNamed(m_name.canBeFile ? "Southgate" : "Stonegate"));
}

void MapNamesTest::commandRefreshesFromTheFolder()
{
    QVERIFY(!namesAFile() || writeMap(m_name.file, mapNamed("Northwall")));
    QVERIFY(writeMap("three.e3m", mapNamed("Southgate")));
    const ChildResult result =
        cli({"refresh-maps", path("home/home.e3c"), path("home"), path("out.e3c")});
    QCOMPARE(result.exitCode, m_name.canBeFile ? 0 : 2);
    QCOMPARE(result.error.startsWith("Error: Cannot read file "), !m_name.canBeFile);
    QCOMPARE(QFile::exists(path("out.e3c")), m_name.canBeFile);
    if (!m_name.canBeFile)
        return;
    const CampaignData refreshed = campaignIn("out.e3c");
    QVERIFY(refreshed.scenarios[0].compressedMap ==
            mapNamed(namesAFile() ? "Northwall" : "Ironmoors"));
    QVERIFY(refreshed.scenarios[2].compressedMap == mapNamed("Southgate"));
}

void MapNamesTest::fileOutsideIsNoMap()
{
    window->loadFile(path("home/home.e3c"));
    QVERIFY(writeMap("three.e3m", mapNamed("Southgate")));
    trigger("actionRefresh_Scenario_Maps");
    const CampaignData refreshed = savedByTheWindow();
    QVERIFY(refreshed.scenarios[0].compressedMap == mapNamed("Ironmoors"));
    // The first file that isn't there ends the command.
    const bool passedOver = m_name.file.isEmpty();
    QVERIFY(refreshed.scenarios[2].compressedMap ==
            mapNamed(passedOver ? "Southgate" : "Stonegate"));
}

void MapNamesTest::nothingButMapsIsReplaced_data()
{
    QTest::addColumn<hostile::MapName>("name");
    QTest::addColumn<QString>("reason");
    for (const char *name : {"home.e3c", "mine.e3c", "notes.txt", "MINE.E3C"})
        QTest::newRow(name) << hostile::MapName{name, name, name} << "File exists";
    for (const char *name : {".profile", ".new", ".three.e3m"})
        QTest::newRow(name) << hostile::MapName{name, name, name} << "Operation not permitted";
    for (const char *name : {"out.e3m", "far.e3m", "lost.e3m"})
        QTest::newRow(name) << hostile::MapName{name, name, name}
                            << "Too many levels of symbolic links";
}

void MapNamesTest::nothingButMapsIsReplaced()
{
    QFETCH(QString, reason);
    QVERIFY(QFile::copy(path("home/home.e3c"), path("home/mine.e3c")));
    QVERIFY(QFile::copy(path("home/home.e3c"), path("home/MINE.E3C")));
    QVERIFY(writeMap("notes.txt", "the author's") && writeMap(".profile", "the author's"));
    QVERIFY(QFile::link("../x", path("home/out.e3m")));
    QVERIFY(QFile::link(path("null"), path("home/far.e3m")));
    // Where nothing can be made: a program that followed it fails its test and harms no machine.
    QVERIFY(QFile::link("/proc/lost", path("home/lost.e3m")));
    const QString told = "Cannot write file " + path("home/" + m_name.file) + ":\n" + reason + '.';
    window->loadFile(path("home/home.e3c"));
    {
        const NextDialog box(boxAnswer(warning(told)));
        const Folder before = foldersFiles();
        trigger("actionExport_Scenario_Maps");
        QVERIFY(box.came());
        QVERIFY(foldersFiles() == before);
    }
    const Folder before = foldersFiles();
    const ChildResult result = cli({"export-maps", path("home/home.e3c"), path("home")});
    QCOMPARE(QString::fromUtf8(result.error), "Error: " + told + '\n');
    QCOMPARE(result.exitCode, 2);
    QVERIFY(foldersFiles() == before);
}

QTEST_MAIN(MapNamesTest)
#include "map_names_test.moc"
