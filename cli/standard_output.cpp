#include "cli/standard_output.h"

#include "gamedata/disk_file.h"

#include <unistd.h>

namespace {

constexpr int bufferSize = 64 * 1024;

} // namespace

StandardOutput::StandardOutput()
{
    m_buffer.reserve(2 * bufferSize);
}

void StandardOutput::write(const char *bytes, int size)
{
    m_buffer.append(bytes, size);
    flushIfFull();
}

void StandardOutput::write(char byte, int count)
{
    m_buffer.append(count, byte);
    flushIfFull();
}

void StandardOutput::flushIfFull()
{
    if (m_buffer.size() >= bufferSize)
        flush();
}

ExitStatus StandardOutput::finish()
{
    flush();
    if (m_error == 0)
        return exitDone;
    return cannotWrite(QStringLiteral("standard output"), qt_error_string(m_error));
}

void StandardOutput::flush()
{
    qint64 done = 0;
    while (m_error == 0 && done < m_buffer.size()) {
        const ssize_t written = uninterrupted([&] {
            return ::write(STDOUT_FILENO, m_buffer.constData() + done,
                           size_t(m_buffer.size() - done));
        });
        if (written > 0)
            done += written;
        else
            m_error = written < 0 ? errno : EIO;
    }
    m_buffer.resize(0); // keeps its room
}
