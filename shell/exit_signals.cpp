#include "shell/exit_signals.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

// SIGTERM is last: once it is answered, so are the others.
constexpr std::array<int, 3> exitSignals{SIGINT, SIGHUP, SIGTERM};

// The writing end of the pipe: the one thing that a handler may touch.
volatile std::sig_atomic_t writingEnd = -1;

void wakeEventLoop(int)
{
    const int interrupted = errno; // of whatever call is interrupted
    const char byte = 0;
    // A full pipe has woken the loop already.
    [[maybe_unused]] const ssize_t written = ::write(writingEnd, &byte, 1);
    errno = interrupted;
}

// A signal that is ignored stays ignored: whoever started the editor by "nohup" wants it to go on.
void setHandlers(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (const int number : exitSignals) {
        struct sigaction now = {};
        if (sigaction(number, nullptr, &now) == 0 && now.sa_handler != SIG_IGN)
            sigaction(number, &action, nullptr);
    }
}

} // namespace

ExitSignals::ExitSignals(QObject *parent) : QObject(parent)
{
    if (::pipe2(m_pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, QCoreApplication::instance(),
            &QCoreApplication::quit);
    writingEnd = m_pipe[1];
    setHandlers(wakeEventLoop);
}

ExitSignals::~ExitSignals()
{
    if (!m_notifier)
        return;
    setHandlers(SIG_DFL);
    writingEnd = -1;
    m_notifier.reset();
    for (const int end : m_pipe)
        ::close(end);
}
