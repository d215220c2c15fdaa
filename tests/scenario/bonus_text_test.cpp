// What a bonus is called in the list.
#include "scenario/bonus_text.h"

#include "tests/scenario/bracket_translator.h"
#include "tests/support/bonus_rows.h"
#include "tests/support/report_recorder.h"

#include <QtTest>

Q_DECLARE_METATYPE(CmpStartingBonus)

namespace {

constexpr unsigned int noPlayer = 200;

} // namespace

class BonusTextTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsTheBonus_data();
    void tellsTheBonus();
    void namesTheBuildingAsTheTownHasIt_data();
    void namesTheBuildingAsTheTownHasIt();
    void withoutAMapNoTownHasTheBuilding();
    void unknownTypesEndTheProcess_data();
    void unknownTypesEndTheProcess();
    void marksInNamesStayAsTheyAre();
    void everyTextIsTranslatable_data();
    void everyTextIsTranslatable();

private:
    QString textOf(CmpStartingBonus bonus, unsigned int player = 1)
    {
        return getBonusStringFromRawData(&m_scenario, player, bonus);
    }

    ScenarioData m_scenario;
};

// Player 1 has the heroes 2 and 3 on the map, the latter by another name, and a town of type 2;
// player 4's town is a random one, player 5's of a type that has no buildings.
void BonusTextTest::init()
{
    fillNameTables();
    PlayerAttributes player = playerWithTown(2);
    player.heroInfo = {{2, ""}, {3, "Queen Dessa"}};
    m_scenario = {};
    m_scenario.mapHeader = mapWithPlayers(
        {{0, playerWithTown(0)}, {1, player}, {4, playerWithTown(255)}, {5, playerWithTown(200)}});
}

void BonusTextTest::tellsTheBonus_data()
{
    QTest::addColumn<CmpStartingBonus>("bonus");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *tag, const CmpStartingBonus &bonus, const char *text) {
        QTest::newRow(tag) << bonus << QString::fromUtf8(text);
    };
    row("spell", bonusWith(0, BonusSpell{2, 1}), "Give Ember spell to Corvane");
    row("creature", bonusWith(1, BonusCreature{3, 1, 9999}), "Give 9999 Marsh Owl to Queen Dessa");
    row("building", bonusWith(2, BonusBuilding{10}), "Build Harbour at Main Town");
    row("artifact", bonusWith(3, BonusArtifact{2, 300}), "Give Tin Horn to Corvane");
    row("scroll", bonusWith(4, BonusScroll{2, 2}), "Give Thorns Spell Scroll to Corvane");
    row("primary skill", bonusWith(5, BonusPrimarySkill{2, {0, 0, 3, 0}}),
        "Give +3 Power to Corvane");
    row("secondary skill", bonusWith(6, BonusSecondarySkill{2, 1, 2}),
        "Give Expert Sailing to Corvane");
    row("resource", bonusWith(7, BonusResource{6, 5000}), "Receive 5000 Gold");

    row("most powerful hero", bonusWith(0, BonusSpell{0xFFFD, 0}),
        "Give Gust spell to Most powerful hero");
    row("generated hero", bonusWith(3, BonusArtifact{0xFFFE, 4}),
        "Give Moss Ring to Generated hero (in town)");
    row("random hero", bonusWith(4, BonusScroll{0xFFFF, 0}),
        "Give Gust Spell Scroll to Random hero (in town)");
    row("hero who isn't on the map", bonusWith(6, BonusSecondarySkill{0, 0, 1}),
        "Give Basic Tracking to Aldra (in town)");

    row("all skills", bonusWith(5, BonusPrimarySkill{2, {1, 20, 99, 255}}),
        "Give +1 Attack, +20 Defence, +99 Power, +255 Lore to Corvane");
    row("first and last skill", bonusWith(5, BonusPrimarySkill{2, {7, 0, 0, 8}}),
        "Give +7 Attack, +8 Lore to Corvane");
    row("no skill", bonusWith(5, BonusPrimarySkill{2, {}}), "Give  to Corvane");

    row("common resources", bonusWith(7, BonusResource{0xFD, 1}), "Receive 1 Wood and Ore");
    row("rare resources", bonusWith(7, BonusResource{0xFE, 2}), "Receive 2 rare resources");
    row("nothing to receive", bonusWith(7, BonusResource{0, 0}), "Receive 0 Wood");
    row("something to lose", bonusWith(7, BonusResource{0, -2147483647 - 1}),
        "Receive -2147483648 Wood");
    row("most of it", bonusWith(7, BonusResource{6, 2147483647}), "Receive 2147483647 Gold");

    row("spell beyond the table", bonusWith(0, BonusSpell{2, 255}), "Give  spell to Corvane");
    row("hero beyond the table", bonusWith(0, BonusSpell{0xFFFC, 0}),
        "Give Gust spell to  (in town)");
    row("creature beyond the table", bonusWith(1, BonusCreature{2, 65535, 65535}),
        "Give 65535  to Corvane");
    row("building beyond the table", bonusWith(2, BonusBuilding{255}), "Build  at Main Town");
    row("artifact beyond the table", bonusWith(3, BonusArtifact{2, 65535}), "Give  to Corvane");
    row("scroll beyond the table", bonusWith(4, BonusScroll{2, 255}),
        "Give  Spell Scroll to Corvane");
    row("secondary skill beyond the table", bonusWith(6, BonusSecondarySkill{2, 255, 255}),
        "Give   to Corvane");
    row("resource beyond the table", bonusWith(7, BonusResource{255, 1}), "Receive 1 ");
    row("one below the combined resources", bonusWith(7, BonusResource{0xFC, 1}), "Receive 1 ");

    // A payload of another kind counts as all zeros.
    row("scroll in a spell", bonusWith(0, BonusScroll{2, 1}), "Give Gust spell to Aldra (in town)");
    row("spell in a scroll", bonusWith(4, BonusSpell{2, 1}),
        "Give Gust Spell Scroll to Aldra (in town)");
    row("spell in a creature", bonusWith(1, BonusSpell{2, 1}), "Give 0 Pikeman to Aldra (in town)");
    row("resource in a building", bonusWith(2, BonusResource{10, 10}), "Build  at Main Town");
    row("spell in an artifact", bonusWith(3, BonusSpell{2, 4}), "Give  to Aldra (in town)");
    row("spell in a primary skill", bonusWith(5, BonusSpell{2, 4}), "Give  to Aldra (in town)");
    row("spell in a secondary skill", bonusWith(6, BonusSpell{2, 1}),
        "Give None Tracking to Aldra (in town)");
    row("building in a resource", bonusWith(7, BonusBuilding{6}), "Receive 0 Wood");
    row("nothing in a resource", {7, {}}, "Receive 0 Wood");
}

void BonusTextTest::tellsTheBonus()
{
    QFETCH(CmpStartingBonus, bonus);
    QTEST(textOf(bonus), "text");
    QCOMPARE(EditorData::spells.size(), std::size_t(3)); // looking up adds nothing
    QCOMPARE(EditorData::buildings.size(), std::size_t(2));
    QCOMPARE(EditorData::buildings[2].size(), std::size_t(3));
}

void BonusTextTest::namesTheBuildingAsTheTownHasIt_data()
{
    QTest::addColumn<uint>("player");
    QTest::addColumn<QString>("text");
    QTest::newRow("town 0") << 0u << "Build Shipyard at Main Town";
    QTest::newRow("town 2") << 1u << "Build Harbour at Main Town";
    QTest::newRow("random town") << 4u << "Build  at Main Town";
    QTest::newRow("town beyond the table") << 5u << "Build  at Main Town";
    QTest::newRow("one past the players") << 8u << "Build  at Main Town";
    QTest::newRow("player of a damaged file") << noPlayer << "Build  at Main Town";
    QTest::newRow("far past the players") << 0xFFFFFFFFu << "Build  at Main Town";
}

void BonusTextTest::namesTheBuildingAsTheTownHasIt()
{
    QFETCH(uint, player);
    QTEST(textOf(bonusWith(2, BonusBuilding{10}), player), "text");
    QCOMPARE(EditorData::buildings.size(), std::size_t(2));
}

void BonusTextTest::withoutAMapNoTownHasTheBuilding()
{
    m_scenario.mapHeader = nullptr;
    QCOMPARE(textOf(bonusWith(2, BonusBuilding{10})), QString("Build  at Main Town"));
    QCOMPARE(textOf(bonusWith(0, BonusSpell{3, 1})),
             QString("Give Ember spell to Dessa (in town)"));
}

void BonusTextTest::unknownTypesEndTheProcess_data()
{
    QTest::addColumn<int>("type");
    QTest::newRow("one past the last") << 8;
    QTest::newRow("a byte's last") << 255;
}

void BonusTextTest::unknownTypesEndTheProcess()
{
    QFETCH(int, type);
    ReportRecorder recorder;
    QCOMPARE(exitCodeOf([&] { textOf(bonusWith(type, BonusSpell{2, 1})); }), 1);
    QVERIFY(recorder.errors.isEmpty());
    QCOMPARE(exitCodeOf([&] { textOf(bonusWith(7, BonusResource{6, 1})); }), -1);
}

void BonusTextTest::marksInNamesStayAsTheyAre()
{
    EditorData::spells[1] = "%2 %1";
    EditorData::primarySkills[0] = "%1";
    EditorData::creatures[1] = "%3%1";
    QCOMPARE(textOf(bonusWith(0, BonusSpell{2, 1})), QString("Give %2 %1 spell to Corvane"));
    QCOMPARE(textOf(bonusWith(5, BonusPrimarySkill{2, {5, 0, 0, 6}})),
             QString("Give +5 %1, +6 Lore to Corvane"));
    QCOMPARE(textOf(bonusWith(1, BonusCreature{2, 1, 4})), QString("Give 4 %3%1 to Corvane"));
}

void BonusTextTest::everyTextIsTranslatable_data()
{
    QTest::addColumn<CmpStartingBonus>("bonus");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *tag, const CmpStartingBonus &bonus, const char *text) {
        QTest::newRow(tag) << bonus << QString::fromUtf8(text);
    };
    row("spell", bonusWith(0, BonusSpell{2, 1}), "[Give Ember spell to Corvane]");
    row("creature", bonusWith(1, BonusCreature{2, 1, 5}), "[Give 5 Marsh Owl to Corvane]");
    row("building", bonusWith(2, BonusBuilding{10}), "[Build Harbour at Main Town]");
    row("artifact", bonusWith(3, BonusArtifact{2, 4}), "[Give Moss Ring to Corvane]");
    row("scroll", bonusWith(4, BonusScroll{2, 2}), "[Give Thorns Spell Scroll to Corvane]");
    row("primary skill", bonusWith(5, BonusPrimarySkill{2, {1, 0, 3, 0}}),
        "[Give [+1 Attack], [+3 Power] to Corvane]");
    row("secondary skill", bonusWith(6, BonusSecondarySkill{2, 1, 2}),
        "[Give Expert Sailing to Corvane]");
    row("resource", bonusWith(7, BonusResource{6, 5}), "[Receive 5 Gold]");
}

void BonusTextTest::everyTextIsTranslatable()
{
    QFETCH(CmpStartingBonus, bonus);
    BracketTranslator brackets;
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    QTEST(textOf(bonus), "text");
    QCoreApplication::removeTranslator(&brackets);
}

QTEST_MAIN(BonusTextTest)
#include "bonus_text_test.moc"
