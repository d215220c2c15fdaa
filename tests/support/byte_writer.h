// Puts together the bytes of a file by hand: little-endian numbers, counted texts, raw bytes.
// Written apart from the program's own writers, so that these don't prove themselves.
#pragma once

#include <QByteArray>

class ByteWriter
{
public:
    ByteWriter &u8(unsigned value) { return number(value, 1); }
    ByteWriter &u16(unsigned value) { return number(value, 2); }
    ByteWriter &u32(quint32 value) { return number(value, 4); }
    ByteWriter &i32(qint32 value) { return number(quint32(value), 4); }
    ByteWriter &raw(const QByteArray &value)
    {
        m_bytes += value;
        return *this;
    }
    ByteWriter &zeros(int count) { return raw(QByteArray(count, '\0')); }
    // A 32-bit length and that many bytes.
    ByteWriter &text(const QByteArray &value) { return u32(quint32(value.size())).raw(value); }
    // At most 15 characters, filled up with zeros to 16.
    ByteWriter &name16(const QByteArray &value) { return raw(value.leftJustified(16, '\0', true)); }

    const QByteArray &bytes() const { return m_bytes; }
    int size() const { return m_bytes.size(); }

private:
    ByteWriter &number(quint32 value, int size)
    {
        for (int i = 0; i < size; ++i)
            m_bytes += char(value >> (8 * i) & 0xff);
        return *this;
    }

    QByteArray m_bytes;
};
