// A named pipe that nobody writes to, and that tells who opens it all the same.
#pragma once

#include <QFile>
#include <QString>

#include <atomic>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

class IdlePipe
{
public:
    explicit IdlePipe(const QString &path) : m_path(QFile::encodeName(path))
    {
        m_made = mkfifo(m_path.constData(), 0600) == 0;
        m_watcher = std::thread([this] { watch(); });
    }

    ~IdlePipe()
    {
        m_end = true;
        m_watcher.join();
    }

    IdlePipe(const IdlePipe &) = delete;
    IdlePipe &operator=(const IdlePipe &) = delete;

    bool isMade() const { return m_made; }
    // Somebody has waited at it.
    bool wasOpened() const { return m_opened; }

private:
    // A writer that doesn't wait gets the pipe only where a reader is. The reader goes on then, so
    // that a test fails instead of hanging.
    void watch()
    {
        while (!m_end) {
            const int handle = ::open(m_path.constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
            if (handle >= 0) {
                m_opened = true;
                ::close(handle);
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
    }

    const QByteArray m_path;
    bool m_made = false;
    std::atomic<bool> m_opened{false};
    std::atomic<bool> m_end{false};
    std::thread m_watcher;
};
