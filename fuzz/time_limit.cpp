#include "fuzz/time_limit.h"

#include <csignal>
#include <cstdlib>

#include <sys/time.h>
#include <unistd.h>

namespace {

#ifdef CMPED_INSTRUMENTED
// Sanitizers and a fuzzer's counters make the readers many times slower.
constexpr int secondsAnInput = 4;
#else
constexpr int secondsAnInput = 1;
#endif

void endTooSlow(int /*signal*/)
{
    static constexpr char message[] = "An input takes too long.\n";
    if (write(STDERR_FILENO, message, sizeof message - 1) < 0)
        _exit(1);
    std::abort();
}

void setTimer(int seconds)
{
    itimerval timer = {};
    timer.it_value.tv_sec = seconds;
    if (setitimer(ITIMER_PROF, &timer, nullptr) != 0)
        std::abort();
}

} // namespace

TimeLimit::TimeLimit()
{
    static const auto before = std::signal(SIGPROF, endTooSlow);
    if (before == SIG_ERR)
        std::abort();
    setTimer(secondsAnInput);
}

TimeLimit::~TimeLimit()
{
    setTimer(0);
}
