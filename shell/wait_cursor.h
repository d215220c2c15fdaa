// The hourglass for as long as it lives. A reader that has already taken it away, as it does
// before a message, isn't followed by a second taking.
#pragma once

class WaitCursor
{
public:
    WaitCursor();
    ~WaitCursor();
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;

    // Takes it away before its time.
    void restore();

private:
    bool m_set = true;
};
