// The scenario dialog without a mouse: every control is reached in the order in which it is seen,
// and keys do what clicks do.
#include "tests/scenario/general_tab.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QTabBar>

class ScenarioInfoKeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { fixture = std::make_unique<ScenarioFixture>(); }
    void init() { fixture->reset(); }

    void tabGoesFromTheListThroughThePageToTheButtons_data();
    void tabGoesFromTheListThroughThePageToTheButtons();
    void everyPageComesBeforeTheButtons_data();
    void everyPageComesBeforeTheButtons();
    void arrowKeysSelectScenarios();
    void spaceTogglesAPrerequisite();
    void spaceLeavesImpliedPrerequisites();
    void keysOfTheListChangeNoScenario_data();
    void keysOfTheListChangeNoScenario();
    void spaceMovesAScenarioToTheTop();
    void spaceDeletesDownToOne();
    void keysAndTitleBarCloseTheDialog_data();
    void keysAndTitleBarCloseTheDialog();

private:
    std::unique_ptr<ScenarioFixture> fixture;
};

namespace {

constexpr int mostControls = 100;

void press(GeneralTab &open, int key)
{
    QTest::keyClick(open.dialog.windowHandle(), Qt::Key(key));
}

QString nameOf(const QWidget *widget)
{
    if (!widget)
        return "nothing";
    if (widget->objectName() == "qt_tabwidget_tabbar")
        return "tabs";
    if (const auto *box = qobject_cast<const QDialogButtonBox *>(widget->parentWidget())) {
        for (const auto button : {QDialogButtonBox::Ok, QDialogButtonBox::Cancel}) {
            if (widget == box->button(button))
                return button == QDialogButtonBox::Ok ? "OK" : "Cancel";
        }
    }
    return widget->objectName();
}

// The controls in the order of the Tab key, from the one that has the focus until it comes back.
QStringList controlsByTab(GeneralTab &open)
{
    QStringList names;
    const QWidget *first = open.dialog.focusWidget();
    do {
        names << nameOf(open.dialog.focusWidget());
        press(open, Qt::Key_Tab);
    } while (open.dialog.focusWidget() != first && names.size() < mostControls);
    return names;
}

} // namespace

void ScenarioInfoKeyboardTest::tabGoesFromTheListThroughThePageToTheButtons_data()
{
    QTest::addColumn<bool>("hasMap");
    QTest::addColumn<QStringList>("order");
    const QStringList ends{"OK", "Cancel"};
    QTest::newRow("regions") << true
                             << QStringList{"listWidget",
                                            "upBtn",
                                            "downBtn",
                                            "tabs",
                                            "regionColorCombobox",
                                            "refreshButton",
                                            "exportButton",
                                            "removeButton",
                                            "difficultyCombobox",
                                            "prereqListWidget",
                                            "regionTextEdit"} +
                                    ends;
    QTest::newRow("a chain") << false
                             << QStringList{"listWidget",
                                            "upBtn",
                                            "downBtn",
                                            "addBtn",
                                            "deleteBtn",
                                            "deleteAllBtn",
                                            "tabs",
                                            "refreshButton",
                                            "exportButton",
                                            "removeButton",
                                            "difficultyCombobox"} +
                                    ends;
}

void ScenarioInfoKeyboardTest::tabGoesFromTheListThroughThePageToTheButtons()
{
    QFETCH(bool, hasMap);
    CampaignData campaign = campaignOf(hasMap, {"a", "b", "c"});
    GeneralTab open(campaign, 1);
    QTEST(controlsByTab(open), "order");
}

void ScenarioInfoKeyboardTest::everyPageComesBeforeTheButtons_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<QStringList>("controls"); // some of the page
    QTest::newRow("prologue") << 1 << QStringList();
    QTest::newRow("epilogue") << 2 << QStringList();
    QTest::newRow("crossover") << 3 << QStringList{"experienceComboBox", "creaturesListWidget"};
    QTest::newRow("start options") << 4 << QStringList{"startingBonusBtn", "addButton"};
}

void ScenarioInfoKeyboardTest::everyPageComesBeforeTheButtons()
{
    QFETCH(int, page);
    QFETCH(QStringList, controls);
    CampaignData campaign = campaignOf(false, {"a", "b", "c"});
    GeneralTab open(campaign, 1);
    open.tabs()->tabBar()->setFocus();
    for (int i = 0; i < page; ++i)
        press(open, Qt::Key_Right);
    QCOMPARE(open.tabs()->currentIndex(), page);
    const QStringList order = controlsByTab(open);
    QCOMPARE(order.first(), QString("tabs"));
    for (const QString &control : controls) {
        QVERIFY2(order.contains(control), qPrintable(control));
        QVERIFY2(order.indexOf(control) < order.indexOf("OK"), qPrintable(control));
    }
    QCOMPARE(order.mid(order.indexOf("OK")),
             QStringList({"OK", "Cancel", "listWidget", "upBtn", "downBtn", "addBtn", "deleteBtn",
                          "deleteAllBtn"}));
}

void ScenarioInfoKeyboardTest::arrowKeysSelectScenarios()
{
    CampaignData campaign = campaignOf(true, {"a", "", "c"});
    GeneralTab open(campaign);
    for (const char *name : {"Birch Hill", "Cedar Fen", "Cedar Fen"}) {
        press(open, Qt::Key_Down);
        QCOMPARE(open.labelText("regionNameLabelMain"), QString(name));
    }
    press(open, Qt::Key_Home);
    QCOMPARE(open.labelText("regionNameLabelMain"), QString("Alder Bay"));
    QCOMPARE(open.dialog.getCurrentRegion(), 0u);
    QVERIFY(!open.dialog.hasChanged());
}

void ScenarioInfoKeyboardTest::spaceTogglesAPrerequisite()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    GeneralTab open(campaign);
    open.find<QComboBox>("difficultyCombobox")->setFocus();
    press(open, Qt::Key_Tab);
    QCOMPARE(open.dialog.focusWidget(), open.prerequisites());
    press(open, Qt::Key_Space);
    QCOMPARE(open.shownPrerequisites(), QStringList({"1 checked", "2 free"}));
    QCOMPARE(open.storedFor(0), QList<int>({1}));
    QVERIFY(open.dialog.hasChanged());
    press(open, Qt::Key_Down);
    press(open, Qt::Key_Space);
    QCOMPARE(open.storedFor(0), QList<int>({1, 2}));
    press(open, Qt::Key_Up);
    press(open, Qt::Key_Space);
    QCOMPARE(open.shownPrerequisites(), QStringList({"1 free", "2 checked"}));
    QCOMPARE(open.storedFor(0), QList<int>({2}));
}

// The first is implied by the second, so the keys start at the second and don't leave it.
void ScenarioInfoKeyboardTest::spaceLeavesImpliedPrerequisites()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    require(campaign, 2, {1});
    require(campaign, 1, {0});
    GeneralTab open(campaign, 2);
    QCOMPARE(open.shownPrerequisites(), QStringList({"0 implied", "1 checked"}));
    open.find<QComboBox>("difficultyCombobox")->setFocus();
    press(open, Qt::Key_Tab);
    press(open, Qt::Key_Up);
    press(open, Qt::Key_Space);
    QCOMPARE(open.shownPrerequisites(), QStringList({"0 checked", "1 free"}));
    QCOMPARE(open.storedFor(2), QList<int>({0}));
}

void ScenarioInfoKeyboardTest::keysOfTheListChangeNoScenario_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Delete") << int(Qt::Key_Delete);
    QTest::newRow("Backspace") << int(Qt::Key_Backspace);
    QTest::newRow("Space") << int(Qt::Key_Space);
    QTest::newRow("F2") << int(Qt::Key_F2);
    QTest::newRow("a letter") << int(Qt::Key_X);
}

void ScenarioInfoKeyboardTest::keysOfTheListChangeNoScenario()
{
    QFETCH(int, key);
    for (const bool hasMap : {true, false}) {
        CampaignData campaign = campaignOf(hasMap, {"a", "b", "c"});
        GeneralTab open(campaign, 1);
        const QByteArrayList before = stateOf(open.copy());
        const QStringList texts = open.texts();
        QCOMPARE(open.dialog.focusWidget(), open.list());
        press(open, key);
        QVERIFY(open.dialog.isVisible());
        QCOMPARE(open.dialog.focusWidget(), open.list());
        QCOMPARE(open.texts(), texts);
        QCOMPARE(stateOf(open.copy()), before);
        QVERIFY(!open.dialog.hasChanged());
    }
}

// The focus leaves the arrow that can't be used any more for the one that can.
void ScenarioInfoKeyboardTest::spaceMovesAScenarioToTheTop()
{
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    GeneralTab open(campaign, 2);
    press(open, Qt::Key_Tab);
    QCOMPARE(nameOf(open.dialog.focusWidget()), QString("upBtn"));
    press(open, Qt::Key_Space);
    press(open, Qt::Key_Space);
    QCOMPARE(open.list()->currentRow(), 0);
    QCOMPARE(nameOf(open.dialog.focusWidget()), QString("downBtn"));
    press(open, Qt::Key_Space);
    QCOMPARE(open.list()->currentRow(), 1);
}

void ScenarioInfoKeyboardTest::spaceDeletesDownToOne()
{
    CampaignData campaign = campaignOf(false, {"a", "b", "c"});
    GeneralTab open(campaign, 2);
    open.find<QWidget>("deleteBtn")->setFocus();
    press(open, Qt::Key_Space);
    press(open, Qt::Key_Space);
    QCOMPARE(open.texts(), QStringList("1. a.e3m"));
    QVERIFY(open.dialog.focusWidget() && open.dialog.focusWidget()->isEnabled());
    press(open, Qt::Key_Space);
    QVERIFY(open.dialog.isVisible());
    QCOMPARE(open.texts(), QStringList("1. a.e3m"));
}

void ScenarioInfoKeyboardTest::keysAndTitleBarCloseTheDialog_data()
{
    QTest::addColumn<QString>("control");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("result");
    const int accepted = QDialog::Accepted;
    const int rejected = QDialog::Rejected;
    for (const char *control :
         {"listWidget", "prereqListWidget", "difficultyCombobox", "removeButton"}) {
        QTest::addRow("Return in %s", control) << control << int(Qt::Key_Return) << accepted;
        QTest::addRow("Enter in %s", control) << control << int(Qt::Key_Enter) << accepted;
        QTest::addRow("Escape in %s", control) << control << int(Qt::Key_Escape) << rejected;
    }
    QTest::newRow("Escape in the text") << "regionTextEdit" << int(Qt::Key_Escape) << rejected;
    QTest::newRow("the title bar") << "listWidget" << 0 << rejected;
}

void ScenarioInfoKeyboardTest::keysAndTitleBarCloseTheDialog()
{
    QFETCH(QString, control);
    QFETCH(int, key);
    CampaignData campaign = campaignOf(true, {"a", "b", "c"});
    GeneralTab open(campaign, 1);
    open.dialog.setResult(-1);
    open.find<QWidget>(qPrintable(control))->setFocus();
    if (key != 0)
        press(open, key);
    else
        QVERIFY(open.dialog.windowHandle()->close());
    QVERIFY(!open.dialog.isVisible());
    QTEST(open.dialog.result(), "result");
    QVERIFY(open.copy().scenarios[1].mapHeader); // no button was pressed on the way
}

QTEST_MAIN(ScenarioInfoKeyboardTest)
#include "scenario_info_keyboard_test.moc"
