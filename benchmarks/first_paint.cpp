// Linked into a program under measurement: tells on standard output when its main window was
// painted for the first time (nanoseconds of the monotonic clock) and then ends the event loop.
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>
#include <QTimer>

#include <cstdio>
#include <ctime>

namespace {

long long monotonicNanoseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000000000LL + now.tv_nsec;
}

class FirstPaint : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (!m_seen && event->type() == QEvent::Paint && qobject_cast<QMainWindow *>(watched)) {
            m_seen = true;
            std::printf("%lld\n", monotonicNanoseconds());
            std::fflush(stdout);
            QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        }
        return false;
    }

private:
    bool m_seen = false;
};

void watchForTheFirstPaint()
{
    qApp->installEventFilter(new FirstPaint(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForTheFirstPaint)
