// The buildings of the towns, from the text tables and the table file.
#include "tests/gamedata/game_files.h"

#include <QTest>

using game_files::GameFolder;
using game_files::numbered;
using game_files::useTable;

using Names = std::map<int, QString>;

namespace {

// Neutral rows n0 to n19, special rows s0 to s89, dwellings d0 to d149.
QMap<QByteArray, QByteArray> numberedTexts()
{
    return {{"BldgNeut.TXT", game_files::lines(numbered("n", 20, 2))},
            {"BldgSpec.txt", game_files::lines(numbered("s", 90, 3))},
            {"Dwelling.txt", game_files::lines(numbered("d", 150, 3))}};
}

QByteArray list(const QByteArray &name, int count)
{
    return game_files::lines(numbered(name, count));
}

void readBuildings(const GameFolder &game, const QMap<QByteArray, QByteArray> &texts)
{
    game.provide(texts);
    EditorData::readBuildings(game_files::codec());
}

// "17=s6 18=" as a table.
Names parsed(const QString &text)
{
    Names names;
    const QStringList pairs = text.split(QLatin1Char(' '));
    for (const QString &pair : pairs)
        names[pair.section(QLatin1Char('='), 0, 0).toInt()] = pair.section(QLatin1Char('='), 1, 1);
    return names;
}

const QString everywhere =
    QStringLiteral("0=n11 1=n12 2=n13 3=n7 4=n8 6=n5 7=n15 8=n14 9=s72 11=n0 12=n1 13=n2 ");

} // namespace

class BuildingTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void townsHaveTheirBuildings_data()
    {
        QTest::addColumn<int>("town");
        QTest::addColumn<QString>("expected");
        QTest::newRow("any town") << -1
                                  << everywhere + "10=s73 14=n3 15=n4 16=n6 17=s80 22=d132 23=d139 "
                                                  "24=s74 27=s75 30=s77 33=s78 36=s79";
        QTest::newRow("0") << 0
                           << everywhere + "14=n3 16=n6 17=s6 18=s0 19=s5 20=s4 30=s1 "
                                           "22=d0 25=d1 28=d2 31=d3 34=d4 37=d5 39=d6 "
                                           "23=d7 26=d8 29=d9 32=d10 35=d11 38=d12 40=d13";
        QTest::newRow("1") << 1
                           << everywhere + "14=n3 15=n4 17=s15 18=s8 19=s11 20=s12 27=s9 36=s13 "
                                           "22=d14 25=d15 28=d16 31=d17 34=d18 37=d19 39=d20 "
                                           "23=d21 26=d22 29=d23 32=d24 35=d25 38=d26 40=d27";
        QTest::newRow("2") << 2
                           << everywhere + "10=s73 14=n3 15=n4 17=s23 18=s21 19=s22 20=s20 27=s18 "
                                           "22=d28 25=d29 28=d30 31=d31 34=d32 37=d33 39=d34 "
                                           "23=d35 26=d36 29=d37 32=d38 35=d39 38=d40 40=d41";
        QTest::newRow("3") << 3
                           << everywhere + "14=n3 15=n4 17=s32 18=s27 19=s28 20=s29 30=s30 "
                                           "22=d42 25=d43 28=d44 31=d45 34=d46 37=d47 39=d48 "
                                           "23=d49 26=d50 29=d51 32=d52 35=d53 38=d54 40=d55";
        QTest::newRow("4") << 4
                           << everywhere + "14=n3 15=n4 16=n6 17=s40 18=s34 19=s38 20=s39 24=s35 "
                                           "22=d56 25=d57 28=d58 31=d59 34=d60 37=d61 39=d62 "
                                           "23=d63 26=d64 29=d65 32=d66 35=d67 38=d68 40=d69";
        QTest::newRow("5") << 5
                           << everywhere + "10=s73 14=n3 15=n4 17=s48 18=s45 19=s46 20=s47 24=s43 "
                                           "22=d70 25=d71 28=d72 31=d73 34=d74 37=d75 39=d76 "
                                           "23=d77 26=d78 29=d79 32=d80 35=d81 38=d82 40=d83";
        QTest::newRow("6") << 6
                           << everywhere + "17=s56 18=s50 19=s53 20=s54 21=s55 24=s51 "
                                           "22=d84 25=d85 28=d86 31=d87 34=d88 37=d89 39=d90 "
                                           "23=d91 26=d92 29=d93 32=d94 35=d95 38=d96 40=d97";
        QTest::newRow("7") << 7
                           << everywhere +
                                  "16=n6 17=s64 18=s58 19=s62 20=s63 24=s59 "
                                  "22=d98 25=d99 28=d100 31=d101 34=d102 37=d103 39=d104 "
                                  "23=d105 26=d106 29=d107 32=d108 35=d109 38=d110 40=d111";
        QTest::newRow("8") << 8
                           << everywhere +
                                  "10=s73 14=n3 15=n4 16=n6 17=s71 18=s70 19=horde "
                                  "22=d112 25=d113 28=d114 31=d115 34=d116 37=d117 39=d118 "
                                  "23=d119 26=d120 29=d121 32=d122 35=d123 38=d124 40=d125";
        QTest::newRow("9") << 9
                           << everywhere + "14=n3 16=n6 17=p9 18=p5 19=p6 20=p4 27=p1 33=p7 "
                                           "22=q0 25=q1 28=q2 31=q3 34=q4 37=q5 39=q6 "
                                           "23=q7 26=q8 29=q9 32=q10 35=q11 38=q12 40=q13";
        QTest::newRow("10") << 10
                            << everywhere +
                                   "10=s73 14=n3 15=n4 16=u3 17=u9 18=u4 19=u5 20=u6 30=u1 "
                                   "22=v0 25=v1 28=v2 31=v3 34=v4 37=v5 39=v6 "
                                   "23=v7 26=v8 29=v9 32=v10 35=v11 38=v12 40=v13";
    }
    void townsHaveTheirBuildings()
    {
        QFETCH(int, town);
        QFETCH(QString, expected);
        const GameFolder game;
        useTable({{"casspcost9", {{7, list("p", 10)}}},
                  {"casdwcost9", {{7, list("q", 14)}}},
                  {"casspcost10", {{7, list("u", 10)}}},
                  {"casdwcost10", {{7, list("v", 14)}}},
                  {"firebrdhorde", {{4, "four"}, {5, "horde"}, {6, "six"}}}});
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[town], parsed(expected));
        QCOMPARE(int(EditorData::buildings.size()), 12);
        QCOMPARE(EditorData::buildings.begin()->first, -1);
        QCOMPARE(EditorData::buildings.rbegin()->first, 10);
    }

    void townsWithoutAListHaveEmptyNames()
    {
        const GameFolder game;
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[9],
                 parsed(everywhere + "14=n3 16=n6 17= 18= 19= 20= 27= 33= "
                                     "22= 25= 28= 31= 34= 37= 39= 23= 26= 29= 32= 35= 38= 40="));
        QCOMPARE(EditorData::buildings[10],
                 parsed(everywhere + "10=s73 14=n3 15=n4 16= 17= 18= 19= 20= 30= "
                                     "22= 25= 28= 31= 34= 37= 39= 23= 26= 29= 32= 35= 38= 40="));
        QCOMPARE(EditorData::buildings[8][19], QString());
    }

    void emptyTextTablesGiveEmptyNames()
    {
        const GameFolder game;
        readBuildings(game, {{"BldgNeut.TXT", ""}, {"BldgSpec.txt", ""}, {"Dwelling.txt", ""}});
        QCOMPARE(EditorData::buildings[-1],
                 parsed(QStringLiteral("0= 1= 2= 3= 4= 6= 7= 8= 9= 10= 11= 12= 13= 14= 15= 16= "
                                       "17= 22= 23= 24= 27= 30= 33= 36=")));
        QCOMPARE(EditorData::buildings[6],
                 parsed(QStringLiteral("0= 1= 2= 3= 4= 6= 7= 8= 9= 11= 12= 13= 17= 18= 19= 20= "
                                       "21= 24= 22= 25= 28= 31= 34= 37= 39= 23= 26= 29= 32= 35= "
                                       "38= 40=")));
    }

    void listOfTheTableFileReplacesATownsDwellings()
    {
        const GameFolder game;
        useTable({{"casdwcost3", {{7, "\r\nHut\r\n\r\n\x80 Cave\r\n"}}},
                  {"casdwcost4", {{7, list("first", 14)}}},
                  {"casdwcost4", {{7, list("second", 14)}}},
                  {"casdwcost5", {}},
                  {"casdwcost", {{7, list("nobody's", 14)}}},
                  {"casdwcost99", {{7, list("nobody's", 14)}}}});
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[3][22], QStringLiteral("Hut"));
        QCOMPARE(EditorData::buildings[3][25], QString(u8"\u20AC Cave"));
        for (const int building : {28, 31, 34, 37, 39, 23, 26, 29, 32, 35, 38, 40}) {
            QCOMPARE(EditorData::buildings[3].count(building), size_t(1));
            QCOMPARE(EditorData::buildings[3][building], QString());
        }
        QCOMPARE(EditorData::buildings[4][22], QStringLiteral("second0"));
        QCOMPARE(EditorData::buildings[4][40], QStringLiteral("second13"));
        QCOMPARE(EditorData::buildings[5][22], QString());
        QCOMPARE(EditorData::buildings[2][22], QStringLiteral("d28"));
        QCOMPARE(EditorData::buildings[-1][22], QStringLiteral("d132"));
        QCOMPARE(int(EditorData::buildings.size()), 12);
    }

    void listOfTheTableFileReplacesATownsSpecials()
    {
        const GameFolder game;
        useTable({{"casspcost9", {{7, list("first", 10)}}},
                  {"casspcost9", {{6, "no"}, {7, "\r\nzero\r\n\r\n\x80 Mill\r\n"}, {8, "no"}}},
                  {"casspcost0", {{7, list("nobody's", 10)}}},
                  {"casspcost", {{7, list("nobody's", 10)}}}});
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[9][27], QString(u8"\u20AC Mill"));
        QCOMPARE(EditorData::buildings[9][20], QString());
        QCOMPARE(EditorData::buildings[0][17], QStringLiteral("s6"));
        QCOMPARE(EditorData::buildings[-1][17], QStringLiteral("s80"));
    }

    void hordeIsAppendedInTheOrderOfTheFile_data()
    {
        QTest::addColumn<int>("listLength");
        QTest::addColumn<bool>("listFirst");
        QTest::addColumn<QString>("expected");
        QTest::newRow("behind a list") << 1 << true << QStringLiteral("own0");
        QTest::newRow("behind an empty list") << 0 << true << QStringLiteral("horde");
        QTest::newRow("replaced by a list") << 1 << false << QStringLiteral("own0");
        QTest::newRow("replaced by an empty list") << 0 << false << QString();
    }
    void hordeIsAppendedInTheOrderOfTheFile()
    {
        QFETCH(int, listLength);
        QFETCH(bool, listFirst);
        const GameFolder game;
        const game_files::TableEntry horde{"firebrdhorde1", {{5, "horde"}}};
        const game_files::TableEntry own{"casspcost8", {{7, list("own", listLength)}}};
        useTable(listFirst ? std::vector<game_files::TableEntry>{own, horde}
                           : std::vector<game_files::TableEntry>{horde, own});
        readBuildings(game, numberedTexts());
        QTEST(EditorData::buildings[8][19], "expected");
    }

    void firstOfTwoHordesIsTheTowns()
    {
        const GameFolder game;
        useTable({{"firebrdhorde", {{5, "\x80 one"}}}, {"firebrdhorde", {{5, "two"}}}});
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[8][19], QString(u8"\u20AC one"));
    }

    void neutralRowsHaveTwoColumnsAndLoseTheLastLine()
    {
        const GameFolder game;
        auto texts = numberedTexts();
        texts["BldgNeut.TXT"] = "\x80\tx\r\nno row\r\n\tb\r\n\t\r\nc\tx\ty\r\n\r\nd\tx\r\nlast\tx";
        readBuildings(game, texts);
        QCOMPARE(EditorData::buildings[-1][11], QString(u8"\u20AC"));
        QCOMPARE(EditorData::buildings[-1][12], QString()); // "\tb"
        QCOMPARE(EditorData::buildings[-1][13], QStringLiteral("d"));
        QCOMPARE(EditorData::buildings[-1][14], QString());
    }

    void specialAndDwellingRowsSkipBlankLinesAlone()
    {
        const GameFolder game;
        auto texts = numberedTexts();
        texts["BldgSpec.txt"] = "s0\tx\r\n \t\r\ns1\r\n\r\n\tunnamed\r\n"
                                "s3\r\n\x80";
        texts["Dwelling.txt"] = "\r\nd0\tx\r\n\t\r\n\x80\r\nd2";
        readBuildings(game, texts);
        QCOMPARE(EditorData::buildings[0][18], QStringLiteral("s0"));
        QCOMPARE(EditorData::buildings[0][30], QStringLiteral("s1"));
        QCOMPARE(EditorData::buildings[0][20], QString(u8"\u20AC"));
        QCOMPARE(EditorData::buildings[0][22], QStringLiteral("d0"));
        QCOMPARE(EditorData::buildings[0][25], QString(u8"\u20AC"));
        QCOMPARE(EditorData::buildings[0][28], QStringLiteral("d2"));
        QCOMPARE(EditorData::buildings[0][31], QString());
    }

    void dwellingRowsPastTheTownsStayWithoutATown()
    {
        const GameFolder game;
        readBuildings(game, numberedTexts());
        QCOMPARE(EditorData::buildings[8][40], QStringLiteral("d125"));
        QCOMPARE(EditorData::buildings[9][22], QString()); // not d126
    }

    void startFillsThem()
    {
        const GameFolder game;
        auto texts = game_files::smallTexts();
        const auto more = numberedTexts();
        for (auto text = more.begin(); text != more.end(); ++text)
            texts[text.key()] = text.value();
        game.open(texts);
        QCOMPARE(EditorData::buildings[0][17], QStringLiteral("s6"));
    }

    void guildLevels_data()
    {
        QTest::addColumn<int>("town");
        QTest::addColumn<int>("levels");
        const QList<int> levels = {4, 5, 5, 5, 5, 5, 3, 3, 5, 4, 5};
        for (int town = 0; town < levels.size(); ++town)
            QTest::addRow("%d", town) << town << levels[town];
        QTest::newRow("any town") << -1 << 5;
        QTest::newRow("no town") << 1000 << 5;
    }
    void guildLevels()
    {
        QFETCH(int, town);
        QTEST(GetMaxGuildLevel(town), "levels");
    }

    void buildingsAreValidForTheirTowns_data()
    {
        QTest::addColumn<unsigned>("building");
        QTest::addColumn<QString>("expected"); // a digit a town, 0 to 10
        QTest::addColumn<bool>("elsewhere");
        for (const unsigned building :
             {0U,  1U,  2U,  3U,  4U,  5U,  6U,  7U,    8U,         9U,  11U,
              12U, 13U, 17U, 22U, 23U, 25U, 26U, 28U,   29U,        31U, 32U,
              34U, 35U, 37U, 38U, 39U, 40U, 41U, 1000U, 0xFFFFFFFFU})
            QTest::addRow("%u", building) << building << QStringLiteral("11111111111") << true;
        for (const unsigned building : {16U, 18U, 19U, 20U, 21U, 24U, 27U, 30U, 33U, 36U})
            QTest::addRow("%u", building) << building << QStringLiteral("00000000000") << false;
        QTest::newRow("10") << 10U << QStringLiteral("00100100101") << false;
        QTest::newRow("14") << 14U << QStringLiteral("11111100111") << true;
        QTest::newRow("15") << 15U << QStringLiteral("01111100101") << true;
    }
    void buildingsAreValidForTheirTowns()
    {
        QFETCH(unsigned, building);
        QFETCH(QString, expected);
        QFETCH(bool, elsewhere);
        for (unsigned town = 0; town <= 10; ++town)
            QCOMPARE(BuildingIsValidForTown(building, town), expected[int(town)] == '1');
        for (const unsigned town : {11U, 31U, 32U, 34U, 255U, 0x80000000U, 0xFFFFFFFFU})
            QCOMPARE(BuildingIsValidForTown(building, town), elsewhere);
    }

    void validityIsTraced()
    {
        QTest::ignoreMessage(QtDebugMsg, "IsValid:  14 7");
        QVERIFY(!BuildingIsValidForTown(14, 7));
    }
};

QTEST_GUILESS_MAIN(BuildingTablesTest)
#include "building_tables_test.moc"
