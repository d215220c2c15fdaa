// Which players can still be given a hero to start with.
#include "scenario/starting_hero_rules.h"

#include "document/campaign_data.h"

#include <QTableWidget>
#include <QtTest>

class StartingHeroRulesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void withoutATableNoHeroIsTaken();
    void heroesOfAllRowsAreTaken();
    void theIgnoredRowsHeroIsFree();
    void onlyTheItemInColumnZeroIsIgnored();
    void aRowWithoutAnItemTakesNothing();
    void aTownThatBringsForthAHeroIsEnough();

private:
    void addRow(int player, int hero);

    ScenarioData m_scenario;
    std::unique_ptr<QTableWidget> m_table;
};

// Player 2 is a human with the heroes 7 and 9 on the map.
void StartingHeroRulesTest::init()
{
    auto header = std::make_shared<MapHeader>();
    header->players[2].canHuman = 1;
    header->players[2].heroInfo = {{7, "Sedric"}, {9, "Ysolde"}};
    m_scenario.mapHeader = header;
    m_table = std::make_unique<QTableWidget>(0, 2);
}

void StartingHeroRulesTest::addRow(int player, int hero)
{
    const int row = m_table->rowCount();
    m_table->setRowCount(row + 1);
    for (int column = 0; column < 2; ++column) {
        auto *item = new QTableWidgetItem;
        item->setData(Qt::UserRole,
                      QVariant::fromValue(StartingHero{quint8(player), quint16(hero)}));
        m_table->setItem(row, column, item);
    }
}

void StartingHeroRulesTest::withoutATableNoHeroIsTaken()
{
    QVERIFY(StartingHero_CanAddPlayer(&m_scenario, nullptr, nullptr, 2));
    QVERIFY(!StartingHero_CanAddPlayer(&m_scenario, nullptr, nullptr, 1));
}

void StartingHeroRulesTest::heroesOfAllRowsAreTaken()
{
    addRow(2, 7);
    QVERIFY(StartingHero_CanAddPlayer(&m_scenario, m_table.get(), nullptr, 2));
    addRow(5, 9); // another player's row counts too
    QVERIFY(!StartingHero_CanAddPlayer(&m_scenario, m_table.get(), nullptr, 2));
}

void StartingHeroRulesTest::theIgnoredRowsHeroIsFree()
{
    addRow(2, 7);
    addRow(2, 9);
    QVERIFY(StartingHero_CanAddPlayer(&m_scenario, m_table.get(), m_table->item(1, 0), 2));
}

void StartingHeroRulesTest::onlyTheItemInColumnZeroIsIgnored()
{
    addRow(2, 7);
    addRow(2, 9);
    QVERIFY(!StartingHero_CanAddPlayer(&m_scenario, m_table.get(), m_table->item(1, 1), 2));
}

void StartingHeroRulesTest::aRowWithoutAnItemTakesNothing()
{
    m_table->setRowCount(3);
    QVERIFY(StartingHero_CanAddPlayer(&m_scenario, m_table.get(), nullptr, 2));
}

void StartingHeroRulesTest::aTownThatBringsForthAHeroIsEnough()
{
    auto header = std::make_shared<MapHeader>(*m_scenario.mapHeader);
    header->players[2].generatesHero = 1;
    m_scenario.mapHeader = header;
    addRow(2, 7);
    addRow(2, 9);
    QVERIFY(StartingHero_CanAddPlayer(&m_scenario, m_table.get(), nullptr, 2));
}

QTEST_MAIN(StartingHeroRulesTest)
#include "starting_hero_rules_test.moc"
