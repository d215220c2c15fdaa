// The campaign maps, texts, colours, tunes and films that the game's tables name.
#include "tests/gamedata/campaign_layouts.h"

using game_files::numbered;

using Names = std::map<int, QString>;
using Rows = std::map<int, QStringList>;

class CampaignTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void campaignMapsAreKeptByTheirNumber()
    {
        const GameFolder game;
        useTable({campaignMap("campmap24", {"0", "1", "1 2"}),
                  campaignMap("campmap65535", {"0", "1", "1 2"}),
                  campaignMap("campmap65536", {"0", "1", "malformed"}),
                  campaignMap("campmap", {"0", "1", "malformed"}),
                  campaignMap("campmaps3", {"0", "1", "malformed"}),
                  {"campmap0", {{0, "\x80"}, {1, "\xE9.pcx"}}},
                  {"cmpbackground", {{8, "after"}}}});
        initCampaigns(game);
        QCOMPARE(int(EditorData::campaignInfo.size()), 3);
        QCOMPARE(EditorData::campaignMap(24).name, QStringLiteral("Name of campmap24"));
        QCOMPARE(EditorData::campaignMap(65535).regionCount, 1);
        QCOMPARE(EditorData::campaignMap(0).name, QString(u8"\u20AC"));
        QCOMPARE(EditorData::campaignMap(0).backgroundName, QString(u8"\u00E9.pcx"));
        QCOMPARE(EditorData::campaignMap(0).regionCount, 0);
        QCOMPARE(EditorData::backgrounds, (Names{{0, "after"}}));
    }

    void interfaceTextsAreColumnsOfRows()
    {
        const GameFolder game;
        auto texts = emptyTexts();
        texts["CmpEditr.txt"] = "Head\r\nHead\r\nTitle\ta\t\tb\r\n\r\n \t\r\n\tsecond\r\n\x80";
        texts["CmpEdCmd.txt"] = "\r\nHead\r\nOpen\tx\r\n\x80\r\n";
        initCampaigns(game, texts);
        QCOMPARE(EditorData::editorText,
                 (Rows{{0, {"Title", "a", "", "b"}}, {1, {"", "second"}}, {2, {u8"\u20AC"}}}));
        QCOMPARE(EditorData::editorCmdText, (Rows{{0, {"Open", "x"}}, {1, {u8"\u20AC"}}}));
    }

    void backgroundsAreNumberedOverAllEntries()
    {
        const GameFolder game;
        useTable({{"cmpbackground", {{8, "a.pcx\r\n\r\n#b.pcx\r\n"}}},
                  {"cmpbackground7", {{7, "no"}, {8, "\x80.pcx"}}},
                  {"cmpbackground", {{0, "too few strings"}}}});
        initCampaigns(game);
        QCOMPARE(EditorData::backgrounds,
                 (Names{{0, "a.pcx"}, {1, "#b.pcx"}, {2, u8"\u20AC.pcx"}}));
    }

    void coloursLoseTheLastOfMoreThanEightLines_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("seven") << numbered("c", 7).join("\r\n") << 7;
        QTest::newRow("eight") << numbered("c", 8).join("\r\n") << 8;
        QTest::newRow("eight, the last one ended") << lines(numbered("c", 8)) << 8;
        QTest::newRow("nine") << numbered("c", 9).join("\r\n") << 8;
        QTest::newRow("nine, the last one ended") << lines(numbered("c", 9)) << 9;
        QTest::newRow("blank lines between") << "\r\n" + numbered("c", 8).join("\r\n\t\r\n") << 7;
        QTest::newRow("nothing") << QByteArray() << 0;
    }
    void coloursLoseTheLastOfMoreThanEightLines()
    {
        QFETCH(QByteArray, text);
        QFETCH(int, count);
        const GameFolder game;
        game.provide({{"PlColors.txt", text}});
        EditorData::readColors(game_files::codec());
        QCOMPARE(int(EditorData::colors.size()), count);
        for (int i = 0; i < count; ++i)
            QCOMPARE(EditorData::colors[size_t(i)], QStringLiteral("c%1").arg(i));
    }

    void coloursAreInTheGamesEncoding()
    {
        const GameFolder game;
        game.provide({{"PlColors.txt", "Red\tx\r\n\x80"}});
        EditorData::readColors(game_files::codec());
        QCOMPARE(EditorData::colors, (std::vector<QString>{"Red\tx", u8"\u20AC"}));
    }

    void musicOfTheTextTableLosesTheLastLine()
    {
        const GameFolder game;
        auto texts = emptyTexts();
        texts["CmpMusic.txt"] = "March\tx\r\n\r\n\x80\r\n \r\nlast";
        initCampaigns(game, texts);
        QCOMPARE(EditorData::musicNames, (Names{{0, "March\tx"}, {1, u8"\u20AC"}}));
    }

    void musicOfTheTableFileStartsAt49()
    {
        const GameFolder game;
        auto texts = emptyTexts();
        texts["CmpMusic.txt"] = lines(numbered("m", 52));
        useTable({{"music", {{8, "One\r\nTwo # a comment\r\n\r\n\"Thr\r\nee\"\r\n"}}},
                  {"music3", {{7, "no"}, {8, "Uno"}}},
                  {"musics", {{8, "another kind"}}}});
        initCampaigns(game, texts);
        QCOMPARE(nameOf(EditorData::musicNames, 48), QStringLiteral("m48"));
        QCOMPARE(nameOf(EditorData::musicNames, 49), QStringLiteral("Uno"));
        QCOMPARE(nameOf(EditorData::musicNames, 50), QStringLiteral("Two "));
        QCOMPARE(nameOf(EditorData::musicNames, 51), QStringLiteral("Thr\r\nee"));
        QCOMPARE(int(EditorData::musicNames.size()), 52);
    }

    void musicOfTheTableFileIsInTheLocalesEncoding()
    {
        const GameFolder game;
        const QByteArray local = QString(u8"\u00E9").toLocal8Bit();
        useTable({{"music", {{8, local}}}});
        initCampaigns(game);
        QCOMPARE(EditorData::musicNames, (Names{{49, u8"\u00E9"}}));
    }

    void videosEndAfterHundredAndOneLines_data()
    {
        QTest::addColumn<int>("lineCount");
        QTest::addColumn<int>("kept");
        QTest::newRow("none") << 0 << 0;
        QTest::newRow("100") << 100 << 100;
        QTest::newRow("101") << 101 << 101;
        QTest::newRow("102") << 102 << 101;
        QTest::newRow("200") << 200 << 101;
    }
    void videosEndAfterHundredAndOneLines()
    {
        QFETCH(int, lineCount);
        QFETCH(int, kept);
        const GameFolder game;
        auto texts = emptyTexts();
        texts["CmpMovie.txt"] = " \r\n" + numbered("v", lineCount).join("\r\n\r\n");
        useTable({{"video1", {{4, "Extra"}}}});
        initCampaigns(game, texts);
        Names expected;
        for (int i = 0; i < kept; ++i)
            expected[i] = QStringLiteral("v%1").arg(i);
        expected[kept] = QStringLiteral("Extra");
        QCOMPARE(EditorData::videoNames, expected);
    }

    void videoWithoutANameLeavesAGap()
    {
        const GameFolder game;
        auto texts = emptyTexts();
        texts["CmpMovie.txt"] = "first\r\n\x80";
        useTable({{"video", {{4, "a"}}},
                  {"video9", {{4, ""}, {5, "five"}}},
                  {"video8", {{3, "too few strings"}}},
                  {"videos", {{4, "another kind"}}},
                  {"video2", {{4, "\x80"}}}});
        initCampaigns(game, texts);
        QCOMPARE(EditorData::videoNames,
                 (Names{{0, "first"}, {1, u8"\u20AC"}, {2, "a"}, {5, u8"\u20AC"}}));
    }

    void movieImagesOfALaterEntryOverwrite()
    {
        const GameFolder game;
        useTable({{"cmpmoviepic", {{8, "# head\r\na.pcx\r\n\r\n#\r\nb.pcx\r\nc.pcx"}}},
                  {"cmpmoviepic4", {{8, "\x80.pcx\r\n # kept"}}},
                  {"cmpmoviepics", {{8, "another kind"}}}});
        initCampaigns(game);
        QCOMPARE(EditorData::movieImages,
                 (Names{{0, u8"\u20AC.pcx"}, {1, " # kept"}, {2, "c.pcx"}}));
    }

    void startFillsThem()
    {
        const GameFolder game;
        useTable({campaignMap("campmap24", generatedLayout), {"cmpbackground", {{8, "b.pcx"}}}});
        auto texts = game_files::smallTexts();
        texts["CmpEditr.txt"] = "h\r\nh\r\nEditor";
        texts["PlColors.txt"] = "Red\r\nBlue";
        game.open(texts);
        QCOMPARE(EditorData::campaignMap(24).regionCount, 2);
        QCOMPARE(EditorData::backgrounds, (Names{{0, "b.pcx"}}));
        QCOMPARE(cmpEditorTitle(), QStringLiteral("Editor"));
        QCOMPARE(EditorData::colors, (std::vector<QString>{"Red", "Blue"}));
    }
};

QTEST_GUILESS_MAIN(CampaignTablesTest)
#include "campaign_tables_test.moc"
