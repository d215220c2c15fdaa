// Standard output with a buffer, and with a word about a full disk behind it.
#pragma once

#include "cli/command.h"

#include <QByteArray>

class StandardOutput
{
public:
    StandardOutput();

    void write(const char *bytes, int size);
    void write(const QByteArray &bytes) { write(bytes.constData(), bytes.size()); }
    // The same byte several times.
    void write(char byte, int count = 1);
    // Writes what is left; to be called at the end. Tells a failure of any write so far.
    ExitStatus finish();

private:
    void flushIfFull();
    void flush();

    QByteArray m_buffer;
    int m_error = 0; // errno of the first write that failed
};
