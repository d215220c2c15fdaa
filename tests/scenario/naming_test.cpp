// The names of players, heroes and scenarios, and lists of heroes to choose from.
#include "scenario/naming.h"

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "tests/scenario/bracket_translator.h"

#include <QComboBox>
#include <QtTest>

#include <limits>

namespace {

constexpr unsigned campaignMap = 3;
constexpr unsigned absent = std::numeric_limits<unsigned>::max();

} // namespace

class NamingTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void specialHeroesHaveTheirNumbers();
    void namesPlayers_data();
    void namesPlayers();
    void namesHeroes_data();
    void namesHeroes();
    void withoutAMapEveryHeroIsInTown();
    void aHeroListedTwiceTakesTheNameItHas();
    void offersHeroes_data();
    void offersHeroes();
    void itemsCarryTheHerosNumber();
    void appendsToWhatIsThere();
    void withoutAMapEveryHeroIsDisabled();
    void heroesOfTheMapAreNotDisabled();
    void heroesBeyondTheTableDisableNothing();
    void specialHeroesAreNeverDisabled();
    void namesScenarios_data();
    void namesScenarios();
    void marksInNamesStayAsTheyAre();
    void everyTextIsTranslatable();

private:
    ScenarioData &first() { return m_campaign.scenarios[0]; }

    CampaignData m_campaign;
};

// Scenario 0 has a map, on which player 1 has four heroes; scenario 1 has none.
void NamingTest::init()
{
    EditorData::colors = {"Red", "Blue", "Tan"};
    EditorData::heroes = {{0, "Aldra"}, {1, "Berin"}, {2, "Corvane"}, {3, "Dessa"}, {4, "Elbrec"}};
    EditorData::campaignInfo.clear();
    EditorData::campaignInfo[campaignMap].regionCount = 2;
    EditorData::campaignInfo[campaignMap].regions.resize(2);
    EditorData::campaignInfo[campaignMap].regions[0].name = "North Fen";
    EditorData::campaignInfo[campaignMap].regions[1].name = "Grey Coast";

    auto header = std::make_shared<MapHeader>();
    header->mapName = "The Long Thaw";
    header->players[1].heroInfo = {{3, "Queen Dessa"}, {2, ""}, {0, ""}, {200, ""}};
    header->players[2].generatesHero = 1;
    header->players[2].heroInfo = {{4, ""}};
    header->players[4].generatesHero = 7;
    header->players[5].hasMainTown = 1;
    header->headerHeroes.available = QBitArray(5);
    header->headerHeroes.available.setBit(1);
    header->headerHeroes.available.setBit(4);
    m_campaign = {};
    m_campaign.scenarios.resize(2);
    first().mapHeader = header;
    first().mapFileName = "thaw.e3m";
}

void NamingTest::specialHeroesHaveTheirNumbers()
{
    QCOMPARE(HeroIdMostPowerful, quint16(65533));
    QCOMPARE(HeroIdGenerated, quint16(65534));
    QCOMPARE(HeroIdRandom, quint16(65535));
}

void NamingTest::namesPlayers_data()
{
    QTest::addColumn<uint>("player");
    QTest::addColumn<QString>("name");
    QTest::newRow("first") << 0u << "Player 1 (Red)";
    QTest::newRow("third") << 2u << "Player 3 (Tan)";
    QTest::newRow("one past the colours") << 3u << "Player 4 ()";
    QTest::newRow("a byte's last") << 255u << "Player 256 ()";
}

void NamingTest::namesPlayers()
{
    QFETCH(uint, player);
    QTEST(getFullPlayerName(player), "name");
}

void NamingTest::namesHeroes_data()
{
    QTest::addColumn<uint>("player");
    QTest::addColumn<int>("hero");
    QTest::addColumn<QString>("withPlace");
    QTest::addColumn<QString>("withoutPlace");
    const auto row = [](const char *tag, unsigned player, int hero, const char *withPlace,
                        const char *withoutPlace) {
        QTest::newRow(tag) << player << hero << withPlace << withoutPlace;
    };
    row("most powerful", 1, 0xFFFD, "Most powerful hero", "Most powerful hero");
    row("generated", 1, 0xFFFE, "Generated hero (in town)", "Generated hero (in town)");
    row("random", 1, 0xFFFF, "Random hero (in town)", "Random hero (in town)");
    row("named by the map", 1, 3, "Queen Dessa (on map)", "Queen Dessa");
    row("on the map without a name", 1, 2, "Corvane (on map)", "Corvane");
    row("not on the map", 1, 1, "Berin (in town)", "Berin (in town)");
    row("on the map of another player", 2, 3, "Dessa (in town)", "Dessa (in town)");
    row("absent from the table", 1, 5, " (in town)", " (in town)");
    row("absent from the table, on the map", 1, 200, " (on map)", "");
    row("same low byte as one on the map", 1, 0x0103, " (in town)", " (in town)");
    row("just below the special ones", 1, 0xFFFC, " (in town)", " (in town)");
    row("one past the players", 8, 3, "Dessa (in town)", "Dessa (in town)");
    row("far past the players", absent, 3, "Dessa (in town)", "Dessa (in town)");
}

void NamingTest::namesHeroes()
{
    QFETCH(uint, player);
    QFETCH(int, hero);
    QTEST(getHeroName(&first(), player, quint16(hero), true), "withPlace");
    QTEST(getHeroName(&first(), player, quint16(hero), false), "withoutPlace");
    QCOMPARE(EditorData::heroes.size(), size_t(5)); // looking up adds nothing
}

void NamingTest::withoutAMapEveryHeroIsInTown()
{
    ScenarioData &empty = m_campaign.scenarios[1];
    QCOMPARE(getHeroName(&empty, 1, 3, true), QString("Dessa (in town)"));
    QCOMPARE(getHeroName(&empty, 1, 3, false), QString("Dessa (in town)"));
    QCOMPARE(getHeroName(&empty, 1, HeroIdMostPowerful, true), QString("Most powerful hero"));
}

void NamingTest::aHeroListedTwiceTakesTheNameItHas()
{
    auto header = std::make_shared<MapHeader>();
    header->players[0].heroInfo = {{2, ""}, {2, "Old Corvane"}, {2, "Young Corvane"}};
    first().mapHeader = header;
    QCOMPARE(getHeroName(&first(), 0, 2, true), QString("Old Corvane (on map)"));
    QCOMPARE(getHeroName(&first(), 0, 2, false), QString("Old Corvane"));
}

void NamingTest::offersHeroes_data()
{
    QTest::addColumn<int>("scenario");
    QTest::addColumn<uint>("player");
    QTest::addColumn<QStringList>("special");
    QTest::addColumn<QStringList>("others");
    const QString strongest = "Most powerful hero";
    const QString generated = "Generated hero (in town)";
    QTest::newRow("heroes on the map")
        << 0 << 1u << QStringList{strongest}
        << QStringList{"Queen Dessa (on map)", "Corvane (on map)", "Aldra (on map)", " (on map)"};
    QTest::newRow("one more in town")
        << 0 << 2u << QStringList{strongest, generated} << QStringList{"Elbrec (on map)"};
    QTest::newRow("no heroes") << 0 << 3u << QStringList{strongest} << QStringList{};
    QTest::newRow("any flag but zero is set")
        << 0 << 4u << QStringList{strongest, generated} << QStringList{};
    QTest::newRow("a main town alone is none")
        << 0 << 5u << QStringList{strongest} << QStringList{};
    QTest::newRow("past the players") << 0 << 8u << QStringList{strongest} << QStringList{};
    QTest::newRow("without a map") << 1 << 2u << QStringList{strongest} << QStringList{};
}

void NamingTest::offersHeroes()
{
    QFETCH(int, scenario);
    QFETCH(uint, player);
    QFETCH(QStringList, special);
    QFETCH(QStringList, others);
    const auto textsOf = [&](bool withSpecial) {
        QComboBox box;
        addHeroesToCombobox(&box, &m_campaign.scenarios[size_t(scenario)], player, withSpecial);
        QStringList texts;
        for (int item = 0; item < box.count(); ++item)
            texts << box.itemText(item);
        return texts;
    };
    QCOMPARE(textsOf(true), special + others);
    QCOMPARE(textsOf(false), others);
}

void NamingTest::itemsCarryTheHerosNumber()
{
    QComboBox box;
    addHeroesToCombobox(&box, &first(), 2, true);
    QCOMPARE(box.count(), 3);
    const std::array<unsigned, 3> heroes = {0xFFFD, 0xFFFE, 4};
    for (int item = 0; item < box.count(); ++item) {
        QCOMPARE(int(box.itemData(item, Qt::UserRole).type()), int(QVariant::UInt));
        QCOMPARE(box.itemData(item).toUInt(), heroes[size_t(item)]);
        QVERIFY(box.itemIcon(item).isNull());
    }
}

void NamingTest::appendsToWhatIsThere()
{
    QComboBox box;
    box.addItem("Nobody");
    addHeroToCombobox(&box, &first(), 1, 2u);
    addHeroToCombobox(&box, &first(), 1, 1u);
    QCOMPARE(box.count(), 3);
    QCOMPARE(box.itemText(0), QString("Nobody"));
    QCOMPARE(box.itemText(1), QString("Corvane (on map)"));
    QCOMPARE(box.itemText(2), QString("Berin (in town)"));
    QCOMPARE(box.itemData(2), QVariant(1u));
}

void NamingTest::withoutAMapEveryHeroIsDisabled()
{
    QCOMPARE(getDisabledHeroes(&m_campaign.scenarios[1], 0), QBitArray(5, true));
}

void NamingTest::heroesOfTheMapAreNotDisabled()
{
    auto header = std::make_shared<MapHeader>(*first().mapHeader);
    header->headerHeroes.customHeroes.resize(2);
    header->headerHeroes.customHeroes[0].heroId = 0;
    header->headerHeroes.customHeroes[1].heroId = 4; // allowed and customised
    first().mapHeader = header;
    QBitArray expected(5, true);
    for (const int hero : {0, 1, 4})
        expected.clearBit(hero);
    for (const unsigned player : {0u, 7u, absent})
        QCOMPARE(getDisabledHeroes(&first(), player), expected);
    QVERIFY(!HeroIsDisabled(expected, 0));
    QVERIFY(HeroIsDisabled(expected, 2));
}

void NamingTest::heroesBeyondTheTableDisableNothing()
{
    auto header = std::make_shared<MapHeader>();
    header->headerHeroes.available = QBitArray(70, true);
    header->headerHeroes.available.clearBit(1);
    header->headerHeroes.customHeroes.resize(2);
    header->headerHeroes.customHeroes[0].heroId = 5;
    header->headerHeroes.customHeroes[1].heroId = 255;
    first().mapHeader = header;
    QBitArray expected(5);
    expected.setBit(1);
    QBitArray disabled = getDisabledHeroes(&first(), 0);
    QCOMPARE(disabled, expected);
    for (const unsigned hero : {5u, 255u, 0xFFFCu, 0x80000000u, absent})
        QVERIFY(!HeroIsDisabled(disabled, hero));

    header = std::make_shared<MapHeader>();
    header->headerHeroes.available = QBitArray(2, true); // shorter than the table
    first().mapHeader = header;
    disabled = getDisabledHeroes(&first(), 0);
    QCOMPARE(disabled.count(true), 3);
    QVERIFY(!HeroIsDisabled(disabled, 1));
    QVERIFY(HeroIsDisabled(disabled, 2));
}

void NamingTest::specialHeroesAreNeverDisabled()
{
    QBitArray all(65536, true);
    QVERIFY(HeroIsDisabled(all, 0xFFFC));
    for (const unsigned hero : {0xFFFDu, 0xFFFEu, 0xFFFFu})
        QVERIFY(!HeroIsDisabled(all, hero));
}

void NamingTest::namesScenarios_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<uint>("map");
    QTest::addColumn<uint>("scenario");
    QTest::addColumn<QString>("byFile");
    QTest::addColumn<QString>("byTitle");
    const auto row = [](const char *tag, bool hasMap, unsigned map, unsigned scenario,
                        const char *byFile, const char *byTitle) {
        QTest::newRow(tag) << hasMap << map << scenario << QString::fromUtf8(byFile)
                           << QString::fromUtf8(byTitle);
    };
    row("region with a map", true, 3, 0, "thaw.e3m — North Fen", "The Long Thaw — North Fen");
    row("region without a map", true, 3, 1, "Empty — Grey Coast", "No scenario — Grey Coast");
    row("past the regions", true, 3, 2, "Empty — ", "No scenario — ");
    row("far past the regions", true, 3, absent, "Empty — ", "No scenario — ");
    row("map that the table lacks", true, 99, 0, "thaw.e3m — ", "The Long Thaw — ");
    row("map far past the table", true, absent, 1, "Empty — ", "No scenario — ");
    row("first without regions", false, 24, 0, "1. thaw.e3m", "0. The Long Thaw");
    row("empty without regions", false, 24, 1, "2. Empty", "1. No scenario");
    row("past the scenarios", false, 24, 2, "3. Empty", "2. No scenario");
}

void NamingTest::namesScenarios()
{
    QFETCH(bool, hasMap);
    QFETCH(uint, map);
    QFETCH(uint, scenario);
    m_campaign.hasMap = hasMap;
    QTEST(getScenarioFilename(&m_campaign, map, scenario), "byFile");
    QTEST(getScenarioName(&m_campaign, map, scenario), "byTitle");
    QCOMPARE(EditorData::campaignInfo.size(), size_t(1)); // looking up adds nothing
}

void NamingTest::marksInNamesStayAsTheyAre()
{
    EditorData::colors[0] = "%1 %2";
    EditorData::campaignInfo[campaignMap].regions[0].name = "%1 North";
    auto header = std::make_shared<MapHeader>();
    header->mapName = "50%2 off";
    first().mapHeader = header;
    first().mapFileName = "%2%1.e3m";
    QCOMPARE(getFullPlayerName(0), QString("Player 1 (%1 %2)"));
    QCOMPARE(getScenarioName(&m_campaign, campaignMap, 0),
             QString::fromUtf8("50%2 off — %1 North"));
    QCOMPARE(getScenarioFilename(&m_campaign, campaignMap, 0),
             QString::fromUtf8("%2%1.e3m — %1 North"));
    m_campaign.hasMap = false;
    QCOMPARE(getScenarioName(&m_campaign, campaignMap, 0), QString("0. 50%2 off"));
    QCOMPARE(getScenarioFilename(&m_campaign, campaignMap, 0), QString("1. %2%1.e3m"));
}

void NamingTest::everyTextIsTranslatable()
{
    BracketTranslator brackets;
    QVERIFY(QCoreApplication::installTranslator(&brackets));
    QCOMPARE(getFullPlayerName(0), QString("[Player 1 (Red)]"));
    QCOMPARE(getHeroName(&first(), 1, HeroIdMostPowerful, true), QString("[Most powerful hero]"));
    QCOMPARE(getHeroName(&first(), 1, HeroIdGenerated, true),
             QString("[Generated hero][ (in town)]"));
    QCOMPARE(getHeroName(&first(), 1, HeroIdRandom, true), QString("[Random hero][ (in town)]"));
    QCOMPARE(getHeroName(&first(), 1, 3, true), QString("Queen Dessa[ (on map)]"));
    QCOMPARE(getScenarioFilename(&m_campaign, campaignMap, 1),
             QString::fromUtf8("[[Empty] — Grey Coast]"));
    QCOMPARE(getScenarioName(&m_campaign, campaignMap, 1),
             QString::fromUtf8("[[No scenario] — Grey Coast]"));
    m_campaign.hasMap = false;
    QCOMPARE(getScenarioFilename(&m_campaign, campaignMap, 1), QString("[2. Empty]"));
    QCOMPARE(getScenarioName(&m_campaign, campaignMap, 1), QString("1. [No scenario]"));
    QCOMPARE(getScenarioFilename(&m_campaign, campaignMap, 0), QString("1. thaw.e3m"));
    QCoreApplication::removeTranslator(&brackets);
}

QTEST_MAIN(NamingTest)
#include "naming_test.moc"
