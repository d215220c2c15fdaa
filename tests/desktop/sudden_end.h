// The editor's end by SIGKILL, at a moment that nobody in it can see coming.
#pragma once

#include "tests/desktop/editor.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

// When an end comes: so long after the beginning of a step, or after the first file that is made or
// named in one of these folders since then, if there are any.
struct Moment
{
    int step = 0;
    std::chrono::microseconds delay{0};
    QStringList folders;
};

class SuddenEnd
{
public:
    // The step begins now. If no editor runs at the moment, the end comes as soon as there is one.
    SuddenEnd(const Editor &editor, const Moment &moment);
    // Takes it back if it hasn't come yet.
    ~SuddenEnd();
    SuddenEnd(const SuddenEnd &) = delete;
    SuddenEnd &operator=(const SuddenEnd &) = delete;

    // What it met may have been ending by itself already.
    bool hasCome() const;

private:
    void come(const Editor &editor, const Moment &moment);
    bool waitForAFile();
    bool isTakenBack() const;

    int m_folders = -1; // what tells of files in them
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_takenBack = false;
    bool m_hasCome = false;
    std::thread m_thread;
};
