// The editor's end by SIGKILL, at a moment that nobody in it can see coming.
#pragma once

#include "tests/desktop/editor.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

class SuddenEnd
{
public:
    // So long after now; if no editor runs then, as soon as there is one.
    SuddenEnd(const Editor &editor, std::chrono::microseconds delay);
    // Takes it back if it hasn't come yet.
    ~SuddenEnd();
    SuddenEnd(const SuddenEnd &) = delete;
    SuddenEnd &operator=(const SuddenEnd &) = delete;

    // What it met may have been ending by itself already.
    bool hasCome() const;

private:
    void come(const Editor &editor, std::chrono::microseconds delay);

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_takenBack = false;
    bool m_hasCome = false;
    std::thread m_thread;
};
