#include "document/prerequisites.h"

#include "document/campaign_data.h"

#include <QElapsedTimer>
#include <QtTest>

#include <functional>
#include <limits>
#include <random>

namespace {

using Scenarios = std::set<ScenarioData *>;

// A row of "0" and "1" for each scenario: what it requires, scenario 0 first.
CampaignData campaignOf(const QStringList &rows)
{
    CampaignData campaign;
    campaign.scenarios.resize(size_t(rows.size()));
    for (int i = 0; i < rows.size(); ++i) {
        QBitArray &bits = campaign.scenarios[size_t(i)].prerequisites;
        bits = QBitArray(rows[i].size());
        for (int j = 0; j < bits.size(); ++j)
            bits.setBit(j, rows[i][j] == '1');
    }
    return campaign;
}

QStringList rowsOf(const CampaignData &campaign)
{
    QStringList rows;
    for (const ScenarioData &scenario : campaign.scenarios) {
        QString row;
        for (int j = 0; j < scenario.prerequisites.size(); ++j)
            row += scenario.prerequisites.testBit(j) ? '1' : '0';
        rows << row;
    }
    return rows;
}

bool needs(const CampaignData &campaign, size_t scenario, size_t required)
{
    const QBitArray &bits = campaign.scenarios[scenario].prerequisites;
    return int(required) < bits.size() && bits.testBit(int(required));
}

// The numbers of the scenarios that the walk adds to those given.
std::vector<int> addedBehind(CampaignData &campaign, int index, const std::vector<int> &before = {})
{
    Scenarios result;
    for (const int scenario : before)
        result.insert(&campaign.scenarios[size_t(scenario)]);
    addAllWithPrecondition(campaign, index, result);
    for (const int scenario : before)
        result.erase(&campaign.scenarios[size_t(scenario)]);
    std::vector<int> numbers;
    for (const ScenarioData *scenario : result)
        numbers.push_back(int(scenario - campaign.scenarios.data()));
    return numbers;
}

// Up to `most` scenarios with any arrows between them, in arrays of any size; sound ones point
// backwards only.
CampaignData randomCampaign(std::mt19937 &random, unsigned most)
{
    CampaignData campaign;
    campaign.scenarios.resize(random() % (most + 1));
    const bool sound = random() % 2 != 0;
    const unsigned rarity = 2 + unsigned(random() % most);
    for (size_t i = 0; i < campaign.scenarios.size(); ++i) {
        QBitArray &bits = campaign.scenarios[i].prerequisites;
        bits = QBitArray(int(random() % (most + 6)));
        for (int j = 0; j < (sound ? std::min(int(i), bits.size()) : bits.size()); ++j)
            bits.setBit(j, random() % rarity == 0);
    }
    return campaign;
}

// Which scenario requires which in the end, by going through every middle.
std::vector<std::vector<bool>> closureOf(const CampaignData &campaign)
{
    const size_t count = campaign.scenarios.size();
    std::vector<std::vector<bool>> closure(count, std::vector<bool>(count));
    for (size_t i = 0; i < count; ++i) {
        for (size_t j = 0; j < count; ++j)
            closure[i][j] = needs(campaign, i, j);
    }
    for (size_t middle = 0; middle < count; ++middle) {
        for (size_t i = 0; i < count; ++i) {
            for (size_t j = 0; j < count; ++j)
                closure[i][j] = closure[i][j] || (closure[i][middle] && closure[middle][j]);
        }
    }
    return closure;
}

void addAllByRecursion(CampaignData &campaign, size_t index, Scenarios &result)
{
    for (size_t i = 0; i < campaign.scenarios.size(); ++i) {
        ScenarioData *scenario = &campaign.scenarios[i];
        if (result.count(scenario) == 0 && needs(campaign, i, index)) {
            result.insert(scenario);
            addAllByRecursion(campaign, i, result);
        }
    }
}

constexpr int chainLength = 30000;
constexpr int unhurriedMilliseconds = 20000; // with sanitizers on a busy machine

} // namespace

class PrerequisitesTest : public QObject
{
    Q_OBJECT

private slots:
    void removingClearsOneColumn();
    void removingFromAnEmptyCampaignDoesNothing();
    void removingBeyondTheArraysDoesNothing_data();
    void removingBeyondTheArraysDoesNothing();
    void bitsBehindADeletedScenarioStay();
    void removingLeavesSharedArraysShared();
    void switchingExchangesTwoColumns();
    void switchingAColumnWithItselfChangesNothing();
    void switchingBeyondTheArraysDropsTheBit();
    void findsDirectAndIndirectPrerequisites();
    void aScenarioRequiresItselfOnlyOnACycle();
    void absentScenariosRequireNothing();
    void arrowsToAbsentScenariosAreSeen();
    void addsEveryScenarioBehind();
    void scenariosAddedAlreadyAreNotWalked();
    void addingEndsOnACycle();
    void addingBehindAnAbsentScenarioAddsNothing_data();
    void addingBehindAnAbsentScenarioAddsNothing();
    void walksAnswerAsTheModel_data();
    void walksAnswerAsTheModel();
    void columnsAnswerAsTheModelOnAThousandGraphs();
    void layeredDiamondsAreQuick();
    void aLongChainIsQuick_data();
    void aLongChainIsQuick();
    void aDenseGraphIsQuick();
    void aWalkFromEachOfManyRootsIsQuick();
};

void PrerequisitesTest::removingClearsOneColumn()
{
    CampaignData campaign = campaignOf({"0000", "1000", "1100", "0101"});
    campaign.removePrecondition(1);
    QCOMPARE(rowsOf(campaign), QStringList({"0000", "1000", "1000", "0001"}));
}

void PrerequisitesTest::removingFromAnEmptyCampaignDoesNothing()
{
    CampaignData campaign;
    campaign.removePrecondition(0);
    QVERIFY(campaign.scenarios.empty());
}

void PrerequisitesTest::removingBeyondTheArraysDoesNothing_data()
{
    QTest::addColumn<uint>("index");
    QTest::newRow("the last bit of one array only") << 3u;
    QTest::newRow("behind both") << 4u;
    QTest::newRow("past int") << 0x80000000u;
    QTest::newRow("the largest") << std::numeric_limits<uint>::max();
}

void PrerequisitesTest::removingBeyondTheArraysDoesNothing()
{
    QFETCH(uint, index);
    CampaignData campaign = campaignOf({"111", "1110", ""});
    campaign.removePrecondition(index);
    QCOMPARE(rowsOf(campaign), QStringList({"111", "1110", ""}));
}

void PrerequisitesTest::bitsBehindADeletedScenarioStay()
{
    CampaignData campaign = campaignOf({"00000", "10000", "01000", "00100", "00110"});
    campaign.scenarios[3].mapFileName = "fourth.e3m";
    campaign.scenarios.erase(campaign.scenarios.begin() + 2);
    campaign.removePrecondition(2);
    QCOMPARE(rowsOf(campaign), QStringList({"00000", "10000", "00000", "00010"}));
    // The bit means the place, where another scenario stands now.
    QVERIFY(campaign.scenarios[3].prerequisites.testBit(3));
    QCOMPARE(campaign.scenarios[2].mapFileName, QString("fourth.e3m"));
}

void PrerequisitesTest::removingLeavesSharedArraysShared()
{
    CampaignData campaign = campaignOf({"0000", "0000"});
    campaign.scenarios[1].prerequisites = campaign.scenarios[0].prerequisites;
    campaign.removePrecondition(2);
    campaign.switchPreconditions(1, 2);
    const CampaignData &unchanged = campaign;
    const void *first = unchanged.scenarios[0].prerequisites.bits();
    const void *second = unchanged.scenarios[1].prerequisites.bits();
    QCOMPARE(first, second); // the very same bytes
}

void PrerequisitesTest::switchingExchangesTwoColumns()
{
    const QStringList rows = {"00000", "01001", "00100", "01100", "10011"};
    const QStringList switched = {"00000", "00101", "01000", "01100", "10011"};
    CampaignData campaign = campaignOf(rows);
    campaign.switchPreconditions(1, 2);
    QCOMPARE(rowsOf(campaign), switched);
    campaign.switchPreconditions(2, 1);
    QCOMPARE(rowsOf(campaign), rows);
}

void PrerequisitesTest::switchingAColumnWithItselfChangesNothing()
{
    const QStringList rows = {"0000", "0010", "1101"};
    CampaignData campaign = campaignOf(rows);
    campaign.switchPreconditions(2, 2);
    campaign.switchPreconditions(9, 9);
    QCOMPARE(rowsOf(campaign), rows);
}

void PrerequisitesTest::switchingBeyondTheArraysDropsTheBit()
{
    CampaignData campaign = campaignOf({"010", "0100", "0001", "", "101"});
    campaign.switchPreconditions(1, 3);
    QCOMPARE(rowsOf(campaign), QStringList({"000", "0001", "0100", "", "101"}));
    campaign.switchPreconditions(std::numeric_limits<uint>::max(), 0);
    QCOMPARE(rowsOf(campaign), QStringList({"000", "0001", "0100", "", "001"}));
}

void PrerequisitesTest::findsDirectAndIndirectPrerequisites()
{
    enum : unsigned
    {
        a,
        b,
        c,
        other
    };
    CampaignData campaign = campaignOf({"0100", "0010", "0000", "0000"});
    QVERIFY(isReferencedBy(&campaign, b, a));
    QVERIFY(isReferencedBy(&campaign, c, b));
    QVERIFY(isReferencedBy(&campaign, c, a));
    QVERIFY(!isReferencedBy(&campaign, a, c));
    QVERIFY(!isReferencedBy(&campaign, a, b));
    QVERIFY(!isReferencedBy(&campaign, other, a));
    QVERIFY(!isReferencedBy(&campaign, a, other));
}

void PrerequisitesTest::aScenarioRequiresItselfOnlyOnACycle()
{
    CampaignData campaign = campaignOf({"0000", "0100", "1001", "0010"});
    QVERIFY(!isReferencedBy(&campaign, 0, 0));
    QVERIFY(isReferencedBy(&campaign, 1, 1)); // by its own bit
    QVERIFY(isReferencedBy(&campaign, 2, 2));
    QVERIFY(isReferencedBy(&campaign, 3, 3));
    QVERIFY(!isReferencedBy(&campaign, 1, 2)); // asked of a cycle that doesn't lead there
    QVERIFY(!isReferencedBy(&campaign, 2, 1));
}

void PrerequisitesTest::absentScenariosRequireNothing()
{
    CampaignData campaign = campaignOf({"0", "1"});
    CampaignData none;
    for (const unsigned absent : {2u, 64u, 0x80000000u, std::numeric_limits<uint>::max()}) {
        QVERIFY(!isReferencedBy(&campaign, 0, absent));
        QVERIFY(!isReferencedBy(&campaign, absent, 1));
        QVERIFY(!isReferencedBy(&none, 0, absent));
    }
    QVERIFY(!isReferencedBy(&none, 0, 0));
}

void PrerequisitesTest::arrowsToAbsentScenariosAreSeen()
{
    CampaignData campaign = campaignOf({"", "1", "0100000", "0010001"});
    QVERIFY(isReferencedBy(&campaign, 6, 3));
    QVERIFY(!isReferencedBy(&campaign, 5, 3));
    QVERIFY(!isReferencedBy(&campaign, 6, 2));
    QVERIFY(isReferencedBy(&campaign, 0, 3)); // through arrays of many sizes
    campaign.scenarios[3].prerequisites.resize(2);
    QVERIFY(!isReferencedBy(&campaign, 0, 3)); // what was cut off is gone
}

void PrerequisitesTest::addsEveryScenarioBehind()
{
    //  0 <- 1 <- 3,  0 <- 2 <- 3 <- 5,  4 alone
    CampaignData campaign = campaignOf({"000000", "1", "1", "011", "", "000100"});
    QCOMPARE(addedBehind(campaign, 0), std::vector<int>({1, 2, 3, 5}));
    QCOMPARE(addedBehind(campaign, 2), std::vector<int>({3, 5}));
    QCOMPARE(addedBehind(campaign, 5), std::vector<int>());
    QCOMPARE(addedBehind(campaign, 4), std::vector<int>());
}

void PrerequisitesTest::scenariosAddedAlreadyAreNotWalked()
{
    CampaignData campaign = campaignOf({"0000", "1000", "0100", "1000"});
    QCOMPARE(addedBehind(campaign, 0, {1}), std::vector<int>({3}));
    QCOMPARE(addedBehind(campaign, 0, {0}), std::vector<int>({1, 2, 3}));
}

void PrerequisitesTest::addingEndsOnACycle()
{
    CampaignData campaign = campaignOf({"0010", "1000", "0100", "0001"});
    QCOMPARE(addedBehind(campaign, 1), std::vector<int>({0, 1, 2}));
    QCOMPARE(addedBehind(campaign, 3), std::vector<int>({3}));
}

void PrerequisitesTest::addingBehindAnAbsentScenarioAddsNothing_data()
{
    QTest::addColumn<int>("index");
    QTest::newRow("behind the arrays") << 3;
    QTest::newRow("the largest") << std::numeric_limits<int>::max();
    QTest::newRow("below zero") << -1;
    QTest::newRow("the smallest") << std::numeric_limits<int>::min();
}

void PrerequisitesTest::addingBehindAnAbsentScenarioAddsNothing()
{
    QFETCH(int, index);
    CampaignData campaign = campaignOf({"111", "111"});
    QCOMPARE(addedBehind(campaign, index), std::vector<int>());
    CampaignData none;
    QCOMPARE(addedBehind(none, index), std::vector<int>());
}

void PrerequisitesTest::walksAnswerAsTheModel_data()
{
    QTest::addColumn<uint>("most");
    QTest::addColumn<int>("rounds");
    QTest::newRow("a thousand small graphs") << 20u << 1000;
    QTest::newRow("some larger ones") << 150u << 20;
}

void PrerequisitesTest::walksAnswerAsTheModel()
{
    QFETCH(uint, most);
    QFETCH(int, rounds);
    std::mt19937 random(most);
    for (int round = 0; round < rounds; ++round) {
        CampaignData campaign = randomCampaign(random, most);
        const QByteArray graph = rowsOf(campaign).join(' ').toLatin1();
        const auto closure = closureOf(campaign);
        for (size_t i = 0; i < closure.size(); ++i) {
            for (size_t j = 0; j < closure.size(); ++j)
                QVERIFY2(isReferencedBy(&campaign, unsigned(j), unsigned(i)) == closure[i][j],
                         graph);
            Scenarios result;
            for (ScenarioData &scenario : campaign.scenarios) {
                if (random() % 8 == 0)
                    result.insert(&scenario);
            }
            Scenarios expected = result;
            addAllByRecursion(campaign, i, expected);
            addAllWithPrecondition(campaign, int(i), result);
            QVERIFY2(result == expected, graph);
        }
    }
}

void PrerequisitesTest::columnsAnswerAsTheModelOnAThousandGraphs()
{
    std::mt19937 random(5);
    for (int round = 0; round < 1000; ++round) {
        CampaignData campaign = randomCampaign(random, 20);
        const int a = int(random() % 26);
        const int b = int(random() % 26);
        QStringList switched = rowsOf(campaign);
        QStringList removed = switched;
        for (int i = 0; i < switched.size(); ++i) {
            const int size = switched[i].size();
            const QChar bitA = a < size ? switched[i][a] : QChar('0');
            const QChar bitB = b < size ? switched[i][b] : QChar('0');
            if (a < size) {
                switched[i][a] = bitB;
                removed[i][a] = '0';
            }
            if (b < size)
                switched[i][b] = bitA;
        }
        CampaignData copy = campaign;
        copy.removePrecondition(unsigned(a));
        QCOMPARE(rowsOf(copy), removed);
        campaign.switchPreconditions(unsigned(a), unsigned(b));
        QCOMPARE(rowsOf(campaign), switched);
    }
}

// Two scenarios a layer, each behind both of the layer before: 2 to the 64th ways through.
void PrerequisitesTest::layeredDiamondsAreQuick()
{
    constexpr int layers = 64;
    CampaignData campaign;
    campaign.scenarios.resize(2 * layers + 1);
    for (int i = 0; i < 2 * layers + 1; ++i) {
        QBitArray &bits = campaign.scenarios[size_t(i)].prerequisites;
        bits = QBitArray(2 * layers + 1);
        if (i >= 2 && i < 2 * layers)
            bits.fill(true, i / 2 * 2 - 2, i / 2 * 2);
    }
    QElapsedTimer clock;
    clock.start();
    QVERIFY(isReferencedBy(&campaign, 0, 2 * layers - 1));
    QVERIFY(!isReferencedBy(&campaign, 2 * layers, 2 * layers - 1));
    QCOMPARE(addedBehind(campaign, 0).size(), size_t(2 * layers - 2));
    QVERIFY(clock.elapsed() < unhurriedMilliseconds);
}

void PrerequisitesTest::aLongChainIsQuick_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("in order") << 1;
    QTest::newRow("backwards") << chainLength - 1;
    QTest::newRow("all over the place") << 7919;
}

// The scenarios stand in the chain in steps of so many places, which is no divisor of the length.
void PrerequisitesTest::aLongChainIsQuick()
{
    QFETCH(int, step);
    CampaignData campaign;
    campaign.scenarios.resize(chainLength);
    const auto place = [step](int link) { return unsigned(qint64(link) * step % chainLength); };
    for (int link = 0; link < chainLength; ++link) {
        QBitArray &bits = campaign.scenarios[place(link)].prerequisites;
        bits = QBitArray(chainLength);
        if (link > 0)
            bits.setBit(int(place(link - 1)));
    }
    QElapsedTimer clock;
    clock.start();
    QVERIFY(isReferencedBy(&campaign, place(0), place(chainLength - 1)));
    QVERIFY(!isReferencedBy(&campaign, place(chainLength - 1), place(chainLength - 2)));
    QCOMPARE(addedBehind(campaign, int(place(0))).size(), size_t(chainLength - 1));
    QVERIFY(clock.elapsed() < unhurriedMilliseconds);
}

// Every scenario requires all before it.
void PrerequisitesTest::aDenseGraphIsQuick()
{
    CampaignData campaign;
    campaign.scenarios.resize(chainLength);
    for (int i = 0; i < chainLength; ++i) {
        QBitArray &bits = campaign.scenarios[size_t(i)].prerequisites;
        bits = QBitArray(chainLength);
        bits.fill(true, 0, i);
    }
    QElapsedTimer clock;
    clock.start();
    QVERIFY(isReferencedBy(&campaign, 0, chainLength - 1));
    QVERIFY(!isReferencedBy(&campaign, chainLength - 1, chainLength - 2));
    QCOMPARE(addedBehind(campaign, 0).size(), size_t(chainLength - 1));
    QVERIFY(clock.elapsed() < unhurriedMilliseconds);
}

// As a conversion walks: from every scenario that requires nothing. Here each has one behind it.
void PrerequisitesTest::aWalkFromEachOfManyRootsIsQuick()
{
    constexpr size_t roots = 2000;
    CampaignData campaign;
    campaign.scenarios.resize(2 * roots);
    for (size_t i = 0; i < roots; ++i) {
        QBitArray &bits = campaign.scenarios[roots + i].prerequisites;
        bits = QBitArray(int(2 * roots));
        bits.setBit(int(i));
    }
    QElapsedTimer clock;
    clock.start();
    Scenarios result;
    for (size_t i = 0; i < roots; ++i) {
        result.insert(&campaign.scenarios[i]);
        addAllWithPrecondition(campaign, int(i), result);
        QCOMPARE(result.size(), 2 * i + 2);
    }
    QVERIFY(clock.elapsed() < unhurriedMilliseconds);
}

QTEST_GUILESS_MAIN(PrerequisitesTest)
#include "prerequisites_test.moc"
