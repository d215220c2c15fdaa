// A monkey before the editor: it clicks and types at random in whatever window is in front, for a
// while, then closes what is open and goes home.
//
// It lives in the event loop that the editor runs, the innermost one: a dialog that a step opened
// is played with before that step is over.
#pragma once

#include "tests/monkey/dice.h"
#include "tests/monkey/journal.h"
#include "tests/monkey/private_game.h"
#include "tests/monkey/watcher.h"

#include <QDeadlineTimer>
#include <QObject>

class MainWindow;
class QMenu;
class QWidget;

class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(const PrivateGame &game, Journal &journal, quint32 seed, int seconds);

    bool isHome() const { return m_time.hasExpired(); }
    // Plays with this window while the application's event loop runs. The loop ends with the
    // window, or when the time is over.
    void playWith(MainWindow &window);

protected:
    void timerEvent(QTimerEvent *event) override;

private:
    void live();
    void goHome(QWidget *front);
    void noteVisit(const QWidget *front);

    void act(QWidget *front);
    void useMenu(QMenu *menu);
    void useList(QWidget *popup);
    void useMainWindow();
    void useMenuBar();
    void useDialog(QWidget *dialog);
    void closeDialog(QWidget *dialog);
    void useControl(QWidget *front);
    void pressKeys(QWidget *front);
    void reachBehind(QWidget *front);
    void dropFile();
    void changeWindow();

    const PrivateGame &m_game;
    Journal &m_journal;
    Dice m_dice;
    const QDeadlineTimer m_time;
    MainWindow *m_window = nullptr; // while it is played with
    Watcher m_watcher;
    int m_level = 0; // of the event loop in which a step is under way
};
