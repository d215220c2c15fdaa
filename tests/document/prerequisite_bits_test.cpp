// The bits in which prerequisites are stored: single ones, columns, and as many as scenarios.
#include "document/prerequisites.h"

#include "tests/document/prerequisite_graphs.h"

#include <QtTest>

#include <limits>

namespace {

// Where a scenario's array stands in memory.
const void *bytesOf(const CampaignData &campaign, size_t scenario)
{
    return campaign.scenarios[scenario].prerequisites.bits();
}

} // namespace

class PrerequisiteBitsTest : public QObject
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
    void columnsAnswerAsTheModelOnAThousandGraphs();
    void singleBitsAreAsked();
    void singleBitsAreSet_data();
    void singleBitsAreSet();
    void settingABitLeavesSharedArraysAlone();
    void resizingGivesEveryScenarioABit();
    void resizingKeepsSharedArraysShared();
};

void PrerequisiteBitsTest::removingClearsOneColumn()
{
    CampaignData campaign = campaignOf({"0000", "1000", "1100", "0101"});
    campaign.removePrecondition(1);
    QCOMPARE(rowsOf(campaign), QStringList({"0000", "1000", "1000", "0001"}));
}

void PrerequisiteBitsTest::removingFromAnEmptyCampaignDoesNothing()
{
    CampaignData campaign;
    campaign.removePrecondition(0);
    QVERIFY(campaign.scenarios.empty());
}

void PrerequisiteBitsTest::removingBeyondTheArraysDoesNothing_data()
{
    QTest::addColumn<uint>("index");
    QTest::newRow("the last bit of one array only") << 3u;
    QTest::newRow("behind both") << 4u;
    QTest::newRow("past int") << 0x80000000u;
    QTest::newRow("the largest") << std::numeric_limits<uint>::max();
}

void PrerequisiteBitsTest::removingBeyondTheArraysDoesNothing()
{
    QFETCH(uint, index);
    CampaignData campaign = campaignOf({"111", "1110", ""});
    campaign.removePrecondition(index);
    QCOMPARE(rowsOf(campaign), QStringList({"111", "1110", ""}));
}

void PrerequisiteBitsTest::bitsBehindADeletedScenarioStay()
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

void PrerequisiteBitsTest::removingLeavesSharedArraysShared()
{
    CampaignData campaign = campaignOf({"0000", "0000"});
    campaign.scenarios[1].prerequisites = campaign.scenarios[0].prerequisites;
    campaign.removePrecondition(2);
    campaign.switchPreconditions(1, 2);
    const CampaignData &unchanged = campaign;
    QCOMPARE(bytesOf(unchanged, 0), bytesOf(unchanged, 1)); // the very same bytes
}

void PrerequisiteBitsTest::switchingExchangesTwoColumns()
{
    const QStringList rows = {"00000", "01001", "00100", "01100", "10011"};
    const QStringList switched = {"00000", "00101", "01000", "01100", "10011"};
    CampaignData campaign = campaignOf(rows);
    campaign.switchPreconditions(1, 2);
    QCOMPARE(rowsOf(campaign), switched);
    campaign.switchPreconditions(2, 1);
    QCOMPARE(rowsOf(campaign), rows);
}

void PrerequisiteBitsTest::switchingAColumnWithItselfChangesNothing()
{
    const QStringList rows = {"0000", "0010", "1101"};
    CampaignData campaign = campaignOf(rows);
    campaign.switchPreconditions(2, 2);
    campaign.switchPreconditions(9, 9);
    QCOMPARE(rowsOf(campaign), rows);
}

void PrerequisiteBitsTest::switchingBeyondTheArraysDropsTheBit()
{
    CampaignData campaign = campaignOf({"010", "0100", "0001", "", "101"});
    campaign.switchPreconditions(1, 3);
    QCOMPARE(rowsOf(campaign), QStringList({"000", "0001", "0100", "", "101"}));
    campaign.switchPreconditions(std::numeric_limits<uint>::max(), 0);
    QCOMPARE(rowsOf(campaign), QStringList({"000", "0001", "0100", "", "001"}));
}

void PrerequisiteBitsTest::columnsAnswerAsTheModelOnAThousandGraphs()
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

void PrerequisiteBitsTest::singleBitsAreAsked()
{
    const CampaignData campaign = campaignOf({"010", "100"});
    QVERIFY(hasPrerequisite(campaign.scenarios[0], 1));
    QVERIFY(!hasPrerequisite(campaign.scenarios[0], 0));
    QVERIFY(hasPrerequisite(campaign.scenarios[1], 0));
    QVERIFY(!hasPrerequisite(campaign.scenarios[1], 1));
    for (const unsigned behind : {3u, 64u, 0x80000000u, std::numeric_limits<uint>::max()})
        QVERIFY(!hasPrerequisite(campaign.scenarios[0], behind));
}

void PrerequisiteBitsTest::singleBitsAreSet_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<uint>("bit");
    QTest::addColumn<bool>("on");
    QTest::addColumn<QString>("after");
    QTest::newRow("set") << "100" << 2u << true << "101";
    QTest::newRow("clear") << "101" << 0u << false << "001";
    QTest::newRow("set again") << "101" << 0u << true << "101";
    QTest::newRow("clear again") << "101" << 1u << false << "101";
    QTest::newRow("set behind the array") << "11" << 4u << true << "11001";
    QTest::newRow("set in an empty array") << "" << 1u << true << "01";
    QTest::newRow("clear behind the array") << "11" << 4u << false << "11";
    QTest::newRow("clear past int") << "11" << 0x80000000u << false << "11";
}

void PrerequisiteBitsTest::singleBitsAreSet()
{
    QFETCH(QString, before);
    QFETCH(uint, bit);
    QFETCH(bool, on);
    CampaignData campaign = campaignOf({before});
    setPrerequisite(campaign.scenarios[0], bit, on);
    QTEST(rowsOf(campaign).first(), "after");
}

void PrerequisiteBitsTest::settingABitLeavesSharedArraysAlone()
{
    CampaignData campaign = campaignOf({"000", "000"});
    campaign.scenarios[1].prerequisites = campaign.scenarios[0].prerequisites;
    setPrerequisite(campaign.scenarios[0], 1, false); // nothing to do, so still shared
    const CampaignData &shown = campaign;
    QCOMPARE(bytesOf(shown, 0), bytesOf(shown, 1));
    setPrerequisite(campaign.scenarios[0], 1, true);
    QCOMPARE(rowsOf(campaign), QStringList({"010", "000"}));
}

void PrerequisiteBitsTest::resizingGivesEveryScenarioABit()
{
    CampaignData campaign = campaignOf({"", "1", "0101", "110111", "010"});
    resizePrerequisites(campaign);
    QCOMPARE(rowsOf(campaign), QStringList({"00000", "10000", "01010", "11011", "01000"}));
    resizePrerequisites(campaign);
    QCOMPARE(rowsOf(campaign), QStringList({"00000", "10000", "01010", "11011", "01000"}));
    campaign.scenarios.resize(3);
    resizePrerequisites(campaign);
    QCOMPARE(rowsOf(campaign), QStringList({"000", "100", "010"}));
    CampaignData none;
    resizePrerequisites(none);
    QVERIFY(none.scenarios.empty());
}

void PrerequisiteBitsTest::resizingKeepsSharedArraysShared()
{
    CampaignData campaign = campaignOf({"01", "", "", "01", "", "00000000"});
    std::vector<ScenarioData> &scenarios = campaign.scenarios;
    scenarios[1].prerequisites = scenarios[0].prerequisites;
    scenarios[2].prerequisites = scenarios[0].prerequisites;
    scenarios[4].prerequisites = scenarios[3].prerequisites;
    resizePrerequisites(campaign);
    QCOMPARE(rowsOf(campaign),
             QStringList({"010000", "010000", "010000", "010000", "010000", "000000"}));
    const CampaignData &shown = campaign;
    QCOMPARE(bytesOf(shown, 1), bytesOf(shown, 0)); // the very same bytes
    QCOMPARE(bytesOf(shown, 2), bytesOf(shown, 0));
    QCOMPARE(bytesOf(shown, 4), bytesOf(shown, 3));
    QVERIFY(bytesOf(shown, 3) != bytesOf(shown, 0));
}

QTEST_APPLESS_MAIN(PrerequisiteBitsTest)
#include "prerequisite_bits_test.moc"
