#include "tests/desktop/editor.h"

#include "tests/desktop/failure.h"
#include "tests/desktop/patience.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>

namespace {

constexpr int answerLimit = 90000; // milliseconds; the editor may be at work
constexpr int clickLimit = 20000;  // until somebody clicks again
constexpr int logLength = 2000;

QString words(const QJsonObject &answer)
{
    return QString::fromUtf8(QJsonDocument(answer).toJson(QJsonDocument::Compact));
}

} // namespace

Editor::Editor(Screen &screen, const QString &program, const QString &plugins,
               const QProcessEnvironment &environment)
    : m_screen(screen), m_program(program), m_environment(environment),
      m_logFile(m_folder.filePath("log"))
{
    m_environment.insert("DISPLAY", screen.display());
    m_environment.remove("QT_QPA_PLATFORM");
    m_environment.insert("QT_PLUGIN_PATH", plugins);
    m_environment.insert("QT_QPA_GENERIC_PLUGINS", "widgetlocator:" + m_folder.filePath("locator"));
    m_process.setProcessEnvironment(m_environment);
    m_process.setStandardOutputFile(QProcess::nullDevice());
    m_process.setStandardErrorFile(m_logFile);
}

Editor::~Editor()
{
    kill();
}

void Editor::launch(const QStringList &arguments)
{
    m_process.start(m_program, arguments);
    if (!m_process.waitForStarted())
        throw Failure("the editor starts", m_process.errorString());
    m_processId = m_process.processId();
    connectLocator();
}

void Editor::start(const QStringList &arguments)
{
    launch(arguments);
    waitFor({}, "the main window takes the input", [](const QJsonObject &answer) {
        return answer["window"] == "MainWindow" && answer["active"].toBool();
    });
}

void Editor::connectLocator()
{
    const Patience patience;
    do {
        m_locator.abort();
        m_locator.connectToServer(m_folder.filePath("locator"));
        if (m_locator.waitForConnected())
            return;
        if (!isRunning() || m_process.waitForFinished(0))
            throw Failure("the editor comes up", "it ended: " + log());
    } while (patience.isLeft());
    throw Failure("the editor lets its widgets be located", m_locator.errorString() + log());
}

void Editor::waitForEnd()
{
    if (!ends())
        throw Failure("the editor ends", words(look({})));
    if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != 0)
        throw Failure("the editor ends with status 0",
                      QString::number(m_process.exitCode()) + ": " + log());
}

bool Editor::ends()
{
    if (isRunning() && !m_process.waitForFinished(answerLimit))
        return false;
    m_processId = 0;
    return true;
}

void Editor::kill()
{
    m_process.kill();
    ends();
}

bool Editor::wasKilled()
{
    if (!ends())
        throw Failure("the editor ends", words(look({})));
    return m_process.exitStatus() == QProcess::CrashExit && m_process.exitCode() == SIGKILL;
}

QString Editor::log() const
{
    QFile file(m_logFile);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return QString::fromLocal8Bit(file.readAll().right(logLength));
}

QJsonObject Editor::look(const QJsonObject &question)
{
    m_locator.write(QJsonDocument(question).toJson(QJsonDocument::Compact) + '\n');
    while (!m_locator.canReadLine()) {
        if (!m_locator.waitForReadyRead(answerLimit))
            throw Failure("the editor is there", m_locator.errorString() + ": " + log());
    }
    return QJsonDocument::fromJson(m_locator.readLine()).object();
}

QJsonObject Editor::waitFor(const QJsonObject &question, const QString &expected,
                            const std::function<bool(const QJsonObject &)> &willDo)
{
    const Patience patience;
    for (;;) {
        QJsonObject answer = look(question);
        if (willDo(answer))
            return answer;
        if (!patience.isLeft())
            throw Failure(expected, words(answer) + " to " + words(question));
    }
}

// The frame of a window that has just closed may still stand before the place, and would take the
// click: the mouse is moved there until the editor feels it.
void Editor::pointAt(QPoint at)
{
    const Patience patience;
    const int before = look({})["moves"].toInt();
    const QJsonArray there{at.x(), at.y()};
    for (;;) {
        m_screen.moveMouse(at + QPoint(1, 0));
        m_screen.moveMouse(at);
        const QJsonObject seen = look({});
        if (seen["moves"].toInt() > before && seen["pointer"] == there)
            return;
        if (!patience.isLeft())
            throw Failure("the editor feels the mouse", words(seen));
    }
}

// While the window manager moves the input from one window to another it may keep a click to
// itself. Whoever sees nothing happen clicks again.
void Editor::click(QPoint at, int button, int times)
{
    const Patience patience;
    for (;;) {
        pointAt(at);
        const int before = look({})["presses"].toInt();
        m_screen.click(at, button, times);
        const Patience arrival(clickLimit);
        do {
            if (look({})["presses"].toInt() >= before + times)
                return;
        } while (arrival.isLeft());
        if (!patience.isLeft())
            throw Failure("the click reaches the editor", words(look({})));
    }
}

void Editor::press(const QString &key)
{
    const int before = look({})["keys"].toInt();
    m_screen.press(key);
    waitFor({}, "the key reaches the editor",
            [&](const QJsonObject &answer) { return answer["keys"].toInt() > before; });
}
