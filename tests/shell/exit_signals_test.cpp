// The handler of the signals that end the editor: whatever it interrupts goes on undisturbed.
#include "shell/exit_signals.h"

#include <QCoreApplication>
#include <QTest>
#include <QTimer>

#include <cerrno>
#include <csignal>

class ExitSignalsTest : public QObject
{
    Q_OBJECT

private slots:
    void init();

    void eventLoopEnds_data();
    void eventLoopEnds();
    void interruptedCallKeepsItsErrorNumber();
};

void ExitSignalsTest::init()
{
    for (const int number : {SIGTERM, SIGHUP, SIGINT})
        std::signal(number, SIG_DFL); // a test run in the background has some of them ignored
}

void ExitSignalsTest::eventLoopEnds_data()
{
    QTest::addColumn<int>("number");
    QTest::newRow("SIGTERM") << SIGTERM;
    QTest::newRow("SIGHUP") << SIGHUP;
    QTest::newRow("SIGINT") << SIGINT;
}

void ExitSignalsTest::eventLoopEnds()
{
    QFETCH(int, number);
    const ExitSignals answered;
    QTimer::singleShot(0, this, [number] { std::raise(number); });
    QTimer::singleShot(60000, this, [] { QCoreApplication::exit(1); });
    QCOMPARE(QCoreApplication::exec(), 0);
}

// So many that nothing more goes through the pipe to the event loop.
void ExitSignalsTest::interruptedCallKeepsItsErrorNumber()
{
    const ExitSignals answered;
    constexpr int many = 1 << 17;
    int changes = 0;
    for (int i = 0; i < many; ++i) {
        errno = ENOENT;
        std::raise(SIGTERM);
        changes += errno != ENOENT;
    }
    QCOMPARE(changes, 0);
}

QTEST_GUILESS_MAIN(ExitSignalsTest)
#include "exit_signals_test.moc"
