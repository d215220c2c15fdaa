// Which offers of a hero carried over survive a change of the map.
#include "scenario/hero_crossover.h"

#include "tests/scenario/crossover_campaign.h"
#include "tests/scenario/shown_page.h"

#include <QtTest>

#include <algorithm>
#include <random>

namespace {

constexpr unsigned campaignMap = 3;

// A row of the table: player and source scenario.
using Row = QPair<int, int>;
using Rows = QVector<Row>;

// One walk over the rows: a row of a player whom no human can play goes, and the next one stays
// unseen.
Rows walk(Rows rows, const QSet<int> &humans)
{
    for (int position = 0; position < rows.size(); ++position) {
        if (!humans.contains(rows[position].first))
            rows.removeAt(position);
    }
    return rows;
}

} // namespace

class HeroCrossoverValidationTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { nameHeroesAndColours(); }
    void init() { m_campaign = {}; }

    void removesRowsOfMachines_data();
    void removesRowsOfMachines();
    void leavesSourcesAlone();
    void withoutAMapRemovesAll();
    void agreesWithItsRuleOnRandomMaps();

private:
    void load(const Rows &rows);
    Rows rowsOnShow();

    CrossoverCampaign m_campaign;
    ShownPage<HeroCrossover> m_shown;
};

void HeroCrossoverValidationTest::load(const Rows &rows)
{
    std::vector<CmpHeroCrossover> entries;
    for (const Row &row : rows)
        entries.push_back({quint8(row.first), quint8(row.second)});
    offerCrossovers(m_campaign.last(), entries);
    m_shown.page.initInfo(&m_campaign, &m_campaign.last(), campaignMap);
}

Rows HeroCrossoverValidationTest::rowsOnShow()
{
    HeroCrossoverSet set;
    m_shown.page.saveScenarioInfo(&set);
    Rows rows;
    for (const CmpHeroCrossover &option : set.entries)
        rows.append(Row(option.player, option.sourceScenario));
    return rows;
}

void HeroCrossoverValidationTest::removesRowsOfMachines_data()
{
    QTest::addColumn<Rows>("rows");
    QTest::addColumn<Rows>("once");
    QTest::addColumn<Rows>("twice");
    const Rows humans{{0, 0}, {1, 2}, {4, 3}};
    QTest::newRow("humans") << humans << humans << humans;
    QTest::newRow("a machine") << Rows{{0, 0}, {3, 2}} << Rows{{0, 0}} << Rows{{0, 0}};
    QTest::newRow("two machines in a row") << Rows{{3, 0}, {5, 2}} << Rows{{5, 2}} << Rows{};
    QTest::newRow("three machines in a row")
        << Rows{{3, 0}, {5, 2}, {6, 3}} << Rows{{5, 2}} << Rows{};
    QTest::newRow("machines around a human")
        << Rows{{3, 0}, {0, 2}, {6, 3}} << Rows{{0, 2}} << Rows{{0, 2}};
    QTest::newRow("a player that is none") << Rows{{8, 0}, {200, 2}} << Rows{{200, 2}} << Rows{};
}

void HeroCrossoverValidationTest::removesRowsOfMachines()
{
    QFETCH(Rows, rows);
    load(rows);
    m_shown.page.validateOptions();
    QTEST(rowsOnShow(), "once");
    m_shown.page.validateOptions();
    QTEST(rowsOnShow(), "twice");
}

void HeroCrossoverValidationTest::leavesSourcesAlone()
{
    load({{0, 1}, {0, 0}, {0, 200}});
    m_campaign.require({});
    m_shown.page.validateOptions();
    QCOMPARE(rowsOnShow(), Rows({{0, 1}, {0, 0}, {0, 200}}));
}

void HeroCrossoverValidationTest::withoutAMapRemovesAll()
{
    load({{0, 0}});
    m_campaign.last().mapHeader = nullptr;
    m_shown.page.validateOptions();
    QCOMPARE(rowsOnShow(), Rows());
}

void HeroCrossoverValidationTest::agreesWithItsRuleOnRandomMaps()
{
    const TraceRecorder quiet;
    std::mt19937 random(21);
    const auto upTo = [&](int last) { return int(random() % unsigned(last + 1)); };
    int skipped = 0;
    for (int round = 0; round < 10000; ++round) {
        MapHeader header;
        QSet<int> humans;
        for (int player = 0; player < 8; ++player) {
            header.players[std::size_t(player)].canHuman = quint8(upTo(2));
            if (header.players[std::size_t(player)].canHuman)
                humans << player;
        }
        giveMap(m_campaign.last(), header);
        Rows rows;
        for (int count = upTo(6); count > 0; --count)
            rows.append({upTo(9) ? upTo(8) : 200, upTo(5)});
        load(rows);
        m_shown.page.validateOptions();
        const Rows expected = walk(rows, humans);
        QCOMPARE(rowsOnShow(), expected);

        Rows allowed;
        std::copy_if(rows.begin(), rows.end(), std::back_inserter(allowed),
                     [&](const Row &row) { return humans.contains(row.first); });
        skipped += expected.size() - allowed.size();
        for (int again = 0; again < rows.size(); ++again)
            m_shown.page.validateOptions();
        QCOMPARE(rowsOnShow(), allowed);
    }
    QVERIFY(skipped > 1000);
}

QTEST_MAIN(HeroCrossoverValidationTest)
#include "hero_crossover_validation_test.moc"
