#include "fuzz/time_limit.h"

#include <atomic>
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
constexpr int ticksASecond = 4;

// Inputs begun, and whether the last one is still in work. The signal's handler reads both.
std::atomic<unsigned> begun{0};
std::atomic<bool> inWork{false};
static_assert(std::atomic<unsigned>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void endTooSlow()
{
    static constexpr char message[] = "An input takes too long.\n";
    if (write(STDERR_FILENO, message, sizeof message - 1) < 0)
        _exit(1);
    std::abort();
}

// The first tick of an input finds out that it is there, the others count.
void tick(int /*signal*/)
{
    static unsigned seen = 0;
    static int ticks = 0;
    const unsigned now = begun;
    ticks = inWork && seen == now ? ticks + 1 : 0;
    seen = now;
    if (ticks >= secondsAnInput * ticksASecond)
        endTooSlow();
}

bool startTicking()
{
    itimerval timer = {};
    timer.it_interval.tv_usec = timer.it_value.tv_usec = 1000000 / ticksASecond;
    return std::signal(SIGPROF, tick) != SIG_ERR && setitimer(ITIMER_PROF, &timer, nullptr) == 0;
}

} // namespace

TimeLimit::TimeLimit()
{
    static const bool ticking = startTicking();
    if (!ticking)
        std::abort();
    ++begun;
    inWork = true;
}

TimeLimit::~TimeLimit()
{
    inWork = false;
}
