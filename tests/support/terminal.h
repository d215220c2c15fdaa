// A terminal of our own: a device that a save gone wrong may harm.
#pragma once

#include <QFile>
#include <QString>

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

class Terminal
{
public:
    ~Terminal() { close(); }

    bool open()
    {
        m_handle = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        return m_handle >= 0 && grantpt(m_handle) == 0 && unlockpt(m_handle) == 0;
    }
    void close()
    {
        if (m_handle >= 0)
            ::close(m_handle);
        m_handle = -1;
    }
    QString name() const { return QFile::decodeName(ptsname(m_handle)); }

private:
    int m_handle = -1;
};
