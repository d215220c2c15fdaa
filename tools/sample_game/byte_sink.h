// Gathers the bytes of a file: little-endian numbers, counted texts, raw bytes. The maker's own,
// apart from the program's runtime, so that what the program reads isn't what it wrote itself.
// Numbers wider than their field are cut to its low bytes.
#pragma once

#include <QByteArray>

#include <vector>

namespace sample {

class ByteSink
{
public:
    void u8(unsigned value) { number(value, 1); }
    void u16(unsigned value) { number(value, 2); }
    void u32(quint32 value) { number(value, 4); }
    void i32(qint32 value) { number(quint32(value), 4); }
    void raw(const QByteArray &value) { m_bytes += value; }
    void zeros(int count) { m_bytes += QByteArray(count, '\0'); }

    // A 32-bit length and that many bytes, no terminator.
    void countedText(const QByteArray &value)
    {
        i32(value.size());
        raw(value);
    }

    // bitCount bits, least significant first, padded with clear ones to whole bytes. Numbers of
    // set bits that lie outside are left out.
    void bits(const std::vector<int> &setBits, int bitCount)
    {
        QByteArray packed((bitCount + 7) / 8, '\0');
        for (const int bit : setBits) {
            if (bit >= 0 && bit < bitCount)
                packed[bit / 8] = char(packed.at(bit / 8) | (1 << (bit % 8)));
        }
        raw(packed);
    }

    const QByteArray &bytes() const { return m_bytes; }
    int size() const { return m_bytes.size(); }

private:
    void number(quint32 value, int size)
    {
        for (int i = 0; i < size; ++i)
            m_bytes += char(value >> (8 * i) & 0xff);
    }

    QByteArray m_bytes;
};

} // namespace sample
