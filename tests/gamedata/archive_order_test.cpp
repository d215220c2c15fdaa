// The archives of the game in their order: which of them has the word about a file.
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/last_words.h"
#include "tests/support/idle_pipe.h"

#include <QTest>

#include <memory>

using game_files::archive;
using game_files::GameFolder;
using game_files::Packed;
using game_files::Raw;
using game_files::smallTexts;

namespace {

QStringList archiveNames()
{
    QStringList names;
    for (const LodArchive &each : EditorData::lod_archives)
        names.append(each.path.section(QLatin1Char('/'), -1));
    return names;
}

QByteArray bytesOf(const QString &name)
{
    int size = 0;
    const std::unique_ptr<char[]> data(EditorData::getLodFileData(name, &size));
    return data ? QByteArray(data.get(), size) : QByteArray("no file");
}

} // namespace

class ArchiveOrderTest : public QObject
{
    Q_OBJECT

private slots:
    void archivesStandInTheOrderOfTheirPrecedence()
    {
        const GameFolder game;
        for (const char *name : {"Foo.lod", "E3bitmap.lod", "Ravn_lng.lod", "E3sprite.lod",
                                 "Ravn_l_ext.lod", "Ravn.lod", "Bar.lod", "Ravn_ext.lod"})
            QVERIFY(game.write(QString::fromLatin1(name), archive({})));
        QVERIFY(!lastWordsOfStart().isEmpty());
        // Those of equal rank in the order of their names.
        QCOMPARE(archiveNames(),
                 QStringList({"Ravn_l_ext.lod", "Ravn_lng.lod", "Ravn_ext.lod", "Ravn.lod",
                              "E3sprite.lod", "Bar.lod", "E3bitmap.lod", "Foo.lod"}));
    }

    void manyArchivesOfEqualRankKeepTheOrderOfTheirNames()
    {
        const GameFolder game;
        QStringList expected;
        for (int i = 10; i < 60; ++i)
            expected.append(QStringLiteral("Extra%1.lod").arg(i));
        for (int i = 0; i < expected.size(); ++i)
            QVERIFY(game.write(expected[(i * 7) % expected.size()], archive({})));
        QVERIFY(game.write(QStringLiteral("Ravn.lod"), archive({})));
        QVERIFY(!lastWordsOfStart().isEmpty());
        QCOMPARE(archiveNames(), QStringList("Ravn.lod") + expected);
    }

    void onlyArchivesOfTheFolderItselfAreOpened()
    {
        const GameFolder game;
        for (const char *name : {"a.lod", "b.LOD", "c.Lod", "d.lod.bak", "e.txt", ".lod.txt"})
            QVERIFY(game.write(QString::fromLatin1(name), archive({})));
        QVERIFY(QDir(game.dataPath(QString())).mkpath(QStringLiteral("sub")));
        QVERIFY(game.write(QStringLiteral("sub/inner.lod"), archive({})));
        QVERIFY(QDir(game.dataPath(QString())).mkpath(QStringLiteral("folder.lod")));
        QVERIFY(!lastWordsOfStart().isEmpty());
        QCOMPARE(archiveNames(), QStringList("a.lod"));
    }

    void whatIsNoFileIsNotWaitedFor()
    {
        const GameFolder game;
        QVERIFY(game.write(QStringLiteral("b.lod"), archive({})));
        const IdlePipe pipe(game.dataPath(QStringLiteral("a.lod")));
        QVERIFY(pipe.isMade());
        QVERIFY(QFile::link(QStringLiteral("a.lod"), game.dataPath(QStringLiteral("c.lod"))));
        QVERIFY(!lastWordsOfStart().isEmpty());
        QVERIFY(!pipe.wasOpened());
        QCOMPARE(archiveNames(), QStringList("b.lod"));
    }

    void archiveOfAnotherKindStandsInTheListAndAnswersNothing()
    {
        const GameFolder game;
        QVERIFY(game.write(QStringLiteral("Ravn.lod"), "nothing of that kind"));
        QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), archive({{"a.txt", "text", Raw}})));
        QVERIFY(!lastWordsOfStart().isEmpty());
        QCOMPARE(archiveNames(), QStringList({"Ravn.lod", "E3bitmap.lod"}));
        QVERIFY(EditorData::lod_archives[0].files.isEmpty());
        QCOMPARE(bytesOf(QStringLiteral("a.txt")), QByteArray("text"));
    }

    void fileOfTheHighestArchiveHidesTheOthers()
    {
        const QStringList names = {"Ravn_l_ext", "Ravn_lng", "Ravn_ext",
                                   "Ravn",       "E3sprite", "E3bitmap"};
        const GameFolder game;
        for (int rank = 0; rank < names.size(); ++rank) {
            // The archive of each rank lacks the files of the ranks above.
            std::vector<game_files::ArchiveEntry> entries;
            for (int file = rank; file >= 0; --file)
                entries.push_back({"F" + QByteArray::number(names.size() - 1 - file) + ".TXT",
                                   names[names.size() - 1 - rank].toLatin1(), Packed});
            QVERIFY(game.write(names[names.size() - 1 - rank] + QStringLiteral(".lod"),
                               archive(entries)));
        }
        QVERIFY(!lastWordsOfStart().isEmpty());
        // Of the file f5, which all archives have, the highest one answers; f0 has the highest
        // alone.
        for (int file = 0; file < names.size(); ++file)
            QCOMPARE(bytesOf(QStringLiteral("f%1.txt").arg(file)), QByteArray("Ravn_l_ext"));
        EditorData::lod_archives.erase(EditorData::lod_archives.begin());
        QCOMPARE(bytesOf(QStringLiteral("f0.txt")), QByteArray("no file"));
        for (int file = 1; file < names.size(); ++file)
            QCOMPARE(bytesOf(QStringLiteral("f%1.txt").arg(file)), QByteArray("Ravn_lng"));
        EditorData::lod_archives.resize(4);
        EditorData::lod_archives.erase(EditorData::lod_archives.begin(),
                                       EditorData::lod_archives.begin() + 3);
        QCOMPARE(bytesOf(QStringLiteral("f4.txt")), QByteArray("E3sprite"));
        QCOMPARE(bytesOf(QStringLiteral("f3.txt")), QByteArray("no file"));
    }

    void damagedEntryLeavesTheWordToTheNextArchive()
    {
        const GameFolder game;
        QVERIFY(game.write(QStringLiteral("Ravn.lod"),
                           game_files::archiveHeader(1) +
                               game_files::indexEntry("a.txt", 4000000000U, 4, 0)));
        QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), archive({{"a.txt", "text", Raw}})));
        QVERIFY(!lastWordsOfStart().isEmpty());
        QCOMPARE(bytesOf(QStringLiteral("a.txt")), QByteArray("text"));
    }

    void tableOfTheHighestArchiveWinsInAnyCase_data()
    {
        QTest::addColumn<unsigned>("language");
        QTest::newRow("first language") << 0U;
        QTest::newRow("another language") << 5U;
        QTest::newRow("no language") << 0xFFFFFFFFU;
    }
    void tableOfTheHighestArchiveWinsInAnyCase()
    {
        QFETCH(unsigned, language);
        const GameFolder game;
        auto texts = smallTexts();
        texts["CRTRAITS.TXT"] = game_files::lines({"", "", game_files::row("Low", 12)});
        QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), game_files::archiveOf(texts)));
        const QByteArray high = game_files::lines({"", "", game_files::row("High", 12)});
        QVERIFY(game.write(QStringLiteral("Ravn_l_ext.lod"),
                           archive({{"crtraits.txt", high, Packed}})));
        EditorData::OpenLods(language, game_files::codec());
        QCOMPARE(EditorData::creatures, (std::map<int, QString>{{0, "High"}}));
    }
};

QTEST_GUILESS_MAIN(ArchiveOrderTest)
#include "archive_order_test.moc"
