// The small widgets that dialogs share.
#include "shell/custom_widgets.h"
#include "shell/dialog_look.h"
#include "shell/right_click_filter.h"
#include "tests/support/longest_wait.h"
#include "tests/support/message_boxes.h"

#include <QApplication>
#include <QDialog>
#include <QFontDatabase>
#include <QLabel>
#include <QMouseEvent>
#include <QTest>
#include <QVBoxLayout>

class CustomWidgetsTest : public QObject
{
    Q_OBJECT

private slots:
    void rightClickLeavesTheSelection();
    void rightDoubleClickIsIgnored();
    void leftDoubleClickActivates();
    void filterSwallowsRightPressAndRelease_data();
    void filterSwallowsRightPressAndRelease();
    void tableIsATable();
    void missingFontFallsBackToTheSystems();
    void installedFontIsTaken();
    void dialogTakesItsFormsSize();
    void dialogGrowsWithItsTexts();
};

namespace {

// Takes events without the loop that asks a widget's parents after it.
class OpenList : public CustomListWidget
{
public:
    using CustomListWidget::CustomListWidget;
    using CustomListWidget::mouseDoubleClickEvent;
    using CustomListWidget::mousePressEvent;
};

void fill(QListWidget &list)
{
    list.addItems({"one", "two", "three"});
    list.setCurrentRow(0);
}

} // namespace

void CustomWidgetsTest::rightClickLeavesTheSelection()
{
    OpenList list(nullptr);
    fill(list);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list, longestWait));
    const auto click = [&](int row, Qt::MouseButton button) {
        clickOn(list.viewport(), list.visualItemRect(list.item(row)).center(), button);
    };
    click(1, Qt::RightButton);
    QCOMPARE(list.currentRow(), 0);
    QVERIFY(list.item(0)->isSelected());
    click(2, Qt::LeftButton);
    QCOMPARE(list.currentRow(), 2);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(2, 2), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    list.mousePressEvent(&press);
    QVERIFY(!press.isAccepted());
}

void CustomWidgetsTest::rightDoubleClickIsIgnored()
{
    OpenList list(nullptr);
    fill(list);
    bool activated = false;
    connect(&list, &QListWidget::itemDoubleClicked, this, [&] { activated = true; });
    const QPointF place = list.visualItemRect(list.item(1)).center();
    QMouseEvent event(QEvent::MouseButtonDblClick, place, Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    list.mouseDoubleClickEvent(&event);
    QVERIFY(!event.isAccepted());
    QVERIFY(!activated);
}

void CustomWidgetsTest::leftDoubleClickActivates()
{
    OpenList list(nullptr);
    fill(list);
    list.show();
    QVERIFY(QTest::qWaitForWindowExposed(&list, longestWait));
    bool activated = false;
    connect(&list, &QListWidget::itemDoubleClicked, this, [&] { activated = true; });
    const QPoint place = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
    QVERIFY(activated);
    QCOMPARE(list.currentRow(), 1);
}

void CustomWidgetsTest::filterSwallowsRightPressAndRelease_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("swallowed");
    const int right = int(Qt::RightButton);
    const int left = int(Qt::LeftButton);
    QTest::newRow("right press") << 2 << right << true;
    QTest::newRow("right release") << 3 << right << true;
    QTest::newRow("right double click") << 4 << right << false;
    QTest::newRow("right move") << 5 << right << false;
    QTest::newRow("left press") << 2 << left << false;
    QTest::newRow("left release") << 3 << left << false;
    QTest::newRow("middle press") << 2 << int(Qt::MiddleButton) << false;
}

void CustomWidgetsTest::filterSwallowsRightPressAndRelease()
{
    QFETCH(int, type);
    QFETCH(int, button);
    QFETCH(bool, swallowed);
    RightClickFilter filter(nullptr);
    QWidget watched;
    QMouseEvent event(static_cast<QEvent::Type>(type), QPointF(1, 1),
                      static_cast<Qt::MouseButton>(button), Qt::NoButton, Qt::NoModifier);
    QCOMPARE(filter.eventFilter(&watched, &event), swallowed);
    QEvent other(QEvent::KeyPress);
    QVERIFY(!filter.eventFilter(&watched, &other));
}

void CustomWidgetsTest::tableIsATable()
{
    CustomTableWidget table(nullptr);
    QVERIFY(table.inherits("QTableWidget"));
    QCOMPARE(table.rowCount(), 0);
}

void CustomWidgetsTest::missingFontFallsBackToTheSystems()
{
    const QFont font = editorFont("No Such Font Anywhere");
    QCOMPARE(font.family(), QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
    QCOMPARE(font.pointSize(), 8);
}

void CustomWidgetsTest::installedFontIsTaken()
{
    QVERIFY(QFontDatabase().hasFamily("DejaVu Sans Mono"));
    QCOMPARE(editorFont("DejaVu Sans Mono").family(), QString("DejaVu Sans Mono"));
    QCOMPARE(editorFont("DejaVu Sans Mono").pointSize(), 8);
}

void CustomWidgetsTest::dialogTakesItsFormsSize()
{
    QDialog dialog;
    dialog.setWindowFlag(Qt::WindowContextHelpButtonHint, true);
    dialog.setFont(QFont("No Such Font Anywhere"));
    dialog.resize(300, 200);
    fixDialog(&dialog);
    QCOMPARE(dialog.minimumSize(), QSize(300, 200));
    QCOMPARE(dialog.maximumSize(), QSize(300, 200));
    QVERIFY(!(dialog.windowFlags() & Qt::WindowContextHelpButtonHint));
    QCOMPARE(dialog.font().family(),
             QFontDatabase::systemFont(QFontDatabase::GeneralFont).family());
}

void CustomWidgetsTest::dialogGrowsWithItsTexts()
{
    QDialog dialog;
    auto *layout = new QVBoxLayout(&dialog);
    auto *label = new QLabel(QString("wide ").repeated(100));
    layout->addWidget(label);
    dialog.resize(300, 200);
    fixDialog(&dialog);
    QVERIFY(dialog.width() >= label->sizeHint().width());
    QCOMPARE(dialog.height(), 200);
}

QTEST_MAIN(CustomWidgetsTest)
#include "custom_widgets_test.moc"
