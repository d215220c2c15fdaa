// A virtual display of its own with a window manager on it, and the hands on its mouse and
// keyboard.
//
// Needs Xvfb, openbox and xdotool, and import of ImageMagick for pictures. Whatever can't be had or
// done throws a Failure.
#pragma once

#include <QPoint>
#include <QProcess>
#include <QStringList>

class Screen
{
public:
    Screen(); // returns once the window manager is at work
    ~Screen();
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    const QString &display() const { return m_display; } // as in the environment, ":7"

    void moveMouse(QPoint to);
    void click(QPoint at, int button = 1, int times = 1); // 4 and 5 are the wheel's
    void press(const QString &key, int times = 1);        // "Return", "ctrl+s"
    void type(const QString &text);                       // "\n" is the Return key

    // False if it can't be taken; a PNG.
    bool savePicture(const QString &path) const;

private:
    void startDisplay();
    void startWindowManager();
    void control(const QStringList &arguments);
    QProcessEnvironment environment() const;

    QProcess m_server;
    QProcess m_manager;
    QString m_display;
};
