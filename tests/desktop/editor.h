// The editor as its user has it: a process of its own on a screen, seen through the locator that it
// loads, handled by mouse and keyboard alone.
//
// All that is done waits for what it needs to be on show, and returns when what it brings about is
// on show as well; a Failure is thrown if that never happens or the editor ends meanwhile. Names
// are those of widgets, texts those that stand in the window.
#pragma once

#include "tests/desktop/screen.h"

#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include <atomic>
#include <functional>

class Editor
{
public:
    // `program` is the launcher, `plugins` the folder that holds the locator's; `environment` is
    // the process's, but for what is needed to see it.
    Editor(Screen &screen, const QString &program, const QString &plugins,
           const QProcessEnvironment &environment);
    ~Editor();
    Editor(const Editor &) = delete;
    Editor &operator=(const Editor &) = delete;

    void launch(const QStringList &arguments = {}); // until it lets its widgets be located
    void start(const QStringList &arguments = {});  // until its window takes the input
    void waitForEnd();                              // by itself, with status 0
    void kill();
    // Waits for an end that has begun. True if it was SIGKILL, false if the editor ended by itself.
    bool wasKilled();
    bool isRunning() const { return m_process.state() == QProcess::Running; }
    // 0 if none runs. Other threads may ask too.
    qint64 processId() const { return m_processId; }
    QString log() const; // the last of what it wrote to standard error

    Screen &screen() { return m_screen; }

    // Looks once. The question and its answer are those of widget_report.h.
    QJsonObject look(const QJsonObject &question);
    // Looks until the answer will do; `expected` is what it has to be, in words.
    QJsonObject waitFor(const QJsonObject &question, const QString &expected,
                        const std::function<bool(const QJsonObject &)> &willDo);

    // Clicks and waits until the clicks have reached the editor: a window manager holds them back
    // for a while, and a mouse that moves on meanwhile takes them along.
    void click(QPoint at, int button = 1, int times = 1);
    // Presses a key that is no shortcut and waits until it has reached the editor.
    void press(const QString &key);

private:
    void connectLocator();
    bool ends(); // false if it goes on for too long
    void pointAt(QPoint at);

    Screen &m_screen;
    QString m_program;
    QProcessEnvironment m_environment;
    QTemporaryDir m_folder; // of the locator's socket
    QString m_logFile;
    QProcess m_process;
    std::atomic<qint64> m_processId{0};
    QLocalSocket m_locator;
};
