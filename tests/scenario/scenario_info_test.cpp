// The scenario dialog as a host: its controls, its tabs, and what it does to the campaign.
#include "tests/scenario/scenario_fixture.h"

class ScenarioInfoTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void listNamesTheScenarios_data();
    void listNamesTheScenarios();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

void ScenarioInfoTest::initTestCase()
{
    fixture = std::make_unique<ScenarioFixture>();
}

void ScenarioInfoTest::init()
{
    fixture->reset();
}

void ScenarioInfoTest::listNamesTheScenarios_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QStringList>("texts");
    QTest::newRow("regions") << true
                             << QStringList{QString::fromUtf8("one.e3m — Alder Bay"),
                                            QString::fromUtf8("Empty — Birch Hill"),
                                            QString::fromUtf8("three.e3m — Cedar Fen")};
    QTest::newRow("a chain") << false << QStringList{"1. one.e3m", "2. Empty", "3. three.e3m"};
}

void ScenarioInfoTest::listNamesTheScenarios()
{
    QFETCH(bool, hasMap);
    CampaignData campaign = campaignOf(hasMap, {"one", "", "three"});
    OpenScenarioDialog open(campaign);
    QTEST(open.texts(), "texts");
    for (int row = 0; row < open.list()->count(); ++row)
        QCOMPARE(open.list()->item(row)->data(Qt::UserRole), QVariant(row));
}

QTEST_MAIN(ScenarioInfoTest)
#include "scenario_info_test.moc"
