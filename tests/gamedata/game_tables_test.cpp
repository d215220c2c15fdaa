// The tables of creatures, artifacts, heroes, skills, spells and resources.
#include "gamedata/limits.h"
#include "tests/gamedata/game_files.h"

#include <QTest>

using game_files::GameFolder;
using game_files::lines;
using game_files::numbered;
using game_files::row;
using game_files::useTable;

using Names = std::map<int, QString>;

namespace {

// Two header lines that have columns enough to be taken for rows.
const QList<QByteArray> header = {row("Title", 12), row("Name", 12)};

void readCreatures(const GameFolder &game, const QList<QByteArray> &rows)
{
    game.provide({{"CRTRAITS.TXT", lines(header + rows)}});
    EditorData::initCreatures(game_files::codec());
}

void readArtifacts(const GameFolder &game, const QByteArray &text)
{
    game.provide({{"artraits.txt", text}});
    EditorData::initArtifacts(game_files::codec());
}

} // namespace

class GameTablesTest : public QObject
{
    Q_OBJECT

private slots:
    void creatureRowsNeedTwelveColumnsToCount()
    {
        const GameFolder game;
        readCreatures(game, {row("\x80", 12), row("Short", 11), "", "\t\t\t\t\t\t\t\t\t\t\t\t",
                             row("Mole", 13), "Lone", row("Wolf", 40)});
        QCOMPARE(EditorData::creatures, (Names{{0, u8"\u20AC"}, {1, "Mole"}, {2, "Wolf"}}));
        QCOMPARE(EditorData::nCreatures, 150U);
    }

    void creatureOfTheLastLineCounts()
    {
        const GameFolder game;
        game.provide({{"CRTRAITS.TXT", header.join("\r\n") + "\r\n" + row("Goat", 12)}});
        EditorData::initCreatures(game_files::codec());
        QCOMPARE(EditorData::creatures, (Names{{0, "Goat"}}));
    }

    void leftOutCreaturesHaveNoName()
    {
        const GameFolder game;
        readCreatures(game, numbered("c", 160, 12));
        const QList<int> leftOut = {122, 124, 126, 128, 145, 146, 147, 148, 149, 150, 152};
        for (int number = 0; number < 160; ++number) {
            const QString expected =
                leftOut.contains(number) ? QString() : QStringLiteral("c%1").arg(number);
            QCOMPARE(nameOf(EditorData::creatures, number), expected);
        }
        QCOMPARE(int(EditorData::creatures.size()), 149);
    }

    void creatureEntriesAddAndOverride()
    {
        const GameFolder game;
        useTable({{"monst1", {{3, "Ram"}}},
                  {"monst151", {{3, "\x80"}, {4, "Imps"}}},
                  {"monster3", {{3, "not one"}}},
                  {"monst180", {{3, "Old"}}},
                  {"monst180", {{3, "New"}}},
                  {"monst181", {{0, "too few strings"}}}});
        readCreatures(game, {row("Goat", 12), row("Mole", 12)});
        QCOMPARE(EditorData::creatures,
                 (Names{{0, "Goat"}, {1, "Ram"}, {151, u8"\u20AC"}, {180, "New"}, {181, ""}}));
        QCOMPARE(EditorData::nCreatures, 155U);
    }

    void leftOutCreatureEntriesCountWithoutAName_data()
    {
        QTest::addColumn<int>("number");
        for (const int number : {122, 124, 126, 128, 145, 146, 147, 148, 149, 150, 152})
            QTest::addRow("%d", number) << number;
    }
    void leftOutCreatureEntriesCountWithoutAName()
    {
        QFETCH(int, number);
        const GameFolder game;
        useTable({{"monst" + QByteArray::number(number), {{3, "Hidden"}}}});
        readCreatures(game, {row("Goat", 12)});
        QCOMPARE(EditorData::creatures, (Names{{0, "Goat"}}));
        QCOMPARE(EditorData::nCreatures, 151U);
    }

    void creatureEntriesWithWildNumbersAreSafe()
    {
        const GameFolder game;
        useTable({{"monst", {{3, "no number"}}},
                  {"monst60000", {{3, "Far"}}},
                  {"monst65535", {{3, "Farthest"}}},
                  {"monst65536", {{3, "too far"}}},
                  {"monst2147483647", {{3, "much too far"}}},
                  {"monst99999999999999", {{3, "out of int"}}}});
        readCreatures(game, {});
        QCOMPARE(EditorData::creatures, (Names{{60000, "Far"}, {65535, "Farthest"}}));
        QCOMPARE(EditorData::nCreatures, 156U);
    }

    void creatureArrayHasAnEnd()
    {
        QCOMPARE(limits::tableId, 65535);
        for (const unsigned more : {0U, 1U}) {
            const GameFolder game;
            useTable(std::vector<game_files::TableEntry>(65386 + more, {"monst1", {}}));
            readCreatures(game, {});
            QCOMPARE(EditorData::nCreatures, 65536U);
        }
        const GameFolder game;
        useTable(std::vector<game_files::TableEntry>(65385, {"monst1", {}}));
        readCreatures(game, {});
        QCOMPARE(EditorData::nCreatures, 65535U);
    }

    void creatureCountIsRowsAndEntries()
    {
        const GameFolder game;
        useTable({{"monst150", {}}, {"art1", {}}, {"monst", {}}});
        QStringList list = {QString(20, '\t'),       "a" + QString(11, '\t'),
                            "b" + QString(11, '\t'), "c" + QString(10, '\t'),
                            QString(11, '\t'),       "d" + QString(20, '\t')};
        QCOMPARE(getCreatureCount(list), 4U); // b, d and the two entries
        QCOMPARE(list.size(), 4);
        QStringList none;
        QCOMPARE(getCreatureCount(none), 2U);
        game_files::forgetTables();
        QCOMPARE(getCreatureCount(none), 0U);
    }

    void creaturesAreListedByTownAndLevel()
    {
        const GameFolder game;
        readCreatures(game, {});
        std::vector<unsigned> expected;
        for (unsigned number = 0; number <= 101; ++number)
            expected.push_back(number);
        for (const unsigned number : std::initializer_list<unsigned>{
                 104, 105, 106, 107, 102, 103, 108, 109, 110, 111, 118, 119, 112, 127, 115,
                 123, 114, 129, 113, 125, 120, 121, 130, 131, 153, 154, 155, 156, 157, 158,
                 151, 159, 160, 161, 162, 163, 164, 165, 166, 138, 171, 172, 173, 174, 175,
                 176, 177, 178, 179, 180, 181, 182, 183, 184, 185, 139, 140, 143, 169, 141,
                 142, 137, 167, 170, 116, 144, 168, 117, 136, 132, 133, 134, 135})
            expected.push_back(number);
        QCOMPARE(EditorData::creature_ordering, expected);
    }

    void creaturesThatDontCrossOver()
    {
        const QList<unsigned> bad = {122, 124, 126, 128, 145, 146, 147, 148, 149};
        for (unsigned number = 0; number < 300; ++number)
            QCOMPARE(monsterIsGoodForCrossoverList(number), !bad.contains(number));
        QVERIFY(monsterIsGoodForCrossoverList(150));
        QVERIFY(monsterIsGoodForCrossoverList(152));
        QVERIFY(monsterIsGoodForCrossoverList(0xFFFFFFFFU));
    }

    void artifactRowsLoseTwoAtEachEnd()
    {
        const GameFolder game;
        // The piece behind the last line end is the second of the two at the end.
        readArtifacts(game, lines({row("Title", 12), row("Name", 12), row("\x80", 12),
                                   row("Short", 11), "  ", row("Ring", 13), row("Last", 12)}));
        QCOMPARE(EditorData::artifacts, (Names{{0, u8"\u20AC"}, {1, "Ring"}}));
        QCOMPARE(EditorData::nArtifacts, 147U);
    }

    void artifactRowsLoseTwoAtEachEndWithoutALineEnd()
    {
        const GameFolder game;
        readArtifacts(game, header.join("\r\n") + "\r\n" + row("Cup", 12) + "\r\n" +
                                row("Next", 12) + "\r\n" + row("Last", 12));
        QCOMPARE(EditorData::artifacts, (Names{{0, "Cup"}}));
    }

    void artifactTableTooShortIsEmpty_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("nothing") << QByteArray();
        QTest::newRow("one line") << row("Cup", 12);
        QTest::newRow("three lines") << lines({row("a", 12), row("b", 12)}) + row("c", 12);
        QTest::newRow("bare line feeds") << lines(numbered("a", 9, 12)).replace("\r\n", "\n");
    }
    void artifactTableTooShortIsEmpty()
    {
        QFETCH(QByteArray, text);
        const GameFolder game;
        readArtifacts(game, text);
        QVERIFY(EditorData::artifacts.empty());
        QCOMPARE(EditorData::nArtifacts, 147U);
    }

    void lastArtifactEntryDecidesTheCount_data()
    {
        QTest::addColumn<QList<QByteArray>>("entries");
        QTest::addColumn<unsigned>("count");
        using List = QList<QByteArray>;
        QTest::newRow("none") << List{} << 147U;
        QTest::newRow("rising") << List{"art150", "art170"} << 171U;
        QTest::newRow("low one last") << List{"art170", "art5"} << 6U;
        QTest::newRow("zero last") << List{"art170", "art0"} << 1U;
        QTest::newRow("highest that counts") << List{"art65535"} << 65536U;
        QTest::newRow("too high") << List{"art160", "art65536"} << 161U;
        QTest::newRow("absurd") << List{"art160", "art2147483647"} << 161U;
        QTest::newRow("no number") << List{"art160", "art"} << 161U;
        QTest::newRow("out of int") << List{"art99999999999"} << 147U;
        QTest::newRow("other kinds behind it") << List{"art160", "arts9", "Art9", "hero9"} << 161U;
    }
    void lastArtifactEntryDecidesTheCount()
    {
        QFETCH(QList<QByteArray>, entries);
        const GameFolder game;
        std::vector<game_files::TableEntry> table;
        for (const QByteArray &name : entries)
            table.push_back({name, {{1, "Name"}}});
        useTable(table);
        readArtifacts(game, QByteArray());
        QTEST(EditorData::nArtifacts, "count");
    }

    void artifactEntriesAddAndOverride()
    {
        const GameFolder game;
        useTable({{"art1", {{0, "a"}, {1, "Crown"}, {2, "c"}}},
                  {"art160", {{1, "\x80 Coin"}}},
                  {"art65536", {{1, "too far"}}},
                  {"art", {{1, "no number"}}},
                  {"art161", {{0, "too few strings"}}}});
        readArtifacts(game, lines(header + numbered("a", 3, 12)));
        QCOMPARE(EditorData::artifacts,
                 (Names{{0, "a0"}, {1, "Crown"}, {160, u8"\u20AC Coin"}, {161, ""}}));
    }

    void heroesAreReadAndOverridden()
    {
        const GameFolder game;
        useTable({{"hero1", {{6, "\x80"}}},
                  {"hero200", {{5, "five"}, {6, "Wim"}, {7, "seven"}}},
                  {"hero", {{6, "no number"}}},
                  {"hero65536", {{6, "too far"}}},
                  {"heroes2", {{6, "another kind"}}}});
        game.provide({{"HOTRAITS.TXT",
                       "Title\r\nHead\r\nOrla\tx\ty\r\n\r\nBeto\r\n\tnameless\r\n\x80\r\nLast"}});
        EditorData::initHeroes(game_files::codec());
        QCOMPARE(EditorData::heroes,
                 (Names{{0, "Orla"}, {1, u8"\u20AC"}, {2, ""}, {3, u8"\u20AC"}, {200, "Wim"}}));
    }

    void secondarySkillsAreReadAndOverridden()
    {
        const GameFolder game;
        useTable({{"secskill0", {{1, "Sailing"}}},
                  {"secskill28", {{0, "zero"}, {1, "\x80"}, {2, "two"}}},
                  {"secskill", {{1, "no number"}}},
                  {"secskill65536", {{1, "too far"}}}});
        game.provide({{"SSTRAITS.txt", "Title\r\nHead\r\nRiding\ta\r\n\t \t\r\n\x80\r\nLast"}});
        EditorData::readSkills(game_files::codec());
        QCOMPARE(EditorData::secondarySkills,
                 (Names{{0, "Sailing"}, {1, u8"\u20AC"}, {28, u8"\u20AC"}}));
    }

    void spellsSkipHeadingsAndBlankLines()
    {
        const GameFolder game;
        useTable({{"spell0", {{0, "no such kind"}, {1, "no such kind"}}}});
        game.provide({{"SPTRAITS.txt", lines({"h", "h", "h", "h", "Sun\tx", "\x80", "", " \t",
                                              "Combat Spells\tmore", "Bolt", "combat spells",
                                              " Combat Spells", "Combat Spells"}) +
                                           "last"}});
        EditorData::readSpells(game_files::codec());
        QCOMPARE(EditorData::spells, (Names{{0, "Sun"},
                                            {1, u8"\u20AC"},
                                            {2, "Bolt"},
                                            {3, "combat spells"},
                                            {4, " Combat Spells"}}));
    }

    void spellTableHasAGapAndAnEnd()
    {
        const GameFolder game;
        game.provide(
            {{"SPTRAITS.txt", lines(QList<QByteArray>{"h", "h", "h", "h"} + numbered("s", 75))}});
        EditorData::readSpells(game_files::codec());
        QCOMPARE(int(EditorData::spells.size()), 69);
        QVERIFY(!EditorData::spells.count(57));
        for (const int number : {0, 1, 56, 58, 69})
            QCOMPARE(nameOf(EditorData::spells, number), QStringLiteral("s%1").arg(number));
        QVERIFY(!EditorData::spells.count(70));
    }

    void resourcesAreSevenWholeLines()
    {
        const GameFolder game;
        game.provide({{"RESTYPES.txt", "Clay\tx\r\n\r\n\x80\r\n\t\r\nOak\r\nFlax\r\nIce\r\n"
                                       "Ash\r\nPearl\r\nToo many\r\n"}});
        EditorData::initResourceInfo(game_files::codec());
        QCOMPARE(EditorData::resources, (Names{{0, "Clay\tx"},
                                               {1, u8"\u20AC"},
                                               {2, "Oak"},
                                               {3, "Flax"},
                                               {4, "Ice"},
                                               {5, "Ash"},
                                               {6, "Pearl"}}));
    }

    void startFillsAllOfThem()
    {
        const GameFolder game;
        useTable({{"art150", {{1, "Crown"}}}, {"monst151", {{3, "Imp"}}}});
        auto texts = game_files::smallTexts();
        texts["CRTRAITS.TXT"] = lines(header + numbered("c", 2, 12));
        texts["artraits.txt"] = lines(header + numbered("a", 2, 12));
        texts["HOTRAITS.TXT"] = lines({"h", "h", "Orla"});
        texts["SSTRAITS.txt"] = lines({"h", "h", "Riding"});
        texts["SPTRAITS.txt"] = lines({"h", "h", "h", "h", "Sun"});
        texts["RESTYPES.txt"] = "Clay";
        game.open(texts);
        QCOMPARE(EditorData::creatures, (Names{{0, "c0"}, {1, "c1"}, {151, "Imp"}}));
        QCOMPARE(EditorData::nCreatures, 151U);
        QCOMPARE(EditorData::artifacts, (Names{{0, "a0"}, {150, "Crown"}}));
        QCOMPARE(EditorData::nArtifacts, 151U);
        QCOMPARE(EditorData::heroes, (Names{{0, "Orla"}}));
        QCOMPARE(EditorData::secondarySkills, (Names{{0, "Riding"}}));
        QCOMPARE(EditorData::spells, (Names{{0, "Sun"}}));
        QCOMPARE(EditorData::resources, (Names{{0, "Clay"}}));
    }
};

QTEST_GUILESS_MAIN(GameTablesTest)
#include "game_tables_test.moc"
