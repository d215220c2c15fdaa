// The pages of the bonus dialog, each by itself: how a row's bonus shows, and the range of numbers.
#include "tests/scenario/bonus_page_fixture.h"

#include <QSpinBox>

class BonusPageValuesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void numbersHaveTheirRange_data();
    void numbersHaveTheirRange();
    void rowsOfTheKindShow_data();
    void rowsOfTheKindShow();
    void rowsOfOtherKindsDoNotShow_data();
    void rowsOfOtherKindsDoNotShow();
    void numbersBeyondTheirRangeAreCut();
    void anySkillAboveZeroWillDo();

private:
    std::unique_ptr<PageFixture> fixture;
};

void BonusPageValuesTest::init()
{
    fillBonusTables();
    fixture = std::make_unique<PageFixture>();
}

void BonusPageValuesTest::numbersHaveTheirRange_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QByteArray>("box");
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("most");
    QTest::newRow("creatures") << creatures() << QByteArray("quantitySpinbox") << 1 << 9999;
    QTest::newRow("resource") << resources() << QByteArray("spinBox") << 1 << 99999;
    for (const char *skill : {"spinBox", "spinBox_2", "spinBox_3", "spinBox_4"})
        QTest::newRow(skill) << primarySkills() << QByteArray(skill) << 0 << 99;
}

void BonusPageValuesTest::numbersHaveTheirRange()
{
    QFETCH(MakePage, page);
    QFETCH(QByteArray, box);
    QFETCH(int, least);
    QFETCH(int, most);
    fixture->make(page, townPlayer);
    auto *number = fixture->find<QSpinBox>(box);
    QCOMPARE(number->value(), least);
    number->setValue(least - 1);
    QCOMPARE(number->value(), least);
    number->setValue(most);
    QCOMPARE(number->value(), most);
    number->setValue(most + 1);
    QCOMPARE(number->value(), most);
}

void BonusPageValuesTest::rowsOfTheKindShow_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<int>("type");
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<QStringList>("shown"); // name=text or number
    QTest::newRow("creatures") << creatures() << 1
                               << QVariant::fromValue(BonusCreature{3, 140, 4321})
                               << QStringList{"recipientCombobox=Queen Dessa (on map)",
                                              "creatureCombobox=Marsh hag", "quantitySpinbox=4321"};
    const QStringList spell{"recipientCombobox=Berin (on map)", "item1combobox=Zephyr"};
    QTest::newRow("a spell") << spells << 0 << QVariant::fromValue(BonusSpell{1, 2}) << spell;
    QTest::newRow("a scroll") << spells << 4 << QVariant::fromValue(BonusScroll{1, 2}) << spell;
    QTest::newRow("an artifact") << artifacts << 3
                                 << QVariant::fromValue(BonusArtifact{0xFFFE, 150})
                                 << QStringList{"recipientCombobox=Generated hero (in town)",
                                                "item1combobox=Thorn crown"};
    QTest::newRow("a secondary skill")
        << secondarySkills << 6 << QVariant::fromValue(BonusSecondarySkill{1, 9, 3})
        << QStringList{"recipientCombobox=Berin (on map)", "item1combobox=Lore",
                       "item2combobox=Master"};
    QTest::newRow("primary skills")
        << primarySkills() << 5 << QVariant::fromValue(BonusPrimarySkill{3, {{1, 22, 0, 99}}})
        << QStringList{"datatypeBox=Queen Dessa (on map)", "spinBox=1", "spinBox_2=22",
                       "spinBox_3=0", "spinBox_4=99"};
    QTest::newRow("a resource") << resources() << 7 << QVariant::fromValue(BonusResource{6, 54321})
                                << QStringList{"datatypeBox=Gold", "spinBox=54321"};
    QTest::newRow("a group of resources")
        << resources() << 7 << QVariant::fromValue(BonusResource{0xFE, 2})
        << QStringList{"datatypeBox=Precious goods", "spinBox=2"};
    QTest::newRow("a building") << buildings << 2 << QVariant::fromValue(BonusBuilding{20})
                                << QStringList{"recipientCombobox=Vault"};
}

void BonusPageValuesTest::rowsOfTheKindShow()
{
    QFETCH(MakePage, page);
    QFETCH(int, type);
    QFETCH(QVariant, record);
    QFETCH(QStringList, shown);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(type)));
    fixture->make(page, townPlayer, &item);
    for (const QString &control : shown) {
        const QByteArray name = control.section('=', 0, 0).toLatin1();
        const auto *box = fixture->parent->findChild<QComboBox *>(name);
        const QString text =
            box ? box->currentText() : QString::number(fixture->find<QSpinBox>(name)->value());
        QCOMPARE(name + "=" + text, control);
    }
}

void BonusPageValuesTest::rowsOfOtherKindsDoNotShow_data()
{
    QTest::addColumn<MakePage>("page");
    QTest::addColumn<QVector<int>>("own");
    QTest::newRow("creatures") << creatures() << QVector<int>{1};
    QTest::newRow("spells") << spells << QVector<int>{0, 4};
    QTest::newRow("artifacts") << artifacts << QVector<int>{3};
    QTest::newRow("secondary skills") << secondarySkills << QVector<int>{6};
    QTest::newRow("primary skills") << primarySkills() << QVector<int>{5};
    QTest::newRow("resources") << resources() << QVector<int>{7};
    QTest::newRow("buildings") << buildings << QVector<int>{2};
}

// A payload of another kind counts as all zeros, and hero 0 isn't among this player's: so the row
// was loaded where a choice is gone or a number has changed.
void BonusPageValuesTest::rowsOfOtherKindsDoNotShow()
{
    QFETCH(MakePage, page);
    QFETCH(QVector<int>, own);
    EditorData::resources.erase(0);
    for (int type = 0; type < 8; ++type) {
        QTableWidgetItem item;
        item.setData(Qt::UserRole, QString("neither kind"));
        item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(type)));
        const QWidget *made = fixture->make(page, townPlayer, &item);
        bool loaded = false;
        for (const QComboBox *box : made->findChildren<QComboBox *>())
            loaded |= !box->isHidden() && box->currentIndex() < 0;
        QCOMPARE(loaded, own.contains(type));
    }
}

void BonusPageValuesTest::numbersBeyondTheirRangeAreCut()
{
    QTableWidgetItem item;
    fillRow(item, 1, BonusCreature{3, 0, 65535});
    fixture->make(creatures(), townPlayer, &item);
    QCOMPARE(fixture->find<QSpinBox>("quantitySpinbox")->value(), 9999);
    fillRow(item, 1, BonusCreature{3, 0, 0});
    fixture->make(creatures(), townPlayer, &item);
    QCOMPARE(fixture->find<QSpinBox>("quantitySpinbox")->value(), 1);
    fillRow(item, 5, BonusPrimarySkill{3, {{255, 100, 99, 0}}});
    fixture->make(primarySkills(), townPlayer, &item);
    QCOMPARE(fixture->find<QSpinBox>("spinBox")->value(), 99);
    QCOMPARE(fixture->find<QSpinBox>("spinBox_2")->value(), 99);
    QCOMPARE(fixture->find<QSpinBox>("spinBox_3")->value(), 99);
    QCOMPARE(fixture->find<QSpinBox>("spinBox_4")->value(), 0);
    fillRow(item, 7, BonusResource{6, -5});
    fixture->make(resources(), townPlayer, &item);
    QCOMPARE(fixture->find<QSpinBox>("spinBox")->value(), 1);
}

void BonusPageValuesTest::anySkillAboveZeroWillDo()
{
    auto *page = static_cast<bonus_value_dlg *>(fixture->make(primarySkills(), townPlayer));
    QVERIFY(!page->skillCheckout());
    for (const char *name : {"spinBox", "spinBox_2", "spinBox_3", "spinBox_4"}) {
        auto *box = fixture->find<QSpinBox>(name);
        box->setValue(1);
        QVERIFY2(page->skillCheckout(), name);
        box->setValue(0);
        QVERIFY2(!page->skillCheckout(), name);
    }
}

QTEST_MAIN(BonusPageValuesTest)
#include "bonus_page_values_test.moc"
