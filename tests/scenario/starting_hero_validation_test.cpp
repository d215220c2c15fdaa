// Which offers of a hero to start with survive a change of the map.
#include "scenario/starting_hero_options.h"

#include "tests/scenario/hero_map.h"
#include "tests/scenario/shown_page.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {

constexpr unsigned campaignMap = 3;
constexpr int randomHero = 0xFFFF;

// A row of the table: player and hero.
using Row = QPair<int, int>;
using Rows = QVector<Row>;

struct ModelPlayer
{
    bool human = false;
    bool town = false;
    bool generates = false;
    QVector<int> heroes;
};

// What the rules know of a map.
struct Model
{
    ModelPlayer player(int number) const { return players.value(number); }
    bool disables(int hero) const { return disabled.contains(hero); }

    // What a row needs that stays for good.
    bool allows(const Row &row) const
    {
        const ModelPlayer owner = player(row.first);
        if (!owner.human)
            return false;
        return owner.heroes.contains(row.second) ||
               (owner.town && owner.generates && !disables(row.second));
    }

    // One walk over the rows, test by test.
    Rows walk(Rows rows) const
    {
        for (int position = 0; position < rows.size(); ++position) {
            const Row row = rows[position];
            const ModelPlayer owner = player(row.first);
            bool gone = false;
            if (!owner.human) {
                rows.removeAt(position);
                gone = true;
            }
            const bool onMap = owner.heroes.contains(row.second);
            bool keep = true;
            if ((disables(row.second) || !owner.town) && !onMap)
                keep = false;
            if (!(owner.generates && owner.town) && !onMap)
                keep = false;
            if (!(owner.generates && owner.town) && row.second == randomHero)
                keep = false;
            if (keep)
                continue;
            if (!gone)
                rows.removeAt(position);
            --position;
        }
        return rows;
    }

    QMap<int, ModelPlayer> players;
    QSet<int> disabled;
};

} // namespace

class StartingHeroValidationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init() { m_scenario = {}; }

    void keepsWhatTheMapAllows_data();
    void keepsWhatTheMapAllows();
    void aRowBehindAMachinesRowIsSkippedOnce_data();
    void aRowBehindAMachinesRowIsSkippedOnce();
    void aTownThatIsGoneTakesItsHeroes();
    void textsAreNotMadeAnew();
    void rowsGoWithoutAMap();
    void buttonsStayAsTheyAre();
    void isTraced_data();
    void isTraced();
    void agreesWithItsRulesOnRandomMaps();

private:
    void load(const Rows &rows, const MapHeader &header);
    Rows rowsOnShow();

    ScenarioData m_scenario;
    ShownPage<StartingHeroOptions> m_shown;
};

void StartingHeroValidationTest::load(const Rows &rows, const MapHeader &header)
{
    std::vector<StartingHero> heroes;
    for (const Row &row : rows)
        heroes.push_back({quint8(row.first), quint16(row.second)});
    giveMap(m_scenario, header);
    offerHeroes(m_scenario, heroes);
    m_shown.page.initInfo(nullptr, &m_scenario, campaignMap);
}

Rows StartingHeroValidationTest::rowsOnShow()
{
    StartingHeroSet set;
    m_shown.page.saveScenarioInfo(&set);
    Rows rows;
    for (const StartingHero &hero : set.entries)
        rows.append({hero.player, hero.heroId});
    return rows;
}

void StartingHeroValidationTest::keepsWhatTheMapAllows_data()
{
    QTest::addColumn<int>("player");
    QTest::addColumn<int>("hero");
    QTest::addColumn<bool>("stays");
    QTest::newRow("on the map, without a town") << 0 << 1 << true;
    QTest::newRow("not on the map, without a town") << 0 << 9 << false;
    QTest::newRow("on the map of another player only") << 0 << 3 << false;
    QTest::newRow("random without a town") << 0 << randomHero << false;
    QTest::newRow("on the map, with a town") << 1 << 3 << true;
    QTest::newRow("generated") << 1 << 9 << true;
    QTest::newRow("generated, but disabled") << 1 << 7 << false;
    QTest::newRow("generated, disabled and customised") << 1 << 8 << true;
    QTest::newRow("random") << 1 << randomHero << true;
    QTest::newRow("on the map, nowhere to generate") << 2 << 4 << true;
    QTest::newRow("nowhere to generate") << 2 << 9 << false;
    QTest::newRow("random, nowhere to generate") << 2 << randomHero << false;
    QTest::newRow("a machine's, on the map") << 3 << 5 << false;
    QTest::newRow("a machine's, generated") << 3 << 9 << false;
    QTest::newRow("on the map, nothing generated") << 4 << 6 << true;
    QTest::newRow("nothing generated") << 4 << 9 << false;
    QTest::newRow("random, nothing generated") << 4 << randomHero << false;
    QTest::newRow("the strongest hero") << 0 << 0xFFFD << false;
    QTest::newRow("the hero of the town") << 4 << 0xFFFE << false;
    QTest::newRow("the strongest hero, where one is generated") << 1 << 0xFFFD << true;
    QTest::newRow("the hero of the town, where one is generated") << 1 << 0xFFFE << true;
    QTest::newRow("a hero that is none") << 0 << 300 << false;
    QTest::newRow("a player that is none") << 8 << 1 << false;
    QTest::newRow("a player far off") << 200 << randomHero << false;
}

void StartingHeroValidationTest::keepsWhatTheMapAllows()
{
    QFETCH(int, player);
    QFETCH(int, hero);
    load({{player, hero}}, heroMap());
    m_shown.page.validateOptions();
    QTEST(!rowsOnShow().isEmpty(), "stays");
}

void StartingHeroValidationTest::aRowBehindAMachinesRowIsSkippedOnce_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<Rows>("once");
    QTest::addColumn<Rows>("twice");
    QTest::newRow("the hero passes: the next row waits")
        << Rows{{3, 5}, {0, 9}} << Rows{{0, 9}} << Rows{};
    QTest::newRow("the hero is generated: the next row waits")
        << Rows{{3, 9}, {0, 9}} << Rows{{0, 9}} << Rows{};
    QTest::newRow("the hero fails: the next row is looked at, and stays")
        << Rows{{3, 7}, {0, 1}} << Rows{{0, 1}} << Rows{{0, 1}};
    QTest::newRow("the hero fails: the next row is looked at, and goes")
        << Rows{{3, 7}, {0, 9}} << Rows{} << Rows{};
    QTest::newRow("two machines in a row") << Rows{{3, 5}, {3, 9}} << Rows{{3, 9}} << Rows{};
    QTest::newRow("the row after the next is looked at")
        << Rows{{3, 5}, {0, 9}, {4, 9}} << Rows{{0, 9}} << Rows{};
    QTest::newRow("a row that goes for its hero makes nobody wait")
        << Rows{{0, 9}, {4, 9}, {0, 2}} << Rows{{0, 2}} << Rows{{0, 2}};
    QTest::newRow("a machine last") << Rows{{0, 1}, {3, 5}} << Rows{{0, 1}} << Rows{{0, 1}};
}

void StartingHeroValidationTest::aRowBehindAMachinesRowIsSkippedOnce()
{
    QFETCH(Rows, rows);
    load(rows, heroMap());
    m_shown.page.validateOptions();
    QTEST(rowsOnShow(), "once");
    m_shown.page.validateOptions();
    QTEST(rowsOnShow(), "twice");
}

void StartingHeroValidationTest::aTownThatIsGoneTakesItsHeroes()
{
    MapHeader header = heroMap();
    load({{1, 9}, {1, 3}, {1, randomHero}}, header);
    m_shown.page.validateOptions();
    QCOMPARE(rowsOnShow().size(), 3);
    header.players[1].hasMainTown = 0;
    giveMap(m_scenario, header);
    m_shown.page.validateOptions();
    QCOMPARE(rowsOnShow(), Rows({{1, 3}}));
}

void StartingHeroValidationTest::textsAreNotMadeAnew()
{
    MapHeader header = heroMap();
    load({{1, 9}, {1, 3}}, header);
    header.players[1].heroInfo = {{9, "Jorun the Tall"}};
    giveMap(m_scenario, header);
    m_shown.page.validateOptions();
    QCOMPARE(m_shown.rows(), QStringList({"Jorun (in town) | Player 2 (Blue)",
                                          "Dessa (on map) | Player 2 (Blue)"}));
}

void StartingHeroValidationTest::rowsGoWithoutAMap()
{
    load({{0, 1}, {1, 9}}, heroMap());
    m_scenario.mapHeader = nullptr;
    m_shown.page.validateOptions();
    QCOMPARE(rowsOnShow(), Rows());
}

void StartingHeroValidationTest::buttonsStayAsTheyAre()
{
    load({{0, 1}, {0, 9}, {0, 8}}, heroMap());
    m_shown.page.validateOptions();
    QCOMPARE(m_shown.page.getOptionCount(), 1U);
    QCOMPARE(m_shown.enabledButtons(), QString());
}

void StartingHeroValidationTest::isTraced_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<QStringList>("traces");
    QTest::newRow("no rows") << Rows{} << QStringList{"Validate"};
    QTest::newRow("a row that stays")
        << Rows{{0, 2}} << QStringList{"Validate", "Check good", "OnMap:  1", "OnMap:  2", "Good"};
    QTest::newRow("a machine's row")
        << Rows{{3, 5}}
        << QStringList{"Validate", "Check good", "Bad (not human), remove", "OnMap:  5", "Good"};
    QTest::newRow("a disabled hero")
        << Rows{{1, 7}}
        << QStringList{"Validate",      "Check good",
                       "OnMap:  3",     "ID:  7",
                       "Reason A true", "Reason B false",
                       "Reason C true", "Bad (disabled or no main city, not on map), remove"};
    QTest::newRow("no town")
        << Rows{{2, 9}}
        << QStringList{"Validate",       "Check good",
                       "OnMap:  4",      "ID:  9",
                       "Reason A false", "Reason B true",
                       "Reason C true",  "Bad (disabled or no main city, not on map), remove"};
    QTest::newRow("a random hero where none is generated")
        << Rows{{4, randomHero}}
        << QStringList{"Validate", "Check good", "OnMap:  6",
                       "Bad (no generated hero or no main city)"};
}

void StartingHeroValidationTest::isTraced()
{
    QFETCH(Rows, rows);
    load(rows, heroMap());
    const TraceRecorder traces;
    m_shown.page.validateOptions();
    QTEST(TraceRecorder::messages(), "traces");
}

// Ten heroes and numbers past them, eight players and numbers past them, every flag in every
// state. Repeated walks leave what the map allows.
void StartingHeroValidationTest::agreesWithItsRulesOnRandomMaps()
{
    const TraceRecorder quiet;
    std::mt19937 random(20);
    const auto upTo = [&](int last) { return int(random() % unsigned(last + 1)); };
    const std::array<int, 4> special{0xFFFD, 0xFFFE, randomHero, 300};
    int removed = 0;
    int kept = 0;
    for (int round = 0; round < 10000; ++round) {
        Model model;
        MapHeader header;
        for (int number = 0; number < 8; ++number) {
            PlayerAttributes &player = header.players[std::size_t(number)];
            player.canHuman = quint8(upTo(2));
            player.hasMainTown = quint8(upTo(2));
            player.generatesHero = quint8(upTo(2));
            ModelPlayer known{
                player.canHuman != 0, player.hasMainTown != 0, player.generatesHero != 0, {}};
            for (int count = upTo(4); count > 0; --count) {
                known.heroes << upTo(12);
                player.heroInfo.push_back({quint8(known.heroes.last()), {}});
            }
            model.players[number] = known;
        }
        header.headerHeroes.available = QBitArray(upTo(1) ? 10 : 16);
        for (int hero = 0; hero < 10; ++hero) {
            const bool available = upTo(1);
            header.headerHeroes.available.setBit(hero, available);
            if (!available)
                model.disabled << hero;
        }
        header.headerHeroes.customHeroes.resize(std::size_t(upTo(3)));
        for (HeaderHero &custom : header.headerHeroes.customHeroes) {
            custom.heroId = quint8(upTo(12));
            model.disabled.remove(custom.heroId);
        }
        Rows rows;
        for (int count = upTo(6); count > 0; --count) {
            const int hero = upTo(3) ? upTo(12) : special[std::size_t(upTo(3))];
            rows.append({upTo(9) ? upTo(8) : 200, hero});
        }
        load(rows, header);
        m_shown.page.validateOptions();
        const Rows expected = model.walk(rows);
        QCOMPARE(rowsOnShow(), expected);
        removed += rows.size() - expected.size();
        kept += expected.size();

        for (int again = 0; again < rows.size(); ++again)
            m_shown.page.validateOptions();
        Rows allowed;
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(allowed),
                     [&](const Row &row) { return model.allows(row); });
        QCOMPARE(rowsOnShow(), allowed);
    }
    QVERIFY(removed > 5000);
    QVERIFY(kept > 5000);
}

QTEST_MAIN(StartingHeroValidationTest)
#include "starting_hero_validation_test.moc"
