// Random campaigns on other ground, held against straight models field by field.
#include "document/campaign_conversion.h"
#include "tests/document/marked_campaigns.h"

#include <QLoggingCategory>
#include <QTest>

class CampaignConversionRandomTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void mapChangeAgreesWithTheModel();
    void backgroundToMapAgreesWithTheModel();
    void mapToBackgroundAgreesWithTheModel();
    void wayThereAndBackLosesNothing();
};

namespace {

constexpr int randomCampaigns = 1000;
constexpr unsigned mostScenarios = 20;

// 1 to 20 scenarios with any prerequisites, most of them with a map.
CampaignData randomMarkedCampaign(std::mt19937 &random)
{
    CampaignData campaign;
    do
        campaign = randomCampaign(random, mostScenarios);
    while (campaign.scenarios.empty());
    for (size_t i = 0; i < campaign.scenarios.size(); ++i) {
        const QBitArray bits = campaign.scenarios[i].prerequisites;
        campaign.scenarios[i] = markedScenario(unsigned(i), random() % 4 != 0);
        campaign.scenarios[i].prerequisites = bits;
    }
    return campaign;
}

bool needs(const ScenarioData &scenario, size_t other)
{
    const QBitArray &bits = scenario.prerequisites;
    return other < size_t(bits.size()) && bits.testBit(int(other));
}

QVector<int> withMap(const CampaignData &campaign)
{
    QVector<int> places;
    for (size_t i = 0; i < campaign.scenarios.size(); ++i) {
        if (campaign.scenarios[i].mapHeader)
            places << int(i);
    }
    return places;
}

// As many places as there are regions: the rest is empty, what is too much is gone.
QVector<int> fitted(QVector<int> places, int regions)
{
    while (places.size() < regions)
        places << -1;
    return places.mid(0, regions);
}

// The bit that the scenario now at `row` has to have, its old places being these.
bool needsAfterMove(const CampaignData &before, const QVector<int> &places, int row, int bit)
{
    if (row >= places.size())
        return false;
    const ScenarioData &scenario = before.scenarios[size_t(places[row])];
    if (bit < places.size() && needs(scenario, size_t(places[bit])))
        return true;
    return !places.contains(bit) && needs(scenario, size_t(bit));
}

// Roots, then whoever requires a kept one, until none joins.
QVector<int> reachable(const CampaignData &campaign)
{
    const size_t count = campaign.scenarios.size();
    std::vector<bool> kept(count);
    for (size_t i = 0; i < count; ++i) {
        const ScenarioData &scenario = campaign.scenarios[i];
        kept[i] = scenario.mapHeader && scenario.prerequisites.count(true) == 0;
    }
    for (size_t pass = 0; pass < count; ++pass) {
        for (size_t i = 0; i < count; ++i) {
            for (size_t j = 0; j < count; ++j)
                kept[i] = kept[i] || (kept[j] && needs(campaign.scenarios[i], j));
        }
    }
    QVector<int> places;
    for (size_t i = 0; i < count; ++i) {
        if (kept[i])
            places << int(i);
    }
    return places;
}

} // namespace

void CampaignConversionRandomTest::initTestCase()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    setConversionTables();
}

void CampaignConversionRandomTest::mapChangeAgreesWithTheModel()
{
    std::mt19937 random(42);
    for (int round = 0; round < randomCampaigns; ++round) {
        const CampaignData before = randomMarkedCampaign(random);
        CampaignData after = before;
        moveToCampaignMap(after, mapOf20);
        const QVector<int> places = withMap(before);
        QCOMPARE(placesIn(before, after), fitted(places, 20));
        for (int row = 0; row < 20; ++row) {
            const QBitArray &bits = after.scenarios[size_t(row)].prerequisites;
            QCOMPARE(bits.size(), 20);
            for (int bit = 0; bit < 20; ++bit)
                QCOMPARE(bits.testBit(bit), needsAfterMove(before, places, row, bit));
        }
    }
}

void CampaignConversionRandomTest::backgroundToMapAgreesWithTheModel()
{
    std::mt19937 random(43);
    for (int round = 0; round < randomCampaigns; ++round) {
        CampaignData before = randomMarkedCampaign(random);
        before.hasMap = false;
        CampaignData after = before;
        const bool small = round % 2 != 0;
        const int regions = small ? 9 : 20;
        convertToCampaignMap(after, small ? mapOf9 : mapOf20);
        const int links = withMap(before).size();
        QCOMPARE(placesIn(before, after), fitted(withMap(before), regions));
        for (int row = 0; row < std::min(links, regions); ++row) {
            const QBitArray &bits = after.scenarios[size_t(row)].prerequisites;
            QCOMPARE(bits.size(), links);
            QCOMPARE(bits.count(true), row == 0 ? 0 : 1);
            QVERIFY(row == 0 || bits.testBit(row - 1));
        }
    }
}

void CampaignConversionRandomTest::mapToBackgroundAgreesWithTheModel()
{
    std::mt19937 random(44);
    int emptied = 0;
    for (int round = 0; round < randomCampaigns; ++round) {
        const CampaignData before = randomMarkedCampaign(random);
        CampaignData after = before;
        convertToBackground(after, 1);
        const QVector<int> kept = reachable(before);
        QCOMPARE(placesIn(before, after), fitted(kept, std::max(1, kept.size())));
        QCOMPARE(after.countOfScenarios(), unsigned(after.scenarios.size()));
        for (int i = 0; i < kept.size(); ++i)
            QCOMPARE(after.scenarios[size_t(i)].prerequisites,
                     before.scenarios[size_t(kept[i])].prerequisites);
        emptied += kept.isEmpty();
    }
    QVERIFY(emptied > 10 && emptied < randomCampaigns / 2);
}

// All scenarios with a map are kept on every way between a background and maps with room for them,
// and a chain is the same chain when it comes back.
void CampaignConversionRandomTest::wayThereAndBackLosesNothing()
{
    std::mt19937 random(45);
    for (int round = 0; round < randomCampaigns; ++round) {
        CampaignData before = randomMarkedCampaign(random);
        before.hasMap = false;
        const QVector<int> places = withMap(before);
        CampaignData campaign = before;
        convertToCampaignMap(campaign, mapOf20);
        const QStringList chain = rowsOf(campaign).mid(0, places.size());
        convertToBackground(campaign, 1);
        QCOMPARE(placesIn(before, campaign), fitted(places, std::max(1, places.size())));
        convertToCampaignMap(campaign, mapOf20);
        QCOMPARE(rowsOf(campaign).mid(0, places.size()), chain);
        moveToCampaignMap(campaign, mapOf21);
        moveToCampaignMap(campaign, mapOf20);
        QCOMPARE(placesIn(before, campaign), fitted(places, 20));
        for (int i = 0; i < places.size(); ++i)
            QCOMPARE(rowOf(campaign.scenarios[size_t(i)].prerequisites).left(places.size()),
                     chain[i]);
        convertToBackground(campaign, 1);
        QCOMPARE(placesIn(before, campaign), fitted(places, std::max(1, places.size())));
    }
}

QTEST_MAIN(CampaignConversionRandomTest)
#include "campaign_conversion_random_test.moc"
