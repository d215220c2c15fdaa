// The start of the tables: which archives are opened, in which order, and the simple tables.
#include "gamedata/limits.h"
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/marking_translator.h"
#include "tests/support/report_recorder.h"

#include <QTest>

#include <memory>

using game_files::archive;
using game_files::GameFolder;
using game_files::Packed;
using game_files::Raw;
using game_files::smallTexts;

namespace {

// In the order in which a start asks for them.
const QStringList requiredTables = {"CRTRAITS.TXT", "artraits.txt", "CmpMusic.txt", "CmpMovie.txt",
                                    "CmpEditr.txt", "CmpEdCmd.txt", "HOTRAITS.TXT", "RESTYPES.txt",
                                    "PlColors.txt", "PriSkill.txt", "JKTEXT.txt",   "BldgNeut.TXT",
                                    "BldgSpec.txt", "Dwelling.txt", "SSTRAITS.txt", "SPTRAITS.txt"};

// What the start said before it ended with exit code 1; empty if it went through.
QString lastWordsOfStart()
{
    const ReportRecorder recorder;
    try {
        EditorData::OpenLods(0, game_files::codec());
    } catch (const ProcessEnd &end) {
        if (end.code != 1 || recorder.errors.size() != 1)
            return QStringLiteral("ended otherwise");
        return recorder.errors[0].title + QLatin1Char('|') + recorder.errors[0].text;
    }
    return QString();
}

QString missing(const QString &name)
{
    return QStringLiteral("Error|Can't find ") + name + QStringLiteral(" file in lod file");
}

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

class EditorDataTest : public QObject
{
    Q_OBJECT

private slots:
    void missingTableEndsTheProcess_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString &name : requiredTables)
            QTest::newRow(qPrintable(name)) << name;
    }
    void missingTableEndsTheProcess()
    {
        QFETCH(QString, name);
        const GameFolder game;
        auto texts = smallTexts();
        QCOMPARE(texts.remove(name.toLatin1()), 1);
        QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), game_files::archiveOf(texts)));
        QCOMPARE(lastWordsOfStart(), missing(name));
    }

    void tablesAreReadInTheirOrder()
    {
        // With the first tables there, the start asks in vain for the next one.
        QMap<QByteArray, QByteArray> texts;
        for (const QString &name : requiredTables) {
            const GameFolder game;
            QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), game_files::archiveOf(texts)));
            QCOMPARE(lastWordsOfStart(), missing(name));
            texts[name.toLatin1()] = "text";
        }
        const GameFolder game;
        QVERIFY(game.write(QStringLiteral("E3bitmap.lod"), game_files::archiveOf(texts)));
        QCOMPARE(lastWordsOfStart(), QString());
    }

    void folderWithoutArchivesHasNoTables_data()
    {
        QTest::addColumn<bool>("folderIsThere");
        QTest::newRow("empty") << true;
        QTest::newRow("missing") << false;
    }
    void folderWithoutArchivesHasNoTables()
    {
        QFETCH(bool, folderIsThere);
        const GameFolder game;
        if (!folderIsThere)
            QVERIFY(QDir().rmdir(game.dataPath(QString())));
        QCOMPARE(lastWordsOfStart(), missing(QStringLiteral("CRTRAITS.TXT")));
        QVERIFY(EditorData::lod_archives.empty());
    }

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

    void textsSplitAtCarriageReturnWithLineFeed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("empty") << QByteArray() << QStringList{""};
        QTest::newRow("no line end") << QByteArray("one") << QStringList{"one"};
        QTest::newRow("line end last") << QByteArray("one\r\n") << QStringList{"one", ""};
        QTest::newRow("empty lines")
            << QByteArray("\r\none\r\n\r\ntwo") << QStringList{"", "one", "", "two"};
        QTest::newRow("line feeds alone")
            << QByteArray("one\ntwo\rthree") << QStringList{"one\ntwo\rthree"};
        QTest::newRow("up to a zero")
            << QByteArray("one\r\ntwo\0three\r\n", 17) << QStringList{"one", "two"};
        QTest::newRow("through the codec")
            << QByteArray("\xE9t\xE9\r\n\x80") << QStringList{u8"\u00E9t\u00E9", u8"\u20AC"};
    }
    void textsSplitAtCarriageReturnWithLineFeed()
    {
        QFETCH(QByteArray, bytes);
        const GameFolder game;
        game.provide({{"raw.txt", bytes}, {"zpacked.txt", bytes}});
        QTEST(EditorData::readTxtFile(QStringLiteral("RAW.TXT"), game_files::codec()), "expected");
        QTEST(EditorData::readTxtFile(QStringLiteral("zpacked.txt"), game_files::codec()),
              "expected");
    }

    void codecDecidesTheLetters()
    {
        const GameFolder game;
        game.provide({{"a.txt", "\xE4\xE0"}});
        QTextCodec *const cyrillic = QTextCodec::codecForName("Windows-1251");
        QCOMPARE(EditorData::readTxtFile(QStringLiteral("a.txt"), cyrillic),
                 QStringList{u8"\u0434\u0430"});
        QCOMPARE(EditorData::readTxtFile(QStringLiteral("a.txt"), nullptr),
                 QStringList{u8"\u00E4\u00E0"});
    }

    void textIsReadUpToItsLimit()
    {
        constexpr int limit = 4 * 1024 * 1024;
        QCOMPARE(limits::textTableBytes, qint64(limit));
        const GameFolder game;
        game.provide({{"at.txt", QByteArray(limit - 5, 'a') + "\r\nend"},
                      {"past.txt", QByteArray(limit - 4, 'a') + "\r\nend"}});
        const auto lastLine = [](const char *name) {
            return EditorData::readTxtFile(QString::fromLatin1(name), game_files::codec()).last();
        };
        QCOMPARE(lastLine("at.txt"), QStringLiteral("end"));
        QCOMPARE(lastLine("past.txt"), QStringLiteral("en"));
    }

    void simpleTablesNumberTheirLines()
    {
        const GameFolder game;
        // Only tabs and spaces make a blank line: a bare line feed is a row.
        game.provide({{"a.txt", "zero\r\n \t\r\n\r\none\tmore\r\n \tx\r\n\n\r\nlast"}});
        std::map<int, QString> all;
        EditorData::parseTextSimple(all, QStringLiteral("a.txt"), game_files::codec(), false);
        QCOMPARE(all, (std::map<int, QString>{
                          {0, "zero"}, {1, "one\tmore"}, {2, " \tx"}, {3, "\n"}, {4, "last"}}));
        std::map<int, QString> most;
        EditorData::parseTextSimple(most, QStringLiteral("a.txt"), game_files::codec(), true);
        QCOMPARE(most,
                 (std::map<int, QString>{{0, "zero"}, {1, "one\tmore"}, {2, " \tx"}, {3, "\n"}}));
    }

    void startFillsTheSimpleTables()
    {
        const GameFolder game;
        auto texts = smallTexts();
        texts["PriSkill.txt"] = "Might\r\nGuard\r\nLore\r\n\x80";
        texts["JKTEXT.txt"] = "first\r\n\x80\r\nthird";
        game.open(texts);
        QCOMPARE(
            EditorData::primarySkills,
            (std::map<int, QString>{{0, "Might"}, {1, "Guard"}, {2, "Lore"}, {3, u8"\u20AC"}}));
        QCOMPARE(EditorData::jktext, (std::map<int, QString>{{0, "first"}, {1, u8"\u20AC"}}));
        QCOMPARE(EditorData::skillLevels,
                 (std::map<int, QString>{{1, "Basic"}, {2, "Advanced"}, {3, "Expert"}}));
    }

    void skillLevelsAreInTheEditorsLanguage()
    {
        const GameFolder game;
        const MarkingTranslator translator;
        game.open(smallTexts());
        QCOMPARE(EditorData::skillLevels,
                 (std::map<int, QString>{
                     {1, "QObject: Basic"}, {2, "QObject: Advanced"}, {3, "QObject: Expert"}}));
    }

    void missingTableIsToldInTheWindowsLanguage()
    {
        const GameFolder game;
        const MarkingTranslator translator;
        const ReportRecorder recorder;
        QCOMPARE(exitCodeOf([] {
                     EditorData::readTxtFile(QStringLiteral("none.txt"), game_files::codec());
                 }),
                 1);
        QCOMPARE(recorder.errors.size(), 1);
        QCOMPARE(recorder.errors[0].title, QStringLiteral("MainWindow: Error"));
        QCOMPARE(recorder.errors[0].text,
                 QStringLiteral("MainWindow: Can't find none.txt file in lod file"));
    }

    void anotherStartForgetsTheFirstOne()
    {
        const GameFolder game;
        auto texts = smallTexts();
        texts["PlColors.txt"] = "Red\r\nBlue";
        texts["CmpEditr.txt"] = "h\r\nh\r\nTitle\r\nMore";
        texts["JKTEXT.txt"] = "one\r\ntwo\r\n";
        game_files::useTable({{"hero9", {{6, "Orla"}}},
                              {"monst151", {{3, "Imp"}}},
                              {"art150", {{1, "Crown"}}},
                              {"secskill30", {{1, "Riding"}}},
                              {"music", {{8, "Tune"}}},
                              {"video", {{4, "Film"}}},
                              {"cmpmoviepic", {{8, "Still"}}},
                              {"cmpbackground", {{8, "Hall"}}},
                              {"campmap7", {{0, "Coast"}}}});
        const auto namesOfTheTableFile = [] {
            return nameOf(EditorData::heroes, 9) + nameOf(EditorData::creatures, 151) +
                   nameOf(EditorData::artifacts, 150) + nameOf(EditorData::secondarySkills, 30) +
                   nameOf(EditorData::musicNames, 49) + nameOf(EditorData::videoNames, 1) +
                   nameOf(EditorData::movieImages, 0) + nameOf(EditorData::backgrounds, 0);
        };
        game.open(texts);
        QCOMPARE(int(EditorData::colors.size()), 2);
        QCOMPARE(namesOfTheTableFile(), QStringLiteral("OrlaImpCrownRidingTuneFilmStillHall"));

        game_files::useTable({});
        texts["CmpEditr.txt"] = "h\r\nh\r\nTitle";
        texts["JKTEXT.txt"] = "one\r\n";
        game.open(texts);
        QCOMPARE(int(EditorData::lod_archives.size()), 1);
        QCOMPARE(EditorData::colors, (std::vector<QString>{"Red", "Blue"}));
        QCOMPARE(namesOfTheTableFile(), QString());
        QVERIFY(EditorData::campaignInfo.empty());
        QCOMPARE(EditorData::editorText, (std::map<int, QStringList>{{0, {"Title"}}}));
        QCOMPARE(EditorData::jktext, (std::map<int, QString>{{0, "one"}}));
        QCOMPARE(int(EditorData::creature_ordering.size()), 175);
    }

    void startLeavesTheStateOfTheDocumentAlone()
    {
        const GameFolder game;
        EditorData::info.campaign = 7;
        EditorData::info.modified = true;
        game.open(smallTexts());
        QCOMPARE(EditorData::info.campaign, 7U);
        QVERIFY(EditorData::info.modified);
    }

    void lookUpsAnswerEmptyAndAddNothing()
    {
        const GameFolder game;
        EditorData::heroes = {{3, "Orla"}};
        EditorData::editorText = {{2, {"a", "b"}}, {4, {}}};
        EditorData::campaignInfo[5].name = QStringLiteral("Coast");

        QCOMPARE(nameOf(EditorData::heroes, 3), QStringLiteral("Orla"));
        QCOMPARE(nameOf(EditorData::heroes, 4), QString());
        QCOMPARE(nameOf(EditorData::heroes, -1), QString());
        QCOMPARE(textOf(EditorData::editorText, 2), QStringLiteral("a"));
        QCOMPARE(textOf(EditorData::editorText, 2, 1), QStringLiteral("b"));
        QCOMPARE(textOf(EditorData::editorText, 2, 2), QString());
        QCOMPARE(textOf(EditorData::editorText, 2, -1), QString());
        QCOMPARE(textOf(EditorData::editorText, 3), QString());
        QCOMPARE(textOf(EditorData::editorText, 4), QString());
        QCOMPARE(EditorData::campaignMap(5).name, QStringLiteral("Coast"));
        QCOMPARE(EditorData::campaignMap(6).name, QString());
        QCOMPARE(EditorData::campaignMap(6).regionCount, 0);
        QCOMPARE(EditorData::campaignMap(0xFFFFFFFFU).regionCount, 0);

        QCOMPARE(int(EditorData::heroes.size()), 1);
        QCOMPARE(int(EditorData::editorText.size()), 2);
        QCOMPARE(int(EditorData::campaignInfo.size()), 1);
    }

    void titleIsTheFirstTextOfTheEditor()
    {
        const GameFolder game;
        QCOMPARE(cmpEditorTitle(), QString());
        EditorData::editorText = {{0, {"Campaigns", "other"}}};
        QCOMPARE(cmpEditorTitle(), QStringLiteral("Campaigns"));
    }
};

QTEST_GUILESS_MAIN(EditorDataTest)
#include "editor_data_test.moc"
