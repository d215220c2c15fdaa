// The search of start options for what doesn't fit the map or the game's tables.
#include "gamedata/locale_codec.h"
#include "tests/document/checked_campaigns.h"
#include "tests/support/tiny_game.h"

#include <QtTest>

using namespace checked;

class OptionCheckTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void faultsOfOptionsAreTold_data();
    void faultsOfOptionsAreTold();

private:
    tiny::Game m_game;
    QTemporaryDir m_folder;
};

namespace {

constexpr unsigned foreignHero = 7;
constexpr unsigned strongest = 0xFFFD;
constexpr unsigned generated = 0xFFFE;
constexpr unsigned anyHero = 0xFFFF;
constexpr unsigned unknown = 250;

// A row for the options of the first scenario.
void options(const char *name, const QByteArray &bytes, const QStringList &lines)
{
    Campaign campaign = sound();
    campaign.records[0].options = bytes;
    QTest::newRow(name) << bytesOf(campaign) << lines;
}

} // namespace

void OptionCheckTest::initTestCase()
{
    QVERIFY(setLocaleCodec("UTF-8"));
    m_game.load();
    addHeroes();
}

void OptionCheckTest::faultsOfOptionsAreTold_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QStringList>("lines");
    const QString all = "scenario.1.options: ";
    const QString one = "scenario.1.options.1: ";
    const auto spell = unsigned(EditorData::spells.begin()->first);
    const auto artifact = unsigned(EditorData::artifacts.begin()->first);
    const auto creature = unsigned(EditorData::creatures.begin()->first);
    const auto skill = unsigned(EditorData::secondarySkills.begin()->first);
    const auto level = unsigned(EditorData::skillLevels.begin()->first);
    const auto building = unsigned(EditorData::buildings[6].begin()->first);
    options("sound spell", bonuses(1).u8(0).u16(ownHero).u8(spell).bytes(), {});
    options("sound scroll", bonuses(1).u8(4).u16(strongest).u8(spell).bytes(), {});
    options("sound artifact", bonuses(1).u8(3).u16(generated).u16(artifact).bytes(), {});
    options("sound creature", bonuses(1).u8(1).u16(ownHero).u16(creature).u16(9999).bytes(), {});
    options("sound skills", bonuses(1).u8(5).u16(ownHero).raw(QByteArray("\0\0\0\x63", 4)).bytes(),
            {});
    options("sound skill", bonuses(1).u8(6).u16(ownHero).u8(skill).u8(level).bytes(), {});
    options("sound building", bonuses(1).u8(2).u8(building).bytes(), {});
    options("no bonus", bonuses(0, 9).bytes(), {});

    options("unknown kind", ByteWriter().u8(4).bytes(),
            {"scenario.1: start options of the unknown kind 4, saving drops them"});
    options("no hero to start with", ByteWriter().u8(3).u8(0).bytes(),
            {"scenario.1: a list of starting heroes without any, saving makes it one of bonuses"});
    options("unknown bonus", bonuses(1).u8(8).bytes(),
            {one + "a bonus of the unknown kind 8, over which the editor ends"});
    options("four of them",
            bonuses(4)
                .u8(7)
                .u8(0)
                .i32(1)
                .u8(7)
                .u8(0)
                .i32(1)
                .u8(7)
                .u8(0)
                .i32(1)
                .u8(7)
                .u8(0)
                .i32(1)
                .bytes(),
            {all + "4 choices, the editor makes at most 3"});
    options("player beyond", bonuses(1, 8).u8(7).u8(0).i32(1).bytes(),
            {all + "nobody can play player 9 on this map"});
    options("foreign hero", bonuses(1).u8(0).u16(foreignHero).u8(spell).bytes(),
            {one + "the player has no hero 7 on this map"});
    options("hero beyond the table", bonuses(1).u8(0).u16(heroBeyondTable).u8(spell).bytes(),
            {one + "the game has no hero 42"});
    options("hero of no town", bonuses(1, poorPlayer).u8(0).u16(generated).u8(spell).bytes(),
            {one + "the player's main town makes no hero"});
    options("spell", bonuses(1).u8(0).u16(ownHero).u8(unknown).bytes(),
            {one + "the game has no spell 250"});
    options("scroll", bonuses(1).u8(4).u16(ownHero).u8(unknown).bytes(),
            {one + "the game has no spell 250"});
    options("artifact", bonuses(1).u8(3).u16(ownHero).u16(9000).bytes(),
            {one + "the game has no artifact 9000"});
    options(
        "creature", bonuses(1).u8(1).u16(ownHero).u16(9000).u16(0).bytes(),
        {one + "the game has no creature 9000", one + "0 creatures, the editor takes 1 to 9999"});
    options("too many creatures", bonuses(1).u8(1).u16(ownHero).u16(creature).u16(10000).bytes(),
            {one + "10000 creatures, the editor takes 1 to 9999"});
    options("no skills", bonuses(1).u8(5).u16(ownHero).zeros(4).bytes(),
            {one + "a bonus of skills that adds none"});
    options("much skill", bonuses(1).u8(5).u16(ownHero).raw(QByteArray("\0\x64\0\0", 4)).bytes(),
            {one + "100 points of a skill, the editor takes 0 to 99"});
    options(
        "skill and level", bonuses(1).u8(6).u16(ownHero).u8(unknown).u8(unknown).bytes(),
        {one + "the game has no secondary skill 250", one + "the game has no level of skills 250"});
    options("resource", bonuses(1).u8(7).u8(unknown).i32(0).bytes(),
            {one + "the game has no resource 250",
             one + "0 of a resource, the editor takes 1 to 99999"});
    options("building of no town", bonuses(1, poorPlayer).u8(2).u8(0).bytes(),
            {one + "a building, but the player has no main town of a known kind"});
    options("building of another town", bonuses(1).u8(2).u8(unknown).bytes(),
            {one + "the game has no building 250 in that town"});
    options("building against the rules", bonuses(1).u8(2).u8(14).bytes(),
            {one + "the player's main town can't have building 14"});

    options("sound heroes",
            ByteWriter()
                .u8(3)
                .u8(3)
                .u8(richPlayer)
                .u16(ownHero)
                .u8(richPlayer)
                .u16(anyHero)
                .u8(richPlayer)
                .u16(2)
                .bytes(),
            {});
    options("hero of the map alone", ByteWriter().u8(3).u8(1).u8(poorPlayer).u16(anyHero).bytes(),
            {one + "the player has no hero 65535 on this map"});
    options("disabled hero", ByteWriter().u8(3).u8(1).u8(richPlayer).u16(1).bytes(),
            {one + "this map doesn't allow hero 1"});
    options("unknown hero", ByteWriter().u8(3).u8(1).u8(richPlayer).u16(9000).bytes(),
            {one + "the game has no hero 9000"});
    options(
        "hero twice",
        ByteWriter().u8(3).u8(2).u8(richPlayer).u16(ownHero).u8(richPlayer).u16(ownHero).bytes(),
        {"scenario.1.options.2: hero 41 was offered before"});
    options("player of a hero", ByteWriter().u8(3).u8(1).u8(8).u16(ownHero).bytes(),
            {one + "nobody can play player 9 on this map"});

    options("crossover from nowhere", ByteWriter().u8(2).u8(1).u8(richPlayer).u8(3).bytes(),
            {one + "there is no scenario 4"});
    options("crossover not required",
            ByteWriter().u8(2).u8(2).u8(richPlayer).u8(2).u8(9).u8(2).bytes(),
            {one + "scenario 3 isn't required for this one",
             "scenario.1.options.2: nobody can play player 10 on this map",
             "scenario.1.options.2: scenario 3 isn't required for this one",
             "scenario.1.options.2: scenario 3 was offered before"});
    Campaign campaign = sound();
    campaign.records[2].options = ByteWriter().u8(2).u8(1).u8(richPlayer).u8(0).bytes();
    QTest::newRow("sound crossover") << bytesOf(campaign) << QStringList();
}

void OptionCheckTest::faultsOfOptionsAreTold()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QStringList, lines);
    QCOMPARE(told(m_folder.filePath("a.e3c"), bytes).join('\n'), lines.join('\n'));
}

QTEST_GUILESS_MAIN(OptionCheckTest)
#include "option_check_test.moc"
