// Records of the game's own pictures, put together by hand.
#pragma once

#include "tests/support/byte_writer.h"

#include <QColor>
#include <QMap>
#include <QVector>

#include <algorithm>
#include <memory>

namespace picture_records {

inline QByteArray plainHeader(quint32 width, quint32 height)
{
    return ByteWriter().u32(0xdeadbeef).u32(width).u32(height).bytes();
}

inline QByteArray p32Header(quint32 width, quint32 height)
{
    return ByteWriter().raw("P32F").raw(QByteArray(20, 'u')).u32(width).u32(height).bytes();
}

// Palette entries not named are black.
inline QByteArray palette(const QMap<int, QColor> &colors)
{
    ByteWriter writer;
    for (int i = 0; i < 256; ++i) {
        const QColor color = colors.value(i, Qt::black);
        writer.u8(uint(color.red())).u8(uint(color.green())).u8(uint(color.blue()));
    }
    return writer.bytes();
}

inline QByteArray paletteRecord(quint32 width, quint32 height, const QByteArray &indexes,
                                const QMap<int, QColor> &colors)
{
    return plainHeader(width, height) + indexes + palette(colors);
}

inline QByteArray plainRecord(quint32 width, quint32 height, const QVector<QColor> &pixels)
{
    ByteWriter writer;
    writer.raw(plainHeader(width, height));
    for (const QColor &color : pixels)
        writer.u8(uint(color.blue())).u8(uint(color.green())).u8(uint(color.red()));
    return writer.bytes();
}

// The fourth byte of a pixel is the colour's alpha.
inline QByteArray p32Record(quint32 width, quint32 height, const QVector<QColor> &pixels)
{
    ByteWriter writer;
    writer.raw(p32Header(width, height));
    for (const QColor &color : pixels)
        writer.u8(uint(color.blue()))
            .u8(uint(color.green()))
            .u8(uint(color.red()))
            .u8(uint(color.alpha()));
    return writer.bytes();
}

// A buffer of exactly the record's size, so that a read beyond it is one beyond the heap block.
class ExactBuffer
{
public:
    explicit ExactBuffer(const QByteArray &bytes) : m_bytes(new char[size_t(bytes.size())])
    {
        std::copy(bytes.begin(), bytes.end(), m_bytes.get());
    }

    char *data() const { return m_bytes.get(); }

private:
    std::unique_ptr<char[]> m_bytes;
};

} // namespace picture_records
