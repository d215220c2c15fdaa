// What the programs share that run the editor's library as the launcher does and look at it from
// within its own event loops: printing a line, finding what is on show, and the looking itself.
#pragma once

#include <QApplication>
#include <QTextCodec>
#include <QTimer>

#include <csignal>
#include <cstdio>

extern "C" int run(int argc, char **argv);

namespace probe {

// Line feeds come out as "\n".
inline void print(const QStringList &columns)
{
    std::printf("%s\n", columns.join('|').replace('\n', "\\n").toUtf8().constData());
    std::fflush(stdout);
}

// The first visible window of this class, null if there is none.
template<typename Widget>
Widget *visibleWidget()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        auto *found = qobject_cast<Widget *>(widget);
        if (found && found->isVisible())
            return found;
    }
    return nullptr;
}

// Calls it again and again as long as the application lives. The editor makes the application, so
// this waits for a start-up function.
inline void lookWith(void (*look)())
{
    constexpr int interval = 5; // milliseconds
    auto *timer = new QTimer(QCoreApplication::instance());
    QObject::connect(timer, &QTimer::timeout, look);
    timer->start(interval);
}

inline int runEditor(int argc, char **argv)
{
    // A test run in the background has some of them ignored, and the editor would leave it so.
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        std::signal(number, SIG_DFL);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return run(argc, argv);
}

} // namespace probe
