// The sample game: a run of its maker beside the build's, and what it puts into archives and table
// file.
#include "tests/support/child_process.h"
#include "tests/tools/made_game.h"
#include "tests/tools/picture_kinds.h"

#include <QDirIterator>
#include <QRect>
#include <QSet>
#include <QTest>

namespace {

QStringList filesBelow(const QString &folder)
{
    QStringList files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext())
        files += QDir(folder).relativeFilePath(it.next());
    files.sort();
    return files;
}

} // namespace

class SampleGameTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void twoRunsGiveTheSameBytes();
    void everyFileIsThere();
    void wrongUsageAndUnwritableFoldersAreTold();
    void archiveEntriesUnpackToTheirSizes();
    void laterArchivesHideEntriesOfEarlierOnes();
    void textTablesHoldTheirRows_data();
    void textTablesHoldTheirRows();
    void editorTextsStandInTheirRows();
    void tableFileHoldsEveryKind();
    void addedNamesContinueTheTextTables();
    void campaignMapsAreOfEveryKind();
    void campaignMapPicturesFitTheirRegions();
    void everyMovieAndBackgroundHasItsPicture();
    void settingsNameTheLanguage();

private:
    MadeGame m_game;
};

void SampleGameTest::initTestCase()
{
    QCOMPARE(m_game.make(), QByteArray());
}

void SampleGameTest::twoRunsGiveTheSameBytes()
{
    MadeGame built;
    QCOMPARE(built.openBuilt(), QByteArray());
    for (const char *part : {"Data", "Maps", "MP3"}) {
        const QString folder = QLatin1String(part);
        const QStringList files = filesBelow(m_game.path(folder));
        QVERIFY(!files.isEmpty());
        QCOMPARE(filesBelow(built.path(folder)), files);
        for (const QString &name : files)
            QVERIFY2(m_game.file(folder + '/' + name) == built.file(folder + '/' + name),
                     qPrintable(name));
    }
    QVERIFY(m_game.file("ravn.dat") == built.file("ravn.dat"));
}

void SampleGameTest::everyFileIsThere()
{
    QStringList expected = {QStringLiteral("Ravn_settings.ini"),
                            QStringLiteral("ravn.dat"),
                            QStringLiteral("MP3/Campfire.mp3"),
                            QStringLiteral("MP3/Clockwork Waltz.mp3"),
                            QStringLiteral("MP3/Lullaby of the Reeds.mp3"),
                            QStringLiteral("MP3/River March.mp3"),
                            QStringLiteral("MP3/Snowbound.mp3"),
                            QStringLiteral("MP3/The Road East.mp3")};
    for (const char *archive : kArchives)
        expected += QStringLiteral("Data/%1.lod").arg(QLatin1String(archive));
    const char *const inMaps[] = {"sample.e3c",
                                  "without_map.e3c",
                                  "version_5.e3c",
                                  "version_6.e3c",
                                  "ready_made_pictures.e3c",
                                  "no_maps_yet.e3c",
                                  "foreign_packer.e3c",
                                  "Lantern Landing.e3m",
                                  "The Toll Bridge.e3m",
                                  "Mill Pond.e3m",
                                  "The Old Ford.e3m",
                                  "Heron Court.e3m",
                                  "The Ash Road.e3m",
                                  "The Sealed Weir.e3m",
                                  "Saltharbour.e3m",
                                  "Nine Wells.e3m",
                                  "Barrow Night.e3m",
                                  "Over the Snow Pass.e3m",
                                  "Drums of the Karrun.e3m",
                                  "Empty Thrones.e3m",
                                  "Second Sons.e3m",
                                  "Foundling Hall.e3m",
                                  "The Wandering Fair.e3m",
                                  "Eight Hearths.e3m",
                                  "Three Far Hearths.e3m",
                                  "The Roll of Names.e3m",
                                  "The Split Crown.e3m",
                                  "The Split Crown, Mended.e3m",
                                  "Nobody Home.e3m",
                                  "Plain Sailing.e3m",
                                  "Torn Page.e3m"};
    for (const char *name : inMaps)
        expected += QStringLiteral("Maps/%1").arg(QLatin1String(name));
    expected.sort();
    QCOMPARE(filesBelow(m_game.folder()), expected);
}

void SampleGameTest::wrongUsageAndUnwritableFoldersAreTold()
{
    const QString maker = builtProgram(QStringLiteral("make_sample_game"));
    const ChildResult none = runChild(maker, {});
    QCOMPARE(none.exitCode, 1);
    QVERIFY(none.error.contains("usage: make_sample_game DIR\n"));
    QCOMPARE(runChild(maker, {QStringLiteral("--help")}).exitCode, 1);
    const ChildResult blocked = runChild(maker, {m_game.path(QStringLiteral("ravn.dat"))},
                                         QProcessEnvironment::systemEnvironment(), kMakerTimeout);
    QCOMPARE(blocked.exitCode, 2);
    QVERIFY(blocked.error.contains("the folder can't be made"));
}

void SampleGameTest::archiveEntriesUnpackToTheirSizes()
{
    bool otherKinds = false;
    for (const char *archive : kArchives) {
        QSet<QByteArray> names;
        bool packed = false;
        bool unpacked = false;
        for (const ArchiveEntry &found : m_game.archive(archive)) {
            QVERIFY2(found.sound, found.name.constData());
            QVERIFY2(!names.contains(found.name.toLower()), found.name.constData());
            names.insert(found.name.toLower());
            (found.packed ? packed : unpacked) = true;
            otherKinds = otherKinds || found.name.endsWith(".def");
        }
        QVERIFY2(packed && unpacked, archive);
    }
    QVERIFY(otherKinds);
}

void SampleGameTest::laterArchivesHideEntriesOfEarlierOnes()
{
    QMap<QByteArray, QSet<QByteArray>> contents;
    for (const char *archive : kArchives) {
        for (const ArchiveEntry &found : m_game.archive(archive))
            contents[found.name.toLower()].insert(found.content);
    }
    for (const char *name : {"hotraits.txt", "priskill.txt", "dwelling.txt", "cmpdash.pcx"})
        QCOMPARE(contents.value(name).size(), 2);
    QVERIFY(!m_game.entry(QStringLiteral("hotraits.txt")).contains("(old)"));
    QVERIFY(!m_game.entry(QStringLiteral("priskill.txt")).contains("(old)"));
    QVERIFY(!m_game.entry(QStringLiteral("dwelling.txt")).contains(" old "));
}

void SampleGameTest::textTablesHoldTheirRows_data()
{
    QTest::addColumn<int>("head"); // lines that readers leave out
    QTest::addColumn<int>("tail");
    QTest::addColumn<int>("leastColumns");
    QTest::addColumn<int>("mostColumns");
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("last");
    const int any = 1000;
    const auto row = [](const char *name) -> QTestData & { return QTest::newRow(name); };
    row("CRTRAITS.TXT") << 2 << 0 << 12 << any << 150 << "Reed Levy"
                        << "Gate Lantern";
    row("HOTRAITS.TXT") << 2 << 1 << 1 << any << 156 << "Aldwen"
                        << "Levanta";
    row("artraits.txt") << 2 << 2 << 12 << any << 144 << "Grimoire"
                        << "Ration Bread of Rivermark";
    row("SSTRAITS.txt") << 2 << 1 << 1 << any << 28 << "Bowcraft"
                        << "Stubbornness";
    // Ten, a heading, sixty, a heading and six that have no number any more.
    row("SPTRAITS.txt") << 4 << 1 << 1 << any << 78 << "Ferryman's Whistle"
                        << "Stunning Bellow";
    row("RESTYPES.txt") << 0 << 0 << 1 << any << 8 << "Salt"
                        << "Nothing";
    row("PriSkill.txt") << 0 << 0 << 1 << any << 4 << "Attack"
                        << "Knowledge";
    row("JKTEXT.txt") << 0 << 1 << 1 << any << 30 << "Monday"
                      << "All resources";
    row("BldgNeut.TXT") << 0 << 1 << 2 << 2 << 16 << "Scholars' House, First Floor"
                        << "Smithy";
    row("BldgSpec.txt") << 0 << 0 << 1 << any << 81 << "Flood Gauge"
                        << "Wonder of the Town";
    row("Dwelling.txt") << 0 << 0 << 1 << any << 140 << "Reed Camp"
                        << "Far Lynx Lair";
    row("CmpEditr.txt") << 2 << 0 << 1 << any << 61 << "Eldmark Saga Campaign Editor"
                        << "Cancel";
    row("CmpEdCmd.txt") << 2 << 0 << 1 << any << 22 << "Double-click a region to edit it."
                        << "Take translated texts back.";
    row("CmpMovie.txt") << 0 << 0 << 1 << any << 16 << "Rider at Dawn"
                        << "The Last Camp";
    row("CmpMusic.txt") << 0 << 1 << 1 << any << 49 << "River March"
                        << "Silence";
    row("PlColors.txt") << 0 << 1 << 1 << any << 8 << "Red"
                        << "Pink";
}

void SampleGameTest::textTablesHoldTheirRows()
{
    QFETCH(int, head);
    QFETCH(int, tail);
    QFETCH(int, leastColumns);
    QFETCH(int, mostColumns);
    QFETCH(int, count);
    QFETCH(QString, first);
    QFETCH(QString, last);
    const QString name = QLatin1String(QTest::currentDataTag());
    QCOMPARE(m_game.entry(name).count('\n'), m_game.entry(name).count("\r\n"));
    QStringList lines = m_game.rows(name).mid(head);
    lines = lines.mid(0, lines.size() - tail);
    QStringList names;
    QSet<QString> different;
    for (const QString &line : qAsConst(lines)) {
        const QStringList columns = line.split(QLatin1Char('\t'));
        if (line.trimmed().isEmpty() || columns.size() < leastColumns ||
            columns.size() > mostColumns)
            continue;
        names += columns.first();
        different.insert(columns.first());
    }
    QCOMPARE(names.size(), count);
    QCOMPARE(different.size(), count);
    QCOMPARE(names.first(), first);
    QCOMPARE(names.last(), last);
}

void SampleGameTest::editorTextsStandInTheirRows()
{
    const QStringList texts = m_game.rows(QStringLiteral("CmpEditr.txt")).mid(2);
    QCOMPARE(texts.at(7), QStringLiteral("Edits campaigns of Eldmark Saga and its add-on Ravn."));
    QCOMPARE(texts.mid(25, 5),
             QStringList({QStringLiteral("Easy"), QStringLiteral("Normal"), QStringLiteral("Hard"),
                          QStringLiteral("Expert"), QStringLiteral("Impossible")}));
    QCOMPARE(texts.at(55), QStringLiteral("Play music"));
    const QStringList hints = m_game.rows(QStringLiteral("CmpEdCmd.txt")).mid(2);
    QCOMPARE(hints.at(9), QStringLiteral("Open this campaign again."));
    QCOMPARE(hints.at(19), QStringLiteral("Edit the selected scenario."));
    QCOMPARE(m_game.rows(QStringLiteral("JKTEXT.txt")).mid(27, 2),
             QStringList({QStringLiteral("Timber and Bog Iron"),
                          QStringLiteral("Amber, Moonglass and Dyes")}));
    QVERIFY(m_game.rows(QStringLiteral("SPTRAITS.txt"))
                .at(15)
                .startsWith(QStringLiteral("Combat Spells")));
    QCOMPARE(m_game.rows(QStringLiteral("CmpMusic.txt")).at(34), QStringLiteral("The Road East"));
}

void SampleGameTest::tableFileHoldsEveryKind()
{
    for (const char *kind : {"monst", "art", "hero", "secskill", "video", "music", "cmpmoviepic",
                             "campmap", "cmpbackground", "casdwcost", "casspcost", "firebrdhorde"})
        QVERIFY2(!m_game.ofKind(kind).isEmpty(), kind);
    bool blob = false;
    bool emptyBlob = false;
    bool withoutNumber = false;
    for (const DatEntry &found : m_game.table()) {
        blob = blob || (!found.blob.isEmpty() && !found.ints.isEmpty());
        emptyBlob = emptyBlob || (found.hasBlob && found.blob.isEmpty());
        withoutNumber = withoutNumber || found.id() == -1;
    }
    QVERIFY(blob && emptyBlob && withoutNumber);
    for (const DatEntry &town : m_game.ofKind("casdwcost"))
        QCOMPARE(MadeGame::listOf(town, 7).size(), 14);
    for (const DatEntry &town : m_game.ofKind("casspcost"))
        QCOMPARE(MadeGame::listOf(town, 7).size(), 10);
    QCOMPARE(m_game.ofKind("casdwcost").size(), 2);
    QCOMPARE(m_game.ofKind("casspcost").size(), 2);
    QCOMPARE(m_game.ofKind("firebrdhorde").first().strings.value(5), QByteArray("Moulting Tower"));
}

void SampleGameTest::addedNamesContinueTheTextTables()
{
    struct Addition
    {
        const char *kind;
        int first, last, place;
        const char *lastName;
    };
    const Addition additions[] = {{"monst", 150, 185, 3, "Clocktower Titan"},
                                  {"art", 144, 165, 1, "Na\xefve Painter's Brush"},
                                  {"hero", 156, 177, 6, "Hammerlin"},
                                  {"secskill", 28, 30, 1, "Salt Trade"}};
    for (const Addition &addition : additions) {
        QMap<int, QByteArray> names;
        for (const DatEntry &found : m_game.ofKind(addition.kind))
            names[found.id()] = found.strings.value(addition.place);
        for (int id = addition.first; id <= addition.last; ++id)
            QVERIFY2(!names.value(id).isEmpty(), addition.kind);
        QCOMPARE(names.lastKey(), addition.last);
        QCOMPARE(names.last(), QByteArray(addition.lastName));
    }
    QCOMPARE(m_game.ofKind("monst").size(), kCreatures - 150);
    QCOMPARE(m_game.ofKind("art").last().id(), kArtifacts - 1);
}

void SampleGameTest::campaignMapsAreOfEveryKind()
{
    QMap<int, QString> kinds;
    bool record32 = false;
    for (const DatEntry &map : m_game.ofKind("campmap")) {
        const QStringList layout = MadeGame::listOf(map, 8);
        kinds[map.id()] = layout.value(0);
        QVERIFY(map.strings.value(8).startsWith('#'));
        QVERIFY(!map.strings.value(0).isEmpty());
        QCOMPARE(layout.value(1).toInt(), regionsOf(map.id()));
        const QByteArray background = m_game.entry(QString::fromLatin1(map.strings.value(1)));
        QVERIFY(isPicture32(background) || isPicture24(background));
        QCOMPARE(sizeOf(background), QSize(456, 600));
        record32 = record32 || isPicture32(background);
    }
    QCOMPARE(kinds, (QMap<int, QString>{{3, QStringLiteral("0")},
                                        {8, QStringLiteral("0")},
                                        {15, QStringLiteral("1")},
                                        {24, QStringLiteral("1")},
                                        {27, QStringLiteral("1")},
                                        {31, QStringLiteral("2")}}));
    QVERIFY(record32);
}

void SampleGameTest::campaignMapPicturesFitTheirRegions()
{
    for (const DatEntry &map : m_game.ofKind("campmap")) {
        const QStringList layout = MadeGame::listOf(map, 8);
        const int regions = layout.value(1).toInt();
        QCOMPARE(layout.size(), 2 + 5 * regions);
        for (int i = 0; i < regions; ++i) {
            const QStringList corner = layout.at(2 + i).split(QLatin1Char(' '));
            QCOMPARE(corner.size(), 2);
            const QStringList lines = layout.mid(2 + regions + 4 * i, 4);
            QVERIFY(!lines.at(0).isEmpty());
            QSet<QPair<int, int>> sizes;
            for (const QString &line : lines.mid(1)) {
                const QStringList pictures = line.split(QLatin1Char(' '));
                QCOMPARE(pictures.size(), layout.at(0) == QLatin1String("0") ? 8 : 1);
                for (const QString &name : pictures) {
                    QVERIFY2(isPalettePicture(m_game.entry(name)), qPrintable(name));
                    sizes.insert(
                        {sizeOf(m_game.entry(name)).width(), sizeOf(m_game.entry(name)).height()});
                }
            }
            QCOMPARE(sizes.size(), 1);
            const QRect map456(0, 0, 456, 600);
            QVERIFY(map456.contains(QRect(corner.at(0).toInt(), corner.at(1).toInt(),
                                          sizes.begin()->first, sizes.begin()->second)));
        }
    }
    const QByteArray pattern = m_game.entry(QStringLiteral("cmpdash.pcx"));
    QVERIFY(isPalettePicture(pattern));
    QVERIFY(sizeOf(pattern).width() >= 456 && sizeOf(pattern).height() >= 600);
}

void SampleGameTest::everyMovieAndBackgroundHasItsPicture()
{
    const int movies = 16 + m_game.ofKind("video").size();
    int unnamed = 0;
    for (const DatEntry &movie : m_game.ofKind("video"))
        unnamed += movie.strings.value(4).isEmpty() ? 1 : 0;
    QCOMPARE(unnamed, 1);
    const QStringList pictures = MadeGame::listOf(m_game.ofKind("cmpmoviepic").last(), 8);
    QCOMPARE(pictures.size(), movies);
    for (const QString &name : pictures)
        QVERIFY2(isPicture24(m_game.entry(name)), qPrintable(name));

    QStringList backgrounds;
    for (const DatEntry &list : m_game.ofKind("cmpbackground"))
        backgrounds += MadeGame::listOf(list, 8);
    QCOMPARE(backgrounds.size(), 6);
    for (const QString &name : qAsConst(backgrounds)) {
        QVERIFY2(isPicture24(m_game.entry(name)) || isPicture32(m_game.entry(name)),
                 qPrintable(name));
        QCOMPARE(sizeOf(m_game.entry(name)), QSize(456, 600));
    }
}

void SampleGameTest::settingsNameTheLanguage()
{
    const QByteArray settings = m_game.file(QStringLiteral("Ravn_settings.ini"));
    QVERIFY(settings.startsWith("[Global Settings]\r\n\r\nLanguage=0\r\n"));
    QVERIFY(settings.contains("\r\n[Campaign Editor]\r\n\r\nPath=\r\n"));
    QVERIFY(settings.count('[') >= 4);
}

QTEST_GUILESS_MAIN(SampleGameTest)
#include "sample_game_test.moc"
