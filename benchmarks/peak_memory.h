// By how much the resident memory of this process rises at the highest while it does something.
#pragma once

#include <QByteArray>
#include <QFile>

#include <malloc.h>

namespace peak_memory {

inline qint64 statusBytes(const char *field)
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field))).simplified().split(' ').first().toLongLong() *
                   1024;
    }
    return 0;
}

inline void beginPeakAnew()
{
    QFile refs("/proc/self/clear_refs");
    if (refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        refs.write("5");
}

// In bytes; negative if the work answers false.
template<typename Work>
qint64 riseDuring(Work work)
{
    malloc_trim(0); // or else the work finds room that was left before
    beginPeakAnew();
    const qint64 before = statusBytes("VmRSS:");
    return work() ? statusBytes("VmHWM:") - before : -1;
}

} // namespace peak_memory
