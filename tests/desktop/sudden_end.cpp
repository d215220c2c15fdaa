#include "tests/desktop/sudden_end.h"

#include <csignal>

namespace {

constexpr std::chrono::microseconds untilTheNextLook{200};

} // namespace

SuddenEnd::SuddenEnd(const Editor &editor, std::chrono::microseconds delay)
    : m_thread([this, &editor, delay] { come(editor, delay); })
{
}

SuddenEnd::~SuddenEnd()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_takenBack = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

bool SuddenEnd::hasCome() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hasCome;
}

void SuddenEnd::come(const Editor &editor, std::chrono::microseconds delay)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto takenBack = [this] { return m_takenBack; };
    while (!m_changed.wait_for(lock, delay, takenBack)) {
        const auto process = pid_t(editor.processId());
        if (process > 0 && kill(process, SIGKILL) == 0) {
            m_hasCome = true;
            return;
        }
        delay = untilTheNextLook;
    }
}
