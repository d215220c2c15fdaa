#include "fuzz/memory_file.h"

#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

MemoryFile::MemoryFile() : m_descriptor(memfd_create("fuzz", MFD_CLOEXEC))
{
    if (m_descriptor < 0)
        std::abort();
}

MemoryFile::~MemoryFile()
{
    close(m_descriptor);
}

void MemoryFile::set(const uint8_t *data, size_t size)
{
    const bool emptied = ftruncate(m_descriptor, 0) == 0;
    size_t done = 0;
    while (emptied && done < size) {
        const ssize_t written = pwrite(m_descriptor, data + done, size - done, off_t(done));
        if (written <= 0)
            break;
        done += size_t(written);
    }
    if (done != size)
        std::abort(); // no memory for the input: nothing that follows would mean anything
}

void MemoryFile::set(const QByteArray &bytes)
{
    set(reinterpret_cast<const uint8_t *>(bytes.constData()), size_t(bytes.size()));
}

QString MemoryFile::path() const
{
    return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor);
}
