#include "shell/copy_in_place.h"

#include "shell/file_in_writing.h"
#include "shell/recovery_files.h"

CopyInPlace::CopyInPlace(std::unique_ptr<QFile> file, QString path)
    : m_path(std::move(path)), m_file(std::move(file))
{
}

CopyInPlace::~CopyInPlace()
{
    finish();
}

bool CopyInPlace::replace(const UnpackedFile &content)
{
    settle();
    if (takesLong(content)) {
        stopWaiting();
        if (writeBehind(content))
            return true;
    }
    auto file = writtenBeside(m_path, content);
    if (!file)
        return false;
    stop(); // what is older mustn't come last
    if (!takePlace(*file, m_path))
        return false;
    m_file = std::move(file);
    return true;
}

void CopyInPlace::finish()
{
    while (m_running) {
        m_running->finish();
        settle();
    }
}

void CopyInPlace::stop()
{
    stopWaiting();
    if (m_running)
        m_running->stop();
    settle();
}

bool CopyInPlace::isEmpty() const
{
    return m_file->size() == 0;
}

bool CopyInPlace::writeBehind(const UnpackedFile &content)
{
    auto file = fileBeside(m_path);
    if (!file)
        return false;
    auto writing = FileInWriting::start(std::move(file), m_path, content, *m_file, m_running.get());
    if (!writing)
        return false;
    (m_running ? m_waiting : m_running) = std::move(writing);
    return true;
}

// It may have begun a moment ago, and even be in its place: then it isn't lost.
void CopyInPlace::stopWaiting()
{
    if (m_waiting && !m_waiting->stop())
        m_waiting.reset();
    settle();
}

// Who has ended has its file in the place, or none.
void CopyInPlace::settle()
{
    while (m_running && m_running->hasEnded()) {
        if (m_running->finish())
            m_file = m_running->takeFile();
        m_running = std::move(m_waiting);
    }
}
