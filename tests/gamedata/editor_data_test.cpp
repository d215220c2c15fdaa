// The start that reads the tables of the game, and what the tables answer.
#include "gamedata/limits.h"
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/last_words.h"
#include "tests/gamedata/marking_translator.h"
#include "tests/support/report_recorder.h"

#include <QTest>

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

QString missing(const QString &name)
{
    return QStringLiteral("Error|Can't find ") + name + QStringLiteral(" file in lod file");
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
