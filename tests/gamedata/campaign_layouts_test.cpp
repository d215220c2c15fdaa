// The layout of a campaign map in the table file: well-formed, cut, and with numbers that can't be.
#include "tests/gamedata/campaign_layouts.h"

using Names = std::map<int, QString>;
using Rows = std::map<int, QStringList>;

class CampaignLayoutsTest : public QObject
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
};

QTEST_GUILESS_MAIN(CampaignLayoutsTest)
#include "campaign_layouts_test.moc"
