// When two start options are the same.
#include "document/start_options.h"

#include <QtTest>

Q_DECLARE_METATYPE(CmpStartingBonus)

class StartOptionsEqualityTest : public QObject
{
    Q_OBJECT

private slots:
    void everyFieldDecidesEquality();
    void bonusesAreComparedByTypeAndPayload_data();
    void bonusesAreComparedByTypeAndPayload();
    void twoBuildingsAreAlwaysEqual();
};

template<typename Value>
static void differ(Value a, Value b)
{
    Value same = a;
    QVERIFY(a == same);
    QVERIFY(!(a != same));
    QVERIFY(!(a == b));
    QVERIFY(a != b);
}

void StartOptionsEqualityTest::everyFieldDecidesEquality()
{
    differ(CmpHeroCrossover{1, 2}, CmpHeroCrossover{0, 2});
    differ(CmpHeroCrossover{1, 2}, CmpHeroCrossover{1, 0});
    differ(StartingHero{1, 2}, StartingHero{0, 2});
    differ(StartingHero{1, 2}, StartingHero{1, 0});
    differ(BonusArtifact{1, 2}, BonusArtifact{0, 2});
    differ(BonusArtifact{1, 2}, BonusArtifact{1, 0});
    differ(BonusBuilding{1}, BonusBuilding{2});
    differ(BonusCreature{1, 2, 3}, BonusCreature{0, 2, 3});
    differ(BonusCreature{1, 2, 3}, BonusCreature{1, 0, 3});
    differ(BonusCreature{1, 2, 3}, BonusCreature{1, 2, 0});
    differ(BonusPrimarySkill{1, {1, 2, 3, 4}}, BonusPrimarySkill{0, {1, 2, 3, 4}});
    differ(BonusPrimarySkill{1, {1, 2, 3, 4}}, BonusPrimarySkill{1, {0, 2, 3, 4}});
    differ(BonusPrimarySkill{1, {1, 2, 3, 4}}, BonusPrimarySkill{1, {1, 0, 3, 4}});
    differ(BonusPrimarySkill{1, {1, 2, 3, 4}}, BonusPrimarySkill{1, {1, 2, 0, 4}});
    differ(BonusPrimarySkill{1, {1, 2, 3, 4}}, BonusPrimarySkill{1, {1, 2, 3, 0}});
    differ(BonusResource{1, 2}, BonusResource{0, 2});
    differ(BonusResource{1, 2}, BonusResource{1, -2});
    differ(BonusSpell{1, 2}, BonusSpell{0, 2});
    differ(BonusSpell{1, 2}, BonusSpell{1, 0});
    differ(BonusScroll{1, 2}, BonusScroll{0, 2});
    differ(BonusScroll{1, 2}, BonusScroll{1, 0});
    differ(BonusSecondarySkill{1, 2, 3}, BonusSecondarySkill{0, 2, 3});
    differ(BonusSecondarySkill{1, 2, 3}, BonusSecondarySkill{1, 0, 3});
    differ(BonusSecondarySkill{1, 2, 3}, BonusSecondarySkill{1, 2, 0});
}

template<typename Bonus>
static CmpStartingBonus bonus(int type, Bonus value)
{
    return {quint8(type), QVariant::fromValue(value)};
}

void StartOptionsEqualityTest::bonusesAreComparedByTypeAndPayload_data()
{
    QTest::addColumn<CmpStartingBonus>("a");
    QTest::addColumn<CmpStartingBonus>("b");
    QTest::newRow("spell") << bonus(0, BonusSpell{1, 2}) << bonus(0, BonusSpell{1, 3});
    QTest::newRow("creature") << bonus(1, BonusCreature{1, 2, 3})
                              << bonus(1, BonusCreature{1, 2, 4});
    QTest::newRow("artifact") << bonus(3, BonusArtifact{1, 2}) << bonus(3, BonusArtifact{1, 3});
    QTest::newRow("scroll") << bonus(4, BonusScroll{1, 2}) << bonus(4, BonusScroll{1, 3});
    QTest::newRow("primary") << bonus(5, BonusPrimarySkill{1, {1, 2, 3, 4}})
                             << bonus(5, BonusPrimarySkill{1, {1, 2, 3, 5}});
    QTest::newRow("secondary") << bonus(6, BonusSecondarySkill{1, 2, 3})
                               << bonus(6, BonusSecondarySkill{1, 2, 1});
    QTest::newRow("resource") << bonus(7, BonusResource{1, 2}) << bonus(7, BonusResource{1, 3});
}

void StartOptionsEqualityTest::bonusesAreComparedByTypeAndPayload()
{
    QFETCH(CmpStartingBonus, a);
    QFETCH(CmpStartingBonus, b);
    differ(a, b);
    CmpStartingBonus otherType = a;
    otherType.bonusType = quint8((a.bonusType + 1) % 8);
    QVERIFY(a != otherType);
    CmpStartingBonus unknown = a;
    unknown.bonusType = 8;
    CmpStartingBonus same = unknown;
    QVERIFY(!(unknown == same)); // a type above 7 equals nothing
    QVERIFY(unknown != same);
}

void StartOptionsEqualityTest::twoBuildingsAreAlwaysEqual()
{
    CmpStartingBonus a = bonus(2, BonusBuilding{1});
    CmpStartingBonus b = bonus(2, BonusBuilding{9});
    QVERIFY(a == b);
    QVERIFY(!(a != b));
}

QTEST_GUILESS_MAIN(StartOptionsEqualityTest)
#include "start_options_equality_test.moc"
