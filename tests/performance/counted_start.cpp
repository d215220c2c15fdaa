// The editor as its launcher starts it, with the counting of instructions on from its first stage
// to the first paint of its window, where it ends.
#include <QCoreApplication>
#include <QEvent>
#include <QMainWindow>

#include <cstdlib>
#include <valgrind/callgrind.h>

extern "C" int run(int argc, char **argv);

namespace {

class FirstPaint : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && qobject_cast<QMainWindow *>(watched)) {
            CALLGRIND_TOGGLE_COLLECT;
            std::_Exit(0);
        }
        return false;
    }
};

void watchForTheFirstPaint()
{
    qApp->installEventFilter(new FirstPaint(qApp));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watchForTheFirstPaint)

int main(int argc, char **argv)
{
    CALLGRIND_TOGGLE_COLLECT;
    run(argc, argv);
    return 1; // there was no paint
}
