// Every window by the keyboard alone: the Tab key reaches all there is in the order in which one
// reads, keys use it, Enter accepts and Escape leaves.
#include "tests/everybody/key_use.h"
#include "tests/everybody/open_windows.h"
#include "tests/everybody/window_walk.h"

#include "tests/support/longest_wait.h"
#include "tests/support/widgets.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTextEdit>

#include <algorithm>
#include <memory>

namespace {

constexpr int mostControls = 200;
constexpr int slack = 4; // pixels by which neighbours may be out of line

void activate(QWidget *window)
{
    window->activateWindow();
    if (!QTest::qWaitForWindowActive(window, longestWait))
        QTest::qFail("The window never became active.", __FILE__, __LINE__);
}

// The controls in the order of a key, from the one that has the focus until it comes back.
QVector<QWidget *> controlsBy(QWidget *window, int key, Qt::KeyboardModifiers modifiers)
{
    QVector<QWidget *> controls;
    QWidget *first = window->focusWidget();
    do {
        controls += window->focusWidget();
        press(window, key, modifiers);
    } while (window->focusWidget() && window->focusWidget() != first &&
             controls.size() < mostControls);
    return controls;
}

QStringList unreached(QWidget *window, const QVector<QWidget *> &reached)
{
    QStringList left;
    const QVector<QWidget *> controls = focusableControls(window);
    for (const QWidget *control : controls) {
        const bool found =
            std::any_of(reached.begin(), reached.end(), [control](const QWidget *other) {
                return other == control || belongTogether(other, control);
            });
        if (control->isEnabled() && !found)
            left += describe(control);
    }
    return left;
}

// Buttons of which another one is chosen; the arrow keys lead to them.
QStringList notChosen(const QVector<QWidget *> &reached)
{
    QStringList faults;
    for (const QWidget *control : reached) {
        const auto siblings = control->parentWidget()->findChildren<QAbstractButton *>();
        const auto *button = qobject_cast<const QAbstractButton *>(control);
        if (!button || button->isChecked())
            continue;
        for (const QAbstractButton *other : siblings) {
            if (other->isChecked() && belongTogether(other, control))
                faults += describe(control);
        }
    }
    return faults;
}

QRect placeOf(const QWidget *control)
{
    return {control->mapTo(control->window(), QPoint()), control->size()};
}

// Below it or to its right.
bool isReadAfter(const QWidget *control, const QWidget *before)
{
    return placeOf(control).top() >= placeOf(before).bottom() - slack ||
           placeOf(control).left() >= placeOf(before).right() - slack;
}

// Tab reaches everything in the order in which one reads, Shift and Tab the other way round.
void verifyReadingOrder(QWidget *window)
{
    QVERIFY(window->focusWidget());
    QVector<QWidget *> forwards = controlsBy(window, Qt::Key_Tab, Qt::NoModifier);
    QVERIFY(forwards.size() < mostControls);
    QCOMPARE(unreached(window, forwards), QStringList());
    QCOMPARE(notChosen(forwards), QStringList());
    for (int i = 1; i < forwards.size(); ++i) {
        QVERIFY2(isReadAfter(forwards[i], forwards[i - 1]),
                 qPrintable(describe(forwards[i - 1]) + " -> " + describe(forwards[i])));
    }
    const QVector<QWidget *> backwards = controlsBy(window, Qt::Key_Backtab, Qt::ShiftModifier);
    std::reverse(forwards.begin() + 1, forwards.end());
    QCOMPARE(backwards, forwards);
}

void verifyUse(QWidget *window)
{
    int used = 0;
    const QVector<QWidget *> controls = controlsBy(window, Qt::Key_Tab, Qt::NoModifier);
    for (QWidget *control : controls) {
        if (!control->isVisible() || !control->isEnabled())
            continue; // by what was done with another
        QVERIFY2(worksByKeys(control), qPrintable(describe(control)));
        QVERIFY2(window->isVisible(), qPrintable(describe(control)));
        ++used;
    }
    QVERIFY(used > 0);
}

int sceneNamed(const char *name)
{
    const auto &scenes = manualScenes();
    const auto found = std::find_if(scenes.begin(), scenes.end(), [name](const auto &scene) {
        return QLatin1String(scene.name) == QLatin1String(name);
    });
    if (found == scenes.end())
        qFatal("There is no scene %s.", name);
    return int(found - scenes.begin());
}

template<typename Widget>
Widget *shownChild(const QWidget *window, const char *name)
{
    const auto widgets = window->findChildren<Widget *>(QLatin1String(name));
    const auto found = std::find_if(widgets.begin(), widgets.end(),
                                    [](const QWidget *widget) { return widget->isVisible(); });
    if (found == widgets.end())
        qFatal("No %s is on show.", name);
    return *found;
}

// Tab until this control has the focus.
void tabTo(QWidget *control)
{
    QWidget *window = control->window();
    for (int i = 0; i < mostControls && window->focusWidget() != control; ++i)
        press(window, Qt::Key_Tab);
    QCOMPARE(window->focusWidget(), control);
}

} // namespace

class KeyboardTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { windows = std::make_unique<OpenWindows>(); }

    void keysReachAndUseEverything_data() { addWindows(); }
    void keysReachAndUseEverything();
    void tabReachesTheKindOfAnotherScenario();
    void keysEndEveryDialog_data();
    void keysEndEveryDialog();
    void keysReachEveryCommand_data();
    void keysReachEveryCommand();
    void keysEditAndRemoveRows_data();
    void keysEditAndRemoveRows();

private:
    std::unique_ptr<OpenWindows> windows;
};

void KeyboardTest::keysReachAndUseEverything()
{
    QFETCH(int, scene);
    const ManualWindow opened = OpenWindows::open(scene);
    activate(opened.window.get());
    verifyReadingOrder(opened.window.get());
    if (!QTest::currentTestFailed())
        verifyUse(opened.window.get());
}

// The kind at which one was may be impossible there.
void KeyboardTest::tabReachesTheKindOfAnotherScenario()
{
    const ManualWindow opened = OpenWindows::open(sceneNamed("start-hero"));
    QWidget *window = opened.window.get();
    activate(window);
    const auto *heroes = shownChild<QRadioButton>(window, "startingHeroBtn");
    tabTo(window->findChild<QRadioButton *>("startingHeroBtn"));
    QVERIFY(heroes->isChecked());
    auto *list = shownChild<QListWidget>(window, "listWidget");
    tabTo(list);
    int found = 0;
    for (int i = 0; i < list->count(); ++i) {
        press(window, i == 0 ? Qt::Key_Home : Qt::Key_Down);
        if (heroes->isEnabled())
            continue;
        QCOMPARE(notChosen(controlsBy(window, Qt::Key_Tab, Qt::NoModifier)), QStringList());
        QCOMPARE(unreached(window, controlsBy(window, Qt::Key_Tab, Qt::NoModifier)), QStringList());
        ++found;
    }
    QVERIFY(found > 0);
}

void KeyboardTest::keysEndEveryDialog_data()
{
    QTest::addColumn<int>("scene");
    for (int scene = 1; scene < int(manualScenes().size()); ++scene) // the first is the window
        QTest::newRow(manualScenes()[std::size_t(scene)].name) << scene;
}

// In a text Enter begins a line.
void KeyboardTest::keysEndEveryDialog()
{
    QFETCH(int, scene);
    const ManualWindow opened = OpenWindows::open(scene);
    auto *dialog = qobject_cast<QDialog *>(opened.window.get());
    QVERIFY(dialog);
    for (const int key : {Qt::Key_Escape, Qt::Key_Return}) {
        dialog->show();
        activate(dialog);
        while (qobject_cast<QTextEdit *>(dialog->focusWidget()))
            press(dialog, Qt::Key_Tab);
        dialog->setResult(-1);
        press(dialog, key);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(dialog->result(),
                 int(key == Qt::Key_Escape ? QDialog::Rejected : QDialog::Accepted));
    }
}

void KeyboardTest::keysReachEveryCommand_data()
{
    QTest::addColumn<int>("menu");
    QTest::addColumn<QString>("command");
    const ManualWindow opened = OpenWindows::open(0);
    const auto titles = childOf<QMenuBar>(opened.window.get(), "menuBar")->actions();
    for (int menu = 0; menu < titles.size(); ++menu) {
        const auto actions = titles[menu]->menu()->actions();
        for (const QAction *action : actions) {
            if (action->isVisible() && !action->isSeparator() && !action->objectName().isEmpty())
                QTest::newRow(qPrintable(action->objectName())) << menu << action->objectName();
        }
    }
}

// The Alt key alone leads into the menus, arrows through them.
void KeyboardTest::keysReachEveryCommand()
{
    QFETCH(int, menu);
    QFETCH(QString, command);
    const ManualWindow opened = OpenWindows::open(0);
    QWidget *window = opened.window.get();
    activate(window);
    auto *bar = childOf<QMenuBar>(window, "menuBar");
    auto *action = window->findChild<QAction *>(command);
    action->disconnect();
    const QSignalSpy triggered(action, &QAction::triggered);
    press(window, Qt::Key_Alt);
    QVERIFY(bar->activeAction());
    for (int i = 0; i < menu; ++i)
        press(window, Qt::Key_Right);
    press(window, Qt::Key_Down);
    QMenu *open = bar->actions().at(menu)->menu();
    QTRY_VERIFY_WITH_TIMEOUT(open->isVisible(), longestWait);
    for (int i = 0; i < open->actions().size() && open->activeAction() != action; ++i)
        press(window, Qt::Key_Down);
    QCOMPARE(open->activeAction(), action);
    press(window, Qt::Key_Return);
    QCOMPARE(triggered.count(), 1);
    QVERIFY(!open->isVisible());
}

void KeyboardTest::keysEditAndRemoveRows_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("start-bonus") << "Edit Starting Bonus";
    QTest::newRow("start-crossover") << "Edit Hero Crossover Option";
    QTest::newRow("start-hero") << "Edit Starting Hero Option";
}

// A row is chosen by Space, or by an arrow key; only then can it be edited.
void KeyboardTest::keysEditAndRemoveRows()
{
    const ManualWindow opened = OpenWindows::open(sceneNamed(QTest::currentDataTag()));
    QWidget *window = opened.window.get();
    activate(window);
    auto *table = shownChild<QTableWidget>(window, "tableWidget");
    auto *edit = shownChild<QPushButton>(window, "editButton");
    auto *remove = shownChild<QPushButton>(window, "removeButton");
    const int rows = table->rowCount();
    QVERIFY(rows > 1);
    tabTo(table);
    QVERIFY(!edit->isEnabled() && !remove->isEnabled());
    press(window, Qt::Key_Space);
    QVERIFY(edit->isEnabled() && remove->isEnabled());
    press(window, Qt::Key_Down);
    QCOMPARE(table->selectedItems().value(0), table->item(1, table->currentColumn()));
    const QString behind = rows > 2 ? table->item(2, 0)->text() : QString();

    tabTo(edit);
    QString title;
    {
        const NextDialog dialog([&title](QWidget *shown) {
            title = shown->windowTitle();
            QTest::keyClick(shown->windowHandle(), Qt::Key_Escape);
            if (shown->isVisible())
                shown->close();
        });
        press(window, Qt::Key_Space);
        QVERIFY(dialog.came());
    }
    QTEST(title, "title");

    activate(window);
    tabTo(remove);
    press(window, Qt::Key_Space);
    QCOMPARE(table->rowCount(), rows - 1);
    if (rows > 2)
        QCOMPARE(table->item(1, 0)->text(), behind);
}

QTEST_MAIN(KeyboardTest)
#include "keyboard_test.moc"
