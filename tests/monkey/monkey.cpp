#include "tests/monkey/monkey.h"

#include "shell/main_window.h"
#include "tests/monkey/answers.h"
#include "tests/monkey/hands.h"
#include "tests/monkey/reach.h"
#include "tests/monkey/tricks.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QThread>
#include <QTimerEvent>
#include <QWindow>

namespace {

constexpr int pause = 1; // milliseconds between two steps, in which the window paints itself

// How many steps a dialog stays open, on the average: the more there is to play with the longer.
constexpr int fewestSteps = 3;
constexpr int stepsForControl = 2;
constexpr int scenarioDialogSteps = 80;

// What has been used often is used less.
double curiosity(int visits)
{
    return 1.0 / (1.0 + visits);
}

// Those of recent files have no names of their own.
QString nameOf(const QAction *action)
{
    return action->objectName().isEmpty() ? QStringLiteral("recent file") : action->objectName();
}

bool isReady(const QWidget *window)
{
    return window->isVisible() && window->windowHandle() && window->windowHandle()->isExposed();
}

} // namespace

Monkey::Monkey(const PrivateGame &game, Journal &journal, quint32 seed, int seconds)
    : m_game(game), m_journal(journal), m_dice(seed), m_time(qint64(seconds) * 1000),
      m_watcher(journal)
{
}

void Monkey::playWith(MainWindow &window)
{
    m_window = &window;
    m_watcher.watch(window);
    const auto actions = window.findChildren<QAction *>();
    for (const QAction *action : actions) {
        const QString name = nameOf(action);
        connect(action, &QAction::triggered, &window, [this, name] {
            m_journal.visit("action", name);
            m_watcher.noteCommand();
            if (name == QLatin1String("actionImport_Texts") ||
                name == QLatin1String("actionRefresh_Scenario_Maps"))
                m_watcher.noteExchange();
        });
    }
    startTimer(pause);
    QApplication::exec();
    m_window = nullptr;
}

// A timer isn't told of in a loop inside its own event, so each step has a timer of its own. While
// a step's own events go out in the loop that it runs in, the next one waits for them.
void Monkey::timerEvent(QTimerEvent *event)
{
    killTimer(event->timerId());
    if (!m_window)
        return;
    startTimer(pause);
    const int level = QThread::currentThread()->loopLevel();
    if (level <= m_level)
        return;
    const QScopedValueRollback<int> inThisLoop(m_level, level);
    live();
}

void Monkey::live()
{
    QWidget *front = frontOf(m_window);
    if (!isReady(front)) {
        if (front == m_window && m_window->isVisible())
            m_window->showNormal();
        return;
    }
    m_watcher.look(front);
    noteVisit(front);
    if (!front->isActiveWindow() && !QApplication::activePopupWidget())
        front->activateWindow();
    if (isHome())
        goHome(front);
    else
        act(front);
}

// One window after the other, as a user in a hurry would.
void Monkey::goHome(QWidget *front)
{
    m_journal.step(QStringLiteral("close ") + kindOf(front));
    if (front == m_window)
        QCoreApplication::quit();
    else if (auto *box = qobject_cast<QMessageBox *>(front))
        hands::click(box->buttons().constLast(), box->buttons().constLast()->rect().center());
    else if (auto *dialog = qobject_cast<QDialog *>(front))
        dialog->reject();
    else
        front->close();
}

void Monkey::noteVisit(const QWidget *front)
{
    m_journal.visit("window", kindOf(front));
    const QStringList pages = pagesOf(front);
    for (const QString &page : pages)
        m_journal.visit("page", page);
}

void Monkey::act(QWidget *front)
{
    if (auto *files = qobject_cast<QFileDialog *>(front))
        answerFileDialog(files, m_game, m_dice, m_journal);
    else if (auto *box = qobject_cast<QMessageBox *>(front))
        answerBox(box, m_dice, m_journal);
    else if (auto *menu = qobject_cast<QMenu *>(front))
        useMenu(menu);
    else if (front == QApplication::activePopupWidget())
        useList(front);
    else if (front == m_window)
        useMainWindow();
    else
        useDialog(front);
}

void Monkey::useMenu(QMenu *menu)
{
    QList<QAction *> actions;
    QVector<double> weights;
    const auto all = menu->actions();
    for (QAction *action : all) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        actions += action;
        weights += curiosity(m_journal.visits("action", nameOf(action))) *
                   (nameOf(action) == QLatin1String("actionExit") ? 0.2 : 1.0);
    }
    if (actions.isEmpty() || m_dice.chance(0.1)) {
        m_journal.step(QStringLiteral("Escape in a menu"));
        hands::key(menu, Qt::Key_Escape);
        return;
    }
    QAction *action = actions[m_dice.weighted(weights)];
    m_journal.step(QStringLiteral("menu entry \"%1\"").arg(action->text()));
    const QPoint place = menu->actionGeometry(action).center();
    hands::hover(menu, place);
    hands::click(menu, place);
}

// The list of a combo box, or what completes a text.
void Monkey::useList(QWidget *popup)
{
    const auto views = popup->findChildren<QAbstractItemView *>();
    if (views.isEmpty() || m_dice.chance(0.1)) {
        m_journal.step(QStringLiteral("Escape in ") + kindOf(popup));
        hands::key(popup, Qt::Key_Escape);
        return;
    }
    m_journal.step(QStringLiteral("list of ") + nameOf(popup));
    tricks::useRows(views.constFirst(), m_dice);
}

void Monkey::useMainWindow()
{
    const int what = m_dice.below(100);
    if (what < 3)
        dropFile();
    else if (what < 6)
        changeWindow();
    else if (what < 20)
        pressKeys(m_window);
    else if (what < 50)
        useMenuBar();
    else
        useControl(m_window);
}

// Most of what there is to do with a document begins here.
void Monkey::useMenuBar()
{
    m_journal.step(QStringLiteral("the menu bar"));
    tricks::use(m_window->menuBar(), m_dice);
}

void Monkey::useDialog(QWidget *dialog)
{
    const int stay = dialog->inherits("ScenarioInfo")
                         ? scenarioDialogSteps
                         : fewestSteps + stepsForControl * controlsOf(dialog).size();
    if (m_dice.chance(1.0 / stay))
        closeDialog(dialog);
    else if (m_dice.chance(0.02))
        reachBehind(dialog);
    else if (m_dice.chance(0.12))
        pressKeys(dialog);
    else
        useControl(dialog);
}

void Monkey::closeDialog(QWidget *dialog)
{
    const QVector<QWidget *> buttons = closingButtonsOf(dialog);
    const int way = m_dice.below(10);
    if (way == 0) {
        m_journal.step(QStringLiteral("Escape in ") + kindOf(dialog));
        hands::key(dialog, Qt::Key_Escape);
    } else if (way == 1 || buttons.isEmpty()) {
        m_journal.step(QStringLiteral("close %1 by its frame").arg(kindOf(dialog)));
        dialog->close();
    } else if (way == 2) {
        m_journal.step(QStringLiteral("Return in ") + kindOf(dialog));
        hands::key(dialog, Qt::Key_Return);
    } else {
        QWidget *button = way < 8 ? buttons.constFirst() : m_dice.pick(buttons);
        m_journal.step(QStringLiteral("closing button of ") + kindOf(dialog));
        hands::click(button, button->rect().center());
    }
}

void Monkey::useControl(QWidget *front)
{
    const QVector<QWidget *> controls = controlsOf(front);
    if (controls.isEmpty()) {
        pressKeys(front);
        return;
    }
    QVector<double> weights;
    for (const QWidget *control : controls)
        weights += tricks::weightOf(control) *
                   (0.1 + curiosity(m_journal.visits("control", nameOf(control))));
    QWidget *control = controls[m_dice.weighted(weights)];
    const QString name = nameOf(control);
    m_journal.visit("control", name);
    m_journal.step(name);
    tricks::use(control, m_dice);
}

void Monkey::pressKeys(QWidget *front)
{
    const tricks::Keys keys = tricks::someKeys(m_dice, front == m_window);
    m_journal.step(QStringLiteral("keys %1 in %2").arg(keys.name, kindOf(front)));
    if (!keys.text.isEmpty())
        hands::type(front, keys.text);
    else
        hands::key(front, keys.key, keys.modifiers);
}

// A click at what a modal window blocks has to come to nothing.
void Monkey::reachBehind(QWidget *front)
{
    const QVector<QWidget *> controls = controlsOf(m_window);
    if (controls.isEmpty())
        return;
    QWidget *control = m_dice.pick(controls);
    m_journal.step(QStringLiteral("%1 behind %2").arg(nameOf(control), kindOf(front)));
    hands::doubleClick(control, control->rect().center());
}

void Monkey::dropFile()
{
    QStringList paths;
    for (int i = m_dice.between(1, 2); i > 0; --i)
        paths += m_game.fileToOpen(m_dice, FileKind::Campaign);
    m_journal.visit("action", QStringLiteral("drop"));
    m_journal.step(QStringLiteral("drop ") + paths.join(QStringLiteral(", ")));
    m_watcher.noteCommand();
    hands::dropFiles(
        m_window, QPoint(m_dice.below(m_window->width()), m_dice.below(m_window->height())), paths);
}

void Monkey::changeWindow()
{
    const int what = m_dice.below(12);
    m_journal.step(QStringLiteral("change the window, way %1").arg(what));
    if (what == 0)
        m_window->close();
    else if (what == 1)
        m_window->showMaximized();
    else if (what == 2)
        m_window->showMinimized();
    else if (what < 5)
        m_window->showNormal();
    else
        m_window->resize(m_dice.between(1, 1200), m_dice.between(1, 1000));
}
