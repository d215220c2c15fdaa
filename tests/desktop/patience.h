// How long a test waits for something that has to come: long enough for a machine that is busy with
// other things. Asking whether any is left takes a moment itself, so that nobody asks in haste.
#pragma once

#include <QDeadlineTimer>
#include <QThread>

class Patience
{
public:
    explicit Patience(int limit = longest) : m_end(limit) {} // milliseconds

    bool isLeft() const
    {
        QThread::msleep(pause);
        return !m_end.hasExpired();
    }

private:
    static constexpr int longest = 90000;
    static constexpr unsigned long pause = 10;

    QDeadlineTimer m_end;
};
