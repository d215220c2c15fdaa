// The walks through the graph of prerequisites.
#include "document/prerequisites.h"

#include "tests/document/prerequisite_graphs.h"
#include "tests/support/processor_time.h"

#include <QtTest>

#include <limits>

namespace {

using Scenarios = std::set<ScenarioData *>;

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

} // namespace

class PrerequisitesTest : public QObject
{
    Q_OBJECT

private slots:
    void findsDirectAndIndirectPrerequisites();
    void aScenarioRequiresItselfOnlyOnACycle();
    void absentScenariosRequireNothing();
    void arrowsToAbsentScenariosAreSeen();
    void addsEveryScenarioBehind();
    void scenariosAddedAlreadyAreNotWalked();
    void addingEndsOnACycle();
    void addingBehindAnAbsentScenarioAddsNothing_data();
    void addingBehindAnAbsentScenarioAddsNothing();
    void requiredByMarksAllThatIsRequired();
    void absentScenariosAreNotMarked();
    void walksAnswerAsTheModel_data();
    void walksAnswerAsTheModel();
    void layeredDiamondsAreQuick();
    void aLongChainIsQuick_data();
    void aLongChainIsQuick();
    void aDenseGraphIsQuick();
    void aWalkFromEachOfManyRootsIsQuick();
};

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

void PrerequisitesTest::requiredByMarksAllThatIsRequired()
{
    const CampaignData campaign = campaignOf({"0000", "1000", "0100", "0011"});
    QCOMPARE(rowOf(requiredBy(campaign, 0)), QString("0000"));
    QCOMPARE(rowOf(requiredBy(campaign, 1)), QString("1000"));
    QCOMPARE(rowOf(requiredBy(campaign, 2)), QString("1100"));
    QCOMPARE(rowOf(requiredBy(campaign, 3)), QString("1111")); // itself, by its own bit
    const CampaignData circle = campaignOf({"001", "100", "010"});
    QCOMPARE(rowOf(requiredBy(circle, 1)), QString("111"));
}

void PrerequisitesTest::absentScenariosAreNotMarked()
{
    const CampaignData campaign = campaignOf({"", "1", "01000001"});
    QCOMPARE(rowOf(requiredBy(campaign, 2)), QString("110"));
    for (const unsigned absent : {3u, 64u, 0x80000000u, std::numeric_limits<uint>::max()})
        QCOMPARE(rowOf(requiredBy(campaign, absent)), QString("000"));
    QCOMPARE(requiredBy(CampaignData(), 0).size(), 0);
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
            const QBitArray required = requiredBy(campaign, unsigned(i));
            QCOMPARE(size_t(required.size()), closure.size());
            for (size_t j = 0; j < closure.size(); ++j)
                QVERIFY2(required.testBit(int(j)) == closure[i][j], graph);
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
    const ProcessorTime time;
    QVERIFY(isReferencedBy(&campaign, 0, 2 * layers - 1));
    QCOMPARE(requiredBy(campaign, 2 * layers - 1).count(true), 2 * layers - 2);
    QVERIFY(!isReferencedBy(&campaign, 2 * layers, 2 * layers - 1));
    QCOMPARE(addedBehind(campaign, 0).size(), size_t(2 * layers - 2));
    QVERIFY(time.milliseconds() < unhurriedMilliseconds);
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
    const ProcessorTime time;
    QVERIFY(isReferencedBy(&campaign, place(0), place(chainLength - 1)));
    QVERIFY(!isReferencedBy(&campaign, place(chainLength - 1), place(chainLength - 2)));
    QCOMPARE(addedBehind(campaign, int(place(0))).size(), size_t(chainLength - 1));
    QVERIFY(time.milliseconds() < unhurriedMilliseconds);
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
    const ProcessorTime time;
    QVERIFY(isReferencedBy(&campaign, 0, chainLength - 1));
    QVERIFY(!isReferencedBy(&campaign, chainLength - 1, chainLength - 2));
    QCOMPARE(addedBehind(campaign, 0).size(), size_t(chainLength - 1));
    QVERIFY(time.milliseconds() < unhurriedMilliseconds);
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
    const ProcessorTime time;
    Scenarios result;
    for (size_t i = 0; i < roots; ++i) {
        result.insert(&campaign.scenarios[i]);
        addAllWithPrecondition(campaign, int(i), result);
        QCOMPARE(result.size(), 2 * i + 2);
    }
    QVERIFY(time.milliseconds() < unhurriedMilliseconds);
}

QTEST_GUILESS_MAIN(PrerequisitesTest)
#include "prerequisites_test.moc"
