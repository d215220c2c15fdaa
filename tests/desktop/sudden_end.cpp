#include "tests/desktop/sudden_end.h"

#include "tests/desktop/failure.h"

#include <QFile>

#include <csignal>

#include <poll.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace {

constexpr std::chrono::microseconds untilTheNextLook{200};
constexpr int untilItMayBeTakenBack = 20; // milliseconds

int watchOver(const QStringList &folders)
{
    if (folders.isEmpty())
        return -1;
    const int watch = inotify_init1(IN_CLOEXEC);
    for (const QString &folder : folders) {
        if (inotify_add_watch(watch, QFile::encodeName(folder).constData(),
                              IN_CREATE | IN_MOVED_TO | IN_DELETE) < 0)
            throw Failure("a folder to watch", folder);
    }
    return watch;
}

} // namespace

SuddenEnd::SuddenEnd(const Editor &editor, const Moment &moment)
    : m_folders(watchOver(moment.folders)),
      m_thread([this, &editor, moment] { come(editor, moment); })
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
    if (m_folders >= 0)
        close(m_folders);
}

bool SuddenEnd::hasCome() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_hasCome;
}

bool SuddenEnd::isTakenBack() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_takenBack;
}

// False if the end is taken back before there is one.
bool SuddenEnd::waitForAFile()
{
    pollfd news{m_folders, POLLIN, 0};
    while (poll(&news, 1, untilItMayBeTakenBack) == 0) {
        if (isTakenBack())
            return false;
    }
    return true;
}

void SuddenEnd::come(const Editor &editor, const Moment &moment)
{
    if (m_folders >= 0 && !waitForAFile())
        return;
    std::unique_lock<std::mutex> lock(m_mutex);
    const auto takenBack = [this] { return m_takenBack; };
    std::chrono::microseconds delay = moment.delay;
    while (!m_changed.wait_for(lock, delay, takenBack)) {
        const auto process = pid_t(editor.processId());
        if (process > 0 && kill(process, SIGKILL) == 0) {
            m_hasCome = true;
            return;
        }
        delay = untilTheNextLook;
    }
}
