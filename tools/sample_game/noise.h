// Random numbers that are the same on every machine.
#pragma once

#include <QByteArray>

namespace sample {

class Noise
{
public:
    explicit Noise(quint32 seed) : m_state(seed * 2654435761u + 1u) {}

    quint32 next()
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 17;
        m_state ^= m_state << 5;
        return m_state;
    }

    // 0 to count - 1; the count isn't 0.
    int below(int count) { return int(next() % quint32(count)); }

    QByteArray bytes(int count)
    {
        QByteArray result(count, Qt::Uninitialized);
        for (char &byte : result)
            byte = char(next() >> 11 & 0xff);
        return result;
    }

private:
    quint32 m_state;
};

} // namespace sample
