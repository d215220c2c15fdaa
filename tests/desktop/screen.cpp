#include "tests/desktop/screen.h"

#include "tests/desktop/failure.h"
#include "tests/desktop/patience.h"

#include <QProcessEnvironment>

namespace {

constexpr int commandLimit = 60000; // milliseconds for one command of mouse or keyboard

void stop(QProcess &process)
{
    process.terminate();
    if (!process.waitForFinished(commandLimit))
        process.kill();
}

QStringList place(QPoint point)
{
    return {QString::number(point.x()), QString::number(point.y())};
}

// Runs a program to its end; false if it failed.
bool succeeds(const QString &program, const QStringList &arguments, const QProcessEnvironment &with)
{
    QProcess process;
    process.setProcessEnvironment(with);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program, arguments);
    return process.waitForFinished(commandLimit) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

} // namespace

Screen::Screen()
{
    startDisplay();
    startWindowManager();
}

Screen::~Screen()
{
    stop(m_manager);
    stop(m_server);
}

// Without -noreset the display would forget everything with its last client. Keys don't repeat:
// on a busy machine a key is held down for longer than anybody means.
void Screen::startDisplay()
{
    m_server.setStandardErrorFile(QProcess::nullDevice());
    m_server.start("Xvfb", {"-displayfd", "1", "-noreset", "-r", "-nolisten", "tcp", "-screen", "0",
                            "1280x1024x24"});
    while (!m_server.canReadLine()) {
        if (!m_server.waitForReadyRead(commandLimit))
            throw Failure("a virtual display", "Xvfb: " + m_server.errorString());
    }
    m_display = ':' + QString::fromLatin1(m_server.readLine().trimmed());
}

void Screen::startWindowManager()
{
    m_manager.setProcessEnvironment(environment());
    m_manager.setStandardOutputFile(QProcess::nullDevice());
    m_manager.setStandardErrorFile(QProcess::nullDevice());
    m_manager.start("openbox", QStringList());
    const Patience patience;
    while (!succeeds("xdotool", {"get_num_desktops"}, environment())) {
        if (!patience.isLeft())
            throw Failure("openbox at work on the display", m_manager.errorString());
    }
}

void Screen::moveMouse(QPoint to)
{
    control(QStringList("mousemove") + place(to));
}

// Down and up again without a pause: two clicks have to come soon enough after each other to be
// a double click, however busy the machine is.
void Screen::click(QPoint at, int button, int times)
{
    const QString number = QString::number(button);
    QStringList acts = QStringList("mousemove") + place(at);
    for (int i = 0; i < times; ++i)
        acts += {"mousedown", number, "mouseup", number};
    control(acts);
}

void Screen::press(const QString &key, int times)
{
    control(
        {"key", "--repeat", QString::number(times), "--repeat-delay", "1", "--delay", "1", key});
}

void Screen::type(const QString &text)
{
    const QStringList lines = text.split('\n');
    for (int i = 0; i < lines.size(); ++i) {
        if (i > 0)
            press("Return");
        if (!lines[i].isEmpty())
            control({"type", "--delay", "1", "--", lines[i]});
    }
}

bool Screen::savePicture(const QString &path) const
{
    return succeeds("import", {"-window", "root", path}, environment());
}

void Screen::control(const QStringList &arguments)
{
    if (!succeeds("xdotool", arguments, environment()))
        throw Failure("mouse and keyboard obey", "failed: xdotool " + arguments.join(' '));
}

QProcessEnvironment Screen::environment() const
{
    QProcessEnvironment with = QProcessEnvironment::systemEnvironment();
    with.insert("DISPLAY", m_display);
    return with;
}
