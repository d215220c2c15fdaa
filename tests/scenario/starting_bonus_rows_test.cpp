// What the buttons and clicks on rows do on the page of starting bonuses.
#include "tests/scenario/bonus_page.h"

#include <QRadioButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QtTest>

namespace {

// Makes the bonus that much gold and presses a button.
NextDialog::Answer makingItGold(int amount,
                                QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok)
{
    return [amount, button](QWidget *dialog) {
        clickOn(dialog->findChild<QRadioButton *>("resourceBtn"));
        QWidget *resources = dialog->findChild<QStackedWidget *>("stackedWidget")->currentWidget();
        auto *kinds = resources->findChild<QComboBox *>("datatypeBox");
        kinds->setCurrentIndex(kinds->findText("Gold"));
        resources->findChild<QSpinBox *>("spinBox")->setValue(amount);
        clickOn(dialog->findChild<QDialogButtonBox *>("buttonBox")->button(button));
    };
}

} // namespace

class StartingBonusRowsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void addsARow();
    void aRejectedDialogAddsNothing();
    void theDialogIsForThePlayerOnShow();
    void nothingIsJudgedBehindTheDialog();
    void noFourthRowCanBeAdded();
    void aButtonThatOpenedADialogComesUpAgain();
    void editsTheSelectedRow_data();
    void editsTheSelectedRow();
    void aRejectedDialogLeavesTheRow();
    void nothingIsEditedWithoutASelection();
    void buttonsWorkWhenTheyGoDown();
    void aClickOnARowAllowsEditing();
    void removesTheSelectedRow();
    void nothingIsRemovedWithoutASelection();
    void removingOneOfThreeRowsAllowsAnother();
};

void StartingBonusRowsTest::init()
{
    fillNameTables();
}

void StartingBonusRowsTest::addsARow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda});
    {
        NextDialog dialog(makingItGold(77));
        test.click("addButton");
    }
    QCOMPARE(test.texts(), QStringList({huldaText, "Receive 77 Gold"}));
    const QTableWidgetItem *item = test.item(1, 0);
    QVERIFY(!(item->flags() & Qt::ItemIsEditable));
    QCOMPARE(item->data(Qt::UserRole).userType(), qMetaTypeId<BonusResource>());
    QCOMPARE(item->data(Qt::UserRole + 1).userType(), int(QMetaType::UChar));
    QCOMPARE(item->data(Qt::UserRole + 1).toInt(), 7);
    QCOMPARE(test.rowHeights(), QList<int>({17, 20})); // until the next save
    const StartingBonusSet set = test.saved();
    QCOMPARE(test.rowHeights(), QList<int>({17, 17}));
    QCOMPARE(set.bonuses.back().bonusData.value<BonusResource>().amount, 77);
    QVERIFY(test.button("addButton")->isEnabled());
}

void StartingBonusRowsTest::aRejectedDialogAddsNothing()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda});
    {
        NextDialog dialog(makingItGold(8, QDialogButtonBox::Cancel));
        test.click("addButton");
    }
    QCOMPARE(test.texts(), QStringList({huldaText}));
    QCOMPARE(test.enabledButtons(), QString("add"));
    test.choosePlayer("Tan"); // the page reacts to a choice again
    QCOMPARE(test.texts(), QStringList());
}

void StartingBonusRowsTest::theDialogIsForThePlayerOnShow()
{
    BonusPage test;
    test.load({{1, human()}, {2, humanWithHulda()}}, 1, {strongest});
    test.clickRow(0);
    QStringList heroes;
    const auto look = [&heroes](QWidget *dialog) {
        QWidget *page = dialog->findChild<QStackedWidget *>("stackedWidget")->currentWidget();
        heroes = textsOf(page->findChild<QComboBox *>("recipientCombobox"));
    };
    for (const char *button : {"addButton", "editButton"}) {
        const auto openedFor = [&](const QString &colour) {
            test.choosePlayer(colour);
            NextDialog dialog(lookAndChoose(look, {}, QDialogButtonBox::Cancel));
            test.click(button);
        };
        openedFor("Blue");
        QCOMPARE(heroes, QStringList("Most powerful hero"));
        openedFor("Tan");
        QCOMPARE(heroes, QStringList({"Most powerful hero", "Hulda (on map)"}));
    }
}

// The new row is made for the player who was on show before.
void StartingBonusRowsTest::nothingIsJudgedBehindTheDialog()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}, {2, human()}}, 1, {hulda});
    {
        NextDialog dialog([&](QWidget *opened) {
            test.choosePlayer("Tan");
            makingItGold(6)(opened);
        });
        test.click("addButton");
    }
    QCOMPARE(test.texts(), QStringList({huldaText, "Receive 6 Gold"}));
    test.choosePlayer("Blue");
    test.choosePlayer("Tan");
    QCOMPARE(test.texts(), QStringList({"Receive 6 Gold"}));
}

void StartingBonusRowsTest::noFourthRowCanBeAdded()
{
    BonusPage test;
    test.load({{1, human()}}, 1, {gold});
    for (const QString &buttons : {QStringLiteral("add"), QString()}) {
        NextDialog dialog(makingItGold(5));
        test.click("addButton");
        QVERIFY(dialog.came());
        QCOMPARE(test.enabledButtons(), buttons);
    }
    test.click("addButton"); // opens nothing
    QCOMPARE(test.page.getOptionCount(), 3u);
    test.page.updateUI();
    QCOMPARE(test.enabledButtons(), QString());
}

void StartingBonusRowsTest::aButtonThatOpenedADialogComesUpAgain()
{
    BonusPage test;
    test.load({{1, human()}}, 1, {gold});
    {
        NextDialog dialog(makingItGold(8, QDialogButtonBox::Cancel));
        test.click("addButton");
    }
    QVERIFY(!test.button("addButton")->isDown());
}

void StartingBonusRowsTest::editsTheSelectedRow_data()
{
    QTest::addColumn<bool>("byDoubleClick");
    QTest::newRow("button") << false;
    QTest::newRow("double click") << true;
}

void StartingBonusRowsTest::editsTheSelectedRow()
{
    QFETCH(bool, byDoubleClick);
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, strongest});
    {
        NextDialog dialog(makingItGold(9));
        if (byDoubleClick) {
            test.doubleClickRow(1);
        } else {
            test.clickRow(1);
            test.click("editButton");
        }
    }
    QCOMPARE(test.texts(), QStringList({huldaText, "Receive 9 Gold"}));
    QCOMPARE(test.item(1, 0)->data(Qt::UserRole + 1).toInt(), 7);
}

void StartingBonusRowsTest::aRejectedDialogLeavesTheRow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, strongest});
    test.clickRow(0);
    {
        NextDialog dialog(makingItGold(8, QDialogButtonBox::Cancel));
        test.click("editButton");
    }
    QCOMPARE(test.texts(), QStringList({huldaText, strongestText}));
}

void StartingBonusRowsTest::nothingIsEditedWithoutASelection()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda});
    test.clickRow(0);
    test.table()->clearSelection();
    test.click("editButton"); // would wait for its dialog
    QCOMPARE(test.texts(), QStringList({huldaText}));
}

void StartingBonusRowsTest::buttonsWorkWhenTheyGoDown()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold});
    test.clickRow(0);
    pressDown(test, "removeButton");
    QCOMPARE(test.texts(), QStringList({goldText}));
    letGo(test, "removeButton");
    QCOMPARE(test.texts(), QStringList({goldText}));
    test.clickRow(0);
    {
        NextDialog dialog(makingItGold(3));
        pressDown(test, "editButton");
        QVERIFY(dialog.came());
    }
    {
        NextDialog dialog(makingItGold(4));
        pressDown(test, "addButton");
        QVERIFY(dialog.came());
    }
    QCOMPARE(test.texts(), QStringList({"Receive 3 Gold", "Receive 4 Gold"}));
}

void StartingBonusRowsTest::aClickOnARowAllowsEditing()
{
    BonusPage test;
    test.load({{1, human()}}, 1, {gold});
    QCOMPARE(test.enabledButtons(), QString("add"));
    test.clickRow(0);
    QCOMPARE(test.enabledButtons(), QString("add edit remove"));
}

void StartingBonusRowsTest::removesTheSelectedRow()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold});
    test.clickRow(1);
    test.click("removeButton");
    QCOMPARE(test.texts(), QStringList({huldaText}));
    QCOMPARE(test.enabledButtons(), QString("add edit remove"));
    test.clickRow(0);
    test.click("removeButton");
    QCOMPARE(test.texts(), QStringList());
    QCOMPARE(test.enabledButtons(), QString("add"));
}

void StartingBonusRowsTest::nothingIsRemovedWithoutASelection()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold, strongest});
    test.clickRow(1);
    test.table()->clearSelection();
    test.click("removeButton");
    QCOMPARE(test.page.getOptionCount(), 3u);
    QCOMPARE(test.enabledButtons(), QString("edit remove"));
}

void StartingBonusRowsTest::removingOneOfThreeRowsAllowsAnother()
{
    BonusPage test;
    test.load({{1, humanWithHulda()}}, 1, {hulda, gold, strongest});
    QVERIFY(!test.button("addButton")->isEnabled());
    test.clickRow(0);
    test.click("removeButton");
    QCOMPARE(test.texts(), QStringList({goldText, strongestText}));
    QVERIFY(test.button("addButton")->isEnabled());
}

QTEST_MAIN(StartingBonusRowsTest)
#include "starting_bonus_rows_test.moc"
