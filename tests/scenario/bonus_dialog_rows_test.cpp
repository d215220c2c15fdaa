// What the bonus dialog writes into a row, and what a row shows in it: every kind made, edited and
// cancelled.
#include "tests/scenario/bonus_dialog_fixture.h"

#include "shell/dialog_look.h"

#include <QTableWidget>

class BonusDialogRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();

    void makesEveryKind_data();
    void makesEveryKind();
    void editsEveryKind_data();
    void editsEveryKind();
    void cancelLeavesTheRow_data();
    void cancelLeavesTheRow();
    void aRowCanChangeItsKind();
    void spellsAndScrollsShareTheirChoice_data();
    void spellsAndScrollsShareTheirChoice();
    void rowsInATableAreWrittenToo();
    void textsAreThoseOfThePlayer_data();
    void textsAreThoseOfThePlayer();
    void numbersAreCutToTheirFields_data();
    void numbersAreCutToTheirFields();
    void whatAListLacksBecomesZero_data();
    void whatAListLacksBecomesZero();
    void anUnknownKindOpensAsASpell();

private:
    ScenarioData scenario;
};

void BonusDialogRowsTest::initTestCase()
{
    QApplication::setFont(editorFont());
    letListsReactAtOnce();
}

void BonusDialogRowsTest::init()
{
    fillBonusTables();
    scenario = bonusScenario();
}

void BonusDialogRowsTest::makesEveryKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("choices"); // box=text or spin box=number
    QTest::addColumn<QStringList>("row");
    const auto row = [](int kind) -> QTestData & {
        return QTest::newRow(kinds[std::size_t(kind)].button) << kind;
    };
    row(0) << QStringList{"recipientCombobox=Queen Dessa (on map)", "item1combobox=Zephyr"}
           << QStringList{"0", "BonusSpell 3 2", "Give Zephyr spell to Queen Dessa"};
    row(1) << QStringList{"recipientCombobox=Berin (on map)", "creatureCombobox=Marsh hag",
                          "quantitySpinbox=1234"}
           << QStringList{"1", "BonusCreature 1 140 1234", "Give 1234 Marsh hag to Berin"};
    row(2) << QStringList{"recipientCombobox=Warren"}
           << QStringList{"2", "BonusBuilding 30", "Build Warren at Main Town"};
    row(3) << QStringList{"recipientCombobox=Generated hero (in town)", "item1combobox=Thorn crown"}
           << QStringList{"3", "BonusArtifact 65534 150",
                          "Give Thorn crown to Generated hero (in town)"};
    row(4) << QStringList{"recipientCombobox=Berin (on map)", "item1combobox=Ember"}
           << QStringList{"4", "BonusScroll 1 5", "Give Ember Spell Scroll to Berin"};
    row(5) << QStringList{"datatypeBox=Queen Dessa (on map)", "spinBox=1", "spinBox_3=22",
                          "spinBox_4=99"}
           << QStringList{"5", "BonusPrimarySkill 3 1 0 22 99",
                          "Give +1 Attack, +22 Power, +99 Knowledge to Queen Dessa"};
    row(6) << QStringList{"recipientCombobox=Berin (on map)", "item1combobox=Lore",
                          "item2combobox=Adept"}
           << QStringList{"6", "BonusSecondarySkill 1 9 2", "Give Adept Lore to Berin"};
    row(7) << QStringList{"datatypeBox=Precious goods", "spinBox=99999"}
           << QStringList{"7", "BonusResource 254 99999", "Receive 99999 Precious goods"};
}

void BonusDialogRowsTest::makesEveryKind()
{
    QFETCH(int, kind);
    QFETCH(QStringList, choices);
    OpenDialog open(scenario, townPlayer);
    open.clickKind(kind);
    makeChoices(open, choices);
    clickOn(open.ok());
    QCOMPARE(open.dialog.result(), int(QDialog::Accepted));
    QVERIFY(!open.dialog.isVisible());
    QTableWidgetItem item;
    open.dialog.updateBonus(&item);
    QTEST(told(item), "row");
}

void BonusDialogRowsTest::editsEveryKind_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<QStringList>("kept"); // accepted as it is
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<QStringList>("changed");
    const auto row = [](int kind) -> QTestData & {
        return QTest::newRow(kinds[std::size_t(kind)].button) << kind;
    };
    row(0) << QVariant::fromValue(BonusSpell{1, 5})
           << QStringList{"0", "BonusSpell 1 5", "Give Ember spell to Berin"}
           << QStringList{"item1combobox=Mist"}
           << QStringList{"0", "BonusSpell 1 0", "Give Mist spell to Berin"};
    row(1) << QVariant::fromValue(BonusCreature{3, 0, 9999})
           << QStringList{"1", "BonusCreature 3 0 9999", "Give 9999 Spearman to Queen Dessa"}
           << QStringList{"recipientCombobox=Most powerful hero"}
           << QStringList{"1", "BonusCreature 65533 0 9999",
                          "Give 9999 Spearman to Most powerful hero"};
    row(2) << QVariant::fromValue(BonusBuilding{7})
           << QStringList{"2", "BonusBuilding 7", "Build Tavern at Main Town"}
           << QStringList{"recipientCombobox=Yard"}
           << QStringList{"2", "BonusBuilding 5", "Build Yard at Main Town"};
    row(3) << QVariant::fromValue(BonusArtifact{0xFFFD, 151})
           << QStringList{"3", "BonusArtifact 65533 151", "Give Ash banner to Most powerful hero"}
           << QStringList{"item1combobox=Owl brooch"}
           << QStringList{"3", "BonusArtifact 65533 4", "Give Owl brooch to Most powerful hero"};
    row(4) << QVariant::fromValue(BonusScroll{3, 2})
           << QStringList{"4", "BonusScroll 3 2", "Give Zephyr Spell Scroll to Queen Dessa"}
           << QStringList{"recipientCombobox=Berin (on map)"}
           << QStringList{"4", "BonusScroll 1 2", "Give Zephyr Spell Scroll to Berin"};
    row(5) << QVariant::fromValue(BonusPrimarySkill{1, {{0, 4, 0, 0}}})
           << QStringList{"5", "BonusPrimarySkill 1 0 4 0 0", "Give +4 Defense to Berin"}
           << QStringList{"spinBox_2=0", "spinBox=7"}
           << QStringList{"5", "BonusPrimarySkill 1 7 0 0 0", "Give +7 Attack to Berin"};
    row(6) << QVariant::fromValue(BonusSecondarySkill{0xFFFE, 1, 3})
           << QStringList{"6", "BonusSecondarySkill 65534 1 3",
                          "Give Master Archery to Generated hero (in town)"}
           << QStringList{"item2combobox=Novice"}
           << QStringList{"6", "BonusSecondarySkill 65534 1 1",
                          "Give Novice Archery to Generated hero (in town)"};
    row(7) << QVariant::fromValue(BonusResource{0xFD, 12})
           << QStringList{"7", "BonusResource 253 12", "Receive 12 Wood and ore"}
           << QStringList{"datatypeBox=Gold", "spinBox=500"}
           << QStringList{"7", "BonusResource 6 500", "Receive 500 Gold"};
}

void BonusDialogRowsTest::editsEveryKind()
{
    QFETCH(int, kind);
    QFETCH(QVariant, record);
    QFETCH(QStringList, choices);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(kind)));
    {
        OpenDialog open(scenario, townPlayer, &item);
        QCOMPARE(open.dialog.getBonusType(), kind);
        QVERIFY(open.button(kind)->isChecked());
        clickOn(open.ok());
        QCOMPARE(open.dialog.result(), int(QDialog::Accepted));
        open.dialog.updateBonus(&item);
        QTEST(told(item), "kept");
    }
    OpenDialog open(scenario, townPlayer, &item);
    makeChoices(open, choices);
    clickOn(open.ok());
    QCOMPARE(open.dialog.result(), int(QDialog::Accepted));
    open.dialog.updateBonus(&item);
    QTEST(told(item), "changed");
}

void BonusDialogRowsTest::cancelLeavesTheRow_data()
{
    editsEveryKind_data();
}

void BonusDialogRowsTest::cancelLeavesTheRow()
{
    QFETCH(int, kind);
    QFETCH(QVariant, record);
    QFETCH(QStringList, choices);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(kind)));
    item.setText("as it was");
    const QStringList before = told(item);
    OpenDialog open(scenario, townPlayer, &item);
    makeChoices(open, choices);
    clickOn(open.cancel());
    QCOMPARE(open.dialog.result(), int(QDialog::Rejected));
    QVERIFY(!open.dialog.isVisible());
    QCOMPARE(told(item), before);
}

void BonusDialogRowsTest::aRowCanChangeItsKind()
{
    QTableWidgetItem item;
    fillRow(item, 3, BonusArtifact{1, 150});
    OpenDialog open(scenario, townPlayer, &item);
    open.clickKind(7);
    clickOn(open.ok());
    open.dialog.updateBonus(&item);
    QCOMPARE(told(item), (QStringList{"7", "BonusResource 0 1", "Receive 1 Wood"}));
}

void BonusDialogRowsTest::spellsAndScrollsShareTheirChoice_data()
{
    QTest::addColumn<int>("stored");
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<int>("other");
    QTest::addColumn<QString>("written");
    QTest::newRow("a spell becomes a scroll")
        << 0 << QVariant::fromValue(BonusSpell{3, 2}) << 4 << "BonusScroll 3 2";
    QTest::newRow("a scroll becomes a spell")
        << 4 << QVariant::fromValue(BonusScroll{3, 2}) << 0 << "BonusSpell 3 2";
}

void BonusDialogRowsTest::spellsAndScrollsShareTheirChoice()
{
    QFETCH(int, stored);
    QFETCH(QVariant, record);
    QFETCH(int, other);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(stored)));
    OpenDialog open(scenario, townPlayer, &item);
    open.clickKind(other);
    open.dialog.updateBonus(&item);
    QTEST(told(item.data(Qt::UserRole)), "written");
}

void BonusDialogRowsTest::rowsInATableAreWrittenToo()
{
    QTableWidget table(1, 1);
    auto *item = new QTableWidgetItem;
    table.setItem(0, 0, item);
    fillRow(*item, 7, BonusResource{2, 30});
    OpenDialog open(scenario, townPlayer, item);
    open.dialog.updateBonus(item);
    QCOMPARE(told(*table.item(0, 0)), (QStringList{"7", "BonusResource 2 30", "Receive 30 Ore"}));
}

void BonusDialogRowsTest::textsAreThoseOfThePlayer_data()
{
    QTest::addColumn<unsigned>("player");
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("choice");
    QTest::addColumn<QString>("text");
    QTest::newRow("a building of the town") << unsigned(lateTown) << 2 << "recipientCombobox=Crane"
                                            << "Build Crane at Main Town";
    QTest::newRow("a hero on the map")
        << unsigned(townless) << 0 << "recipientCombobox=Elbrec (on map)"
        << "Give Aegis spell to Elbrec";
}

void BonusDialogRowsTest::textsAreThoseOfThePlayer()
{
    QFETCH(unsigned, player);
    QFETCH(int, kind);
    QFETCH(QString, choice);
    OpenDialog open(scenario, player);
    open.clickKind(kind);
    makeChoices(open, {choice});
    QTableWidgetItem item;
    open.dialog.updateBonus(&item);
    QTEST(item.text(), "text");
}

void BonusDialogRowsTest::numbersAreCutToTheirFields_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QStringList>("choices");
    QTest::addColumn<QString>("record");
    QTest::newRow("a spell") << 0 << QStringList{"item1combobox=Far"} << "BonusSpell 65533 44";
    QTest::newRow("a scroll") << 4 << QStringList{"item1combobox=Far"} << "BonusScroll 65533 44";
    QTest::newRow("a creature") << 1 << QStringList{"creatureCombobox=Far"}
                                << "BonusCreature 65533 7 1";
    QTest::newRow("a building") << 2 << QStringList{"recipientCombobox=Far"} << "BonusBuilding 5";
    QTest::newRow("an artifact") << 3 << QStringList{"item1combobox=Far"}
                                 << "BonusArtifact 65533 4464";
    QTest::newRow("a skill") << 6 << QStringList{"item1combobox=Far", "item2combobox=Farther"}
                             << "BonusSecondarySkill 65533 4 1";
    QTest::newRow("a resource") << 7 << QStringList{"datatypeBox=Far"} << "BonusResource 3 1";
}

void BonusDialogRowsTest::numbersAreCutToTheirFields()
{
    QFETCH(int, kind);
    QFETCH(QStringList, choices);
    EditorData::spells[300] = "Far";
    EditorData::creatures[65536 + 7] = "Far";
    EditorData::creature_ordering.push_back(65536 + 7);
    EditorData::buildings[2][256 + 5] = "Far";
    EditorData::artifacts[70000] = "Far";
    EditorData::secondarySkills[260] = "Far";
    EditorData::skillLevels[257] = "Farther";
    EditorData::resources[259] = "Far";
    OpenDialog open(scenario, townPlayer);
    open.clickKind(kind);
    makeChoices(open, choices);
    QTableWidgetItem item;
    open.dialog.updateBonus(&item);
    QTEST(told(item.data(Qt::UserRole)), "record");
}

void BonusDialogRowsTest::whatAListLacksBecomesZero_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVariant>("record");
    QTest::addColumn<QStringList>("cleared"); // boxes without a choice
    QTest::addColumn<QString>("written");
    const auto row = [](int kind) -> QTestData & {
        return QTest::newRow(kinds[std::size_t(kind)].button) << kind;
    };
    const QStringList heroAndItem{"recipientCombobox", "item1combobox"};
    row(0) << QVariant::fromValue(BonusSpell{4, 77}) << heroAndItem << "BonusSpell 0 0";
    row(1) << QVariant::fromValue(BonusCreature{4, 77, 5})
           << QStringList{"recipientCombobox", "creatureCombobox"} << "BonusCreature 0 0 5";
    row(2) << QVariant::fromValue(BonusBuilding{77}) << QStringList{"recipientCombobox"}
           << "BonusBuilding 0";
    row(3) << QVariant::fromValue(BonusArtifact{4, 3}) << heroAndItem << "BonusArtifact 0 0";
    row(4) << QVariant::fromValue(BonusScroll{0xFFFF, 77}) << heroAndItem << "BonusScroll 0 0";
    row(5) << QVariant::fromValue(BonusPrimarySkill{4, {{1, 2, 3, 4}}})
           << QStringList{"datatypeBox"} << "BonusPrimarySkill 0 1 2 3 4";
    row(6) << QVariant::fromValue(BonusSecondarySkill{4, 77, 78})
           << QStringList{"recipientCombobox", "item1combobox", "item2combobox"}
           << "BonusSecondarySkill 0 0 0";
    row(7) << QVariant::fromValue(BonusResource{77, 5}) << QStringList{"datatypeBox"}
           << "BonusResource 0 5";
}

void BonusDialogRowsTest::whatAListLacksBecomesZero()
{
    QFETCH(int, kind);
    QFETCH(QVariant, record);
    QFETCH(QStringList, cleared);
    QTableWidgetItem item;
    item.setData(Qt::UserRole, record);
    item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(kind)));
    OpenDialog open(scenario, townPlayer, &item);
    QCOMPARE(open.dialog.getBonusType(), kind);
    for (const QString &name : cleared)
        QCOMPARE(open.box(name.toLatin1())->currentIndex(), -1);
    clickOn(open.ok());
    QCOMPARE(open.dialog.result(), int(QDialog::Accepted));
    open.dialog.updateBonus(&item);
    QTEST(told(item.data(Qt::UserRole)), "written");
}

void BonusDialogRowsTest::anUnknownKindOpensAsASpell()
{
    for (const int kind : {8, 255}) {
        QTableWidgetItem item;
        item.setData(Qt::UserRole + 1, QVariant::fromValue(uchar(kind)));
        OpenDialog open(scenario, townPlayer, &item);
        QCOMPARE(open.dialog.getBonusType(), 0);
        QVERIFY(open.button(0)->isChecked());
    }
}

QTEST_MAIN(BonusDialogRowsTest)
#include "bonus_dialog_rows_test.moc"
