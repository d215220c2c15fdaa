// An editor without windows that is killed, and what it has kept a copy of.
#pragma once

#include <QByteArray>

#include <csignal>
#include <functional>

#include <sys/wait.h>
#include <unistd.h>

constexpr int patience = 30000; // milliseconds, for what takes a moment

// More than is written while one waits.
inline QByteArray large(char byte)
{
    return QByteArray(33 * 1024 * 1024, byte);
}

// An editor that is killed once it has done this. Answers whether it has come that far.
inline bool runKilledEditor(const std::function<void()> &work, bool withItsGroup = false)
{
    const pid_t editor = fork();
    if (editor == 0) {
        if (withItsGroup)
            setpgid(0, 0);
        work();
        kill(withItsGroup ? 0 : getpid(), SIGKILL);
        _exit(1);
    }
    int status = 0;
    return waitpid(editor, &status, 0) == editor && WIFSIGNALED(status) &&
           WTERMSIG(status) == SIGKILL;
}
