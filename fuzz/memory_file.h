// A file in memory with a path of its own, for readers that open what they read by its name.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstddef>
#include <cstdint>

class MemoryFile
{
public:
    MemoryFile();
    ~MemoryFile();
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    // Replaces the contents.
    void set(const uint8_t *data, size_t size);
    void set(const QByteArray &bytes);
    // Valid as long as this object.
    QString path() const;

private:
    int m_descriptor;
};
