// The layouts of the campaign maps, and the tables of backgrounds, colours, music and videos.
#include "tests/gamedata/game_files.h"

#include <QTest>

using game_files::GameFolder;
using game_files::lines;
using game_files::numbered;
using game_files::useTable;

using Names = std::map<int, QString>;
using Rows = std::map<int, QStringList>;

namespace {

QMap<QByteArray, QByteArray> emptyTexts()
{
    return {{"CmpMusic.txt", ""}, {"CmpMovie.txt", ""}, {"CmpEditr.txt", ""}, {"CmpEdCmd.txt", ""}};
}

void initCampaigns(const GameFolder &game, const QMap<QByteArray, QByteArray> &texts = emptyTexts())
{
    game.provide(texts);
    EditorData::initCampaignInfo(game_files::codec());
}

game_files::TableEntry campaignMap(const QByteArray &name, const QList<QByteArray> &layout)
{
    return {name, {{0, "Name of " + name}, {1, "Back.pcx"}, {8, lines(layout)}}};
}

// Reads one layout, with backgrounds behind it that tell whether the reading went on.
CampaignInfo readLayout(const QList<QByteArray> &layout)
{
    const GameFolder game;
    useTable({campaignMap("campmap3", layout), {"cmpbackground", {{8, "after"}}}});
    initCampaigns(game);
    if (EditorData::backgrounds.empty())
        return {};
    return EditorData::campaignInfo[3];
}

const QList<QByteArray> generatedLayout = {"1",     "2",         "10 20",       "-30 40",
                                           "North", "NGlow.pcx", "NBorder.pcx", "NFill.pcx",
                                           "South", "SGlow.pcx", "SBorder.pcx", "SFill.pcx"};

} // namespace

class CampaignTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void readyMadeLayout()
    {
        const CampaignInfo map = readLayout({"0", "2", "10 20", "-30 +40", "North Coast",
                                             "A1.pcx A2.pcx A3.pcx", " B1.pcx  B2.pcx", "C1.pcx",
                                             "\x80", "D1.pcx D2.pcx", "E1.pcx", "F1.pcx F2.pcx"});
        QCOMPARE(map.name, QStringLiteral("Name of campmap3"));
        QCOMPARE(map.backgroundName, QStringLiteral("Back.pcx"));
        QCOMPARE(map.layoutType, 0);
        QVERIFY(!map.generated);
        QCOMPARE(map.regionCount, 2);
        QCOMPARE(map.regions.size(), 2);
        QCOMPARE(map.regions[0].x, 10);
        QCOMPARE(map.regions[0].y, 20);
        QCOMPARE(map.regions[0].name, QStringLiteral("North Coast"));
        QCOMPARE(map.regions[0].imageNames,
                 (QVector<QStringList>{
                     {"A1.pcx", "A2.pcx", "A3.pcx"}, {"", "B1.pcx", "", "B2.pcx"}, {"C1.pcx"}}));
        QCOMPARE(map.regions[1].x, -30);
        QCOMPARE(map.regions[1].y, 40);
        QCOMPARE(map.regions[1].name, QString(u8"\u20AC"));
        QCOMPARE(map.regions[1].imageNames,
                 (QVector<QStringList>{{"D1.pcx", "D2.pcx"}, {"E1.pcx"}, {"F1.pcx", "F2.pcx"}}));
        QCOMPARE(map.regions[0].glowImage + map.regions[0].borderImage + map.regions[0].fillImage,
                 QString());
    }

    void generatedLayoutHasItsMasksInOrder()
    {
        QCOMPARE(generatedLayout.size(), 12);
        const CampaignInfo map = readLayout(generatedLayout);
        QCOMPARE(map.layoutType, 1);
        QVERIFY(map.generated);
        QCOMPARE(map.regionCount, 2);
        QCOMPARE(map.regions[0].name, QStringLiteral("North"));
        QCOMPARE(map.regions[0].glowImage, QStringLiteral("NGlow.pcx"));
        QCOMPARE(map.regions[0].borderImage, QStringLiteral("NBorder.pcx"));
        QCOMPARE(map.regions[0].fillImage, QStringLiteral("NFill.pcx"));
        QCOMPARE(map.regions[0].imageNames, QVector<QStringList>(3));
        QCOMPARE(map.regions[1].x, -30);
        QCOMPARE(map.regions[1].name, QStringLiteral("South"));
        QCOMPARE(map.regions[1].glowImage, QStringLiteral("SGlow.pcx"));
        QCOMPARE(map.regions[1].borderImage, QStringLiteral("SBorder.pcx"));
        QCOMPARE(map.regions[1].fillImage, QStringLiteral("SFill.pcx"));
    }

    void commentsAndEmptyLinesAreNoLinesOfALayout()
    {
        QList<QByteArray> layout = {"# a comment", ""};
        for (const QByteArray &line : generatedLayout)
            layout << line << ""
                   << "#"
                   << "#1 2";
        const CampaignInfo map = readLayout(layout);
        QCOMPARE(map.regionCount, 2);
        QCOMPARE(map.regions[1].fillImage, QStringLiteral("SFill.pcx"));
    }

    void layoutOfAnotherTypeReadsOneName_data()
    {
        QTest::addColumn<QByteArray>("type");
        QTest::addColumn<int>("expected");
        QTest::newRow("2") << QByteArray("2") << 2;
        QTest::newRow("negative") << QByteArray("-1") << -1;
        QTest::newRow("large") << QByteArray("2147483647") << int(INT_MAX);
    }
    void layoutOfAnotherTypeReadsOneName()
    {
        QFETCH(QByteArray, type);
        QFETCH(int, expected);
        QList<QByteArray> layout = generatedLayout;
        layout[0] = type;
        const CampaignInfo map = readLayout(layout);
        QCOMPARE(map.layoutType, expected);
        QVERIFY(!map.generated);
        QCOMPARE(map.regionCount, 2);
        QCOMPARE(map.regions[0].name, QStringLiteral("North"));
        QCOMPARE(map.regions[0].imageNames, QVector<QStringList>(3));
        QCOMPARE(map.regions[0].glowImage, QString());
        QCOMPARE(map.regions[1].x, -30);
        QCOMPARE(map.regions[1].name, QString());
        QVERIFY(map.regions[1].imageNames.isEmpty());
    }

    void linesBehindTheLastRegionAreIgnored()
    {
        QList<QByteArray> layout = generatedLayout;
        layout << "West"
               << "WGlow.pcx"
               << "WBorder.pcx"
               << "WFill.pcx"
               << "5 5 5";
        const CampaignInfo map = readLayout(layout);
        QCOMPARE(map.regions.size(), 2);
        QCOMPARE(map.regions[0].glowImage, QStringLiteral("NGlow.pcx"));
        QCOMPARE(map.regions[1].fillImage, QStringLiteral("SFill.pcx"));
    }

    void layoutCutAtAnyLineKeepsWhatItReached()
    {
        for (int count = 0; count <= generatedLayout.size(); ++count) {
            const CampaignInfo map = readLayout(generatedLayout.mid(0, count));
            QCOMPARE(map.name, QStringLiteral("Name of campmap3"));
            QCOMPARE(map.layoutType, count >= 1 ? 1 : 0);
            QCOMPARE(map.regionCount, qBound(0, count - 2, 2));
            QCOMPARE(map.regions.size(), map.regionCount);
            if (map.regionCount < 2)
                continue;
            QCOMPARE(map.regions[1].x, count >= 4 ? -30 : 0);
            QCOMPARE(map.regions[0].name, count >= 5 ? QString("North") : QString());
            QCOMPARE(map.regions[0].glowImage, count >= 6 ? QString("NGlow.pcx") : QString());
            QCOMPARE(map.regions[0].fillImage, count >= 8 ? QString("NFill.pcx") : QString());
            QCOMPARE(map.regions[1].name, count >= 9 ? QString("South") : QString());
            QCOMPARE(map.regions[1].fillImage, count >= 12 ? QString("SFill.pcx") : QString());
        }
    }

    void regionCountsThatCantBeAreCutToTheLinesThereAre_data()
    {
        QTest::addColumn<QByteArray>("count");
        QTest::addColumn<int>("expected");
        QTest::newRow("none") << QByteArray("0") << 0;
        QTest::newRow("negative") << QByteArray("-5") << 0;
        QTest::newRow("lowest") << QByteArray("-2147483648") << 0;
        QTest::newRow("no number") << QByteArray("many") << 0;
        QTest::newRow("out of int") << QByteArray("4294967297") << 0;
        QTest::newRow("as many as lines") << QByteArray("3") << 3;
        QTest::newRow("one more") << QByteArray("4") << 3;
        QTest::newRow("absurd") << QByteArray("2147483647") << 3;
    }
    void regionCountsThatCantBeAreCutToTheLinesThereAre()
    {
        QFETCH(QByteArray, count);
        QFETCH(int, expected);
        const CampaignInfo map = readLayout({"0", count, "1 2", "3 4", "5 6"});
        QCOMPARE(map.name, QStringLiteral("Name of campmap3"));
        QCOMPARE(map.regionCount, expected);
        QCOMPARE(map.regions.size(), expected);
        if (expected == 3)
            QCOMPARE(map.regions[2].y, 6);
    }

    void badNumbersReadAsZero()
    {
        const CampaignInfo map = readLayout({"0x1", "1", "0x10 12a", "Name", "a", "b", "c"});
        QCOMPARE(map.layoutType, 0);
        QCOMPARE(map.regionCount, 1);
        QCOMPARE(map.regions[0].x, 0);
        QCOMPARE(map.regions[0].y, 0);
        QCOMPARE(map.regions[0].imageNames, (QVector<QStringList>{{"a"}, {"b"}, {"c"}}));
    }

    void malformedPositionEndsTheReading_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::newRow("one field") << QByteArray("10");
        QTest::newRow("three fields") << QByteArray("10 20 30");
        QTest::newRow("two spaces") << QByteArray("10  20");
        QTest::newRow("space behind") << QByteArray("10 20 ");
        QTest::newRow("tab") << QByteArray("10\t20");
    }
    void malformedPositionEndsTheReading()
    {
        QFETCH(QByteArray, line);
        const GameFolder game;
        useTable({{"cmpbackground", {{8, "before"}}},
                  campaignMap("campmap1", generatedLayout),
                  campaignMap("campmap2", {"0", "2", "1 2", line, "Name", "a", "b", "c"}),
                  campaignMap("campmap3", generatedLayout),
                  {"music", {{8, "Tune"}}},
                  {"video", {{4, "Film"}}},
                  {"cmpmoviepic", {{8, "Still"}}}});
        auto texts = emptyTexts();
        texts["CmpEditr.txt"] = texts["CmpEdCmd.txt"] = "h\r\nh\r\ntext";
        initCampaigns(game, texts);
        QCOMPARE(int(EditorData::campaignInfo.size()), 2);
        QCOMPARE(EditorData::campaignInfo[1].regions[1].fillImage, QStringLiteral("SFill.pcx"));
        QCOMPARE(EditorData::campaignInfo[2].name, QStringLiteral("Name of campmap2"));
        QCOMPARE(EditorData::campaignInfo[2].regionCount, 2);
        QCOMPARE(EditorData::campaignInfo[2].regions[0].y, 2);
        QVERIFY(EditorData::backgrounds.empty());
        // What was read before the maps stays.
        QCOMPARE(EditorData::musicNames, (Names{{49, "Tune"}}));
        QCOMPARE(EditorData::videoNames, (Names{{0, "Film"}}));
        QCOMPARE(EditorData::movieImages, (Names{{0, "Still"}}));
        QCOMPARE(EditorData::editorText, (Rows{{0, {"text"}}}));
        QCOMPARE(EditorData::editorCmdText, (Rows{{0, {"text"}}}));
    }

    void repeatedMapRewritesTheSameEntry()
    {
        const GameFolder game;
        useTable({campaignMap("campmap5", generatedLayout),
                  {"campmap5", {{0, "Again"}, {8, "2\r\n1\r\n7 8\r\n"}}}});
        initCampaigns(game);
        QCOMPARE(int(EditorData::campaignInfo.size()), 1);
        const CampaignInfo map = EditorData::campaignInfo[5];
        QCOMPARE(map.name, QStringLiteral("Again"));
        QCOMPARE(map.backgroundName, QString());
        QCOMPARE(map.layoutType, 2);
        QVERIFY(!map.generated);
        QCOMPARE(map.regionCount, 1);
        QCOMPARE(map.regions.size(), 1);
        QCOMPARE(map.regions[0].x, 7);
        QCOMPARE(map.regions[0].name, QStringLiteral("North")); // not reached again
    }

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
