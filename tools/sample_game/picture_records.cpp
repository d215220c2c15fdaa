#include "tools/sample_game/picture_records.h"

#include "tools/sample_game/byte_sink.h"

#include <QHash>
#include <QImage>
#include <QVector>

namespace sample {

namespace {

constexpr int kPaletteSize = 256;
constexpr int kUnknownSize = 20;
constexpr char kSpareByte = '\0';

void addPlainHeader(ByteSink &sink, const QImage &picture, int bytesPerPixel)
{
    sink.i32(picture.width() * picture.height() * bytesPerPixel);
    sink.i32(picture.width());
    sink.i32(picture.height());
}

void addBlueGreenRed(QByteArray &bytes, QRgb colour)
{
    bytes += char(qBlue(colour));
    bytes += char(qGreen(colour));
    bytes += char(qRed(colour));
}

const QRgb *row(const QImage &picture, int y)
{
    return reinterpret_cast<const QRgb *>(picture.constScanLine(y));
}

int distance(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) + qAbs(qGreen(a) - qGreen(b)) + qAbs(qBlue(a) - qBlue(b));
}

// Gives each colour its place in the palette, in the order of first use behind the key colour.
// Colours that come when the palette is full get the nearest one: a picture of all 256 greys has
// one too many.
class Palette
{
public:
    Palette() { add(qRgb(0, 255, 255)); }

    char numberOf(QRgb pixel)
    {
        if (qAlpha(pixel) == 0)
            return 0;
        const QRgb colour = pixel | 0xff000000u;
        const auto found = m_numbers.constFind(colour);
        return char(found != m_numbers.constEnd() ? *found : add(colour));
    }

    QByteArray bytes() const { return m_bytes.leftJustified(kPaletteSize * 3, '\0'); }

private:
    int add(QRgb colour)
    {
        if (m_colours.size() == kPaletteSize) {
            const int substitute = nearest(colour);
            m_numbers.insert(colour, substitute);
            return substitute;
        }
        const int number = m_colours.size();
        m_numbers.insert(colour, number);
        m_colours.push_back(colour);
        m_bytes += char(qRed(colour));
        m_bytes += char(qGreen(colour));
        m_bytes += char(qBlue(colour));
        return number;
    }

    // The key colour isn't one of those to choose from.
    int nearest(QRgb colour) const
    {
        int best = 1;
        for (int i = 2; i < m_colours.size(); ++i) {
            if (distance(m_colours.at(i), colour) < distance(m_colours.at(best), colour))
                best = i;
        }
        return best;
    }

    QHash<QRgb, int> m_numbers;
    QVector<QRgb> m_colours;
    QByteArray m_bytes;
};

} // namespace

QByteArray record24Bit(const QImage &picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
    ByteSink sink;
    addPlainHeader(sink, source, 3);
    QByteArray pixels;
    pixels.reserve(source.width() * source.height() * 3);
    for (int y = 0; y < source.height(); ++y) {
        const QRgb *line = row(source, y);
        for (int x = 0; x < source.width(); ++x)
            addBlueGreenRed(pixels, line[x]);
    }
    sink.raw(pixels);
    return sink.bytes();
}

QByteArray record32Bit(const QImage &picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
    ByteSink sink;
    sink.raw("P32F");
    sink.zeros(kUnknownSize);
    sink.i32(source.width());
    sink.i32(source.height());
    QByteArray pixels;
    pixels.reserve(source.width() * source.height() * 4);
    for (int y = source.height() - 1; y >= 0; --y) {
        const QRgb *line = row(source, y);
        for (int x = 0; x < source.width(); ++x) {
            addBlueGreenRed(pixels, line[x]);
            pixels += kSpareByte;
        }
    }
    sink.raw(pixels);
    return sink.bytes();
}

QByteArray recordPalette(const QImage &picture)
{
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32);
    ByteSink sink;
    addPlainHeader(sink, source, 1);
    Palette palette;
    QByteArray pixels;
    pixels.reserve(source.width() * source.height());
    for (int y = 0; y < source.height(); ++y) {
        const QRgb *line = row(source, y);
        for (int x = 0; x < source.width(); ++x)
            pixels += palette.numberOf(line[x]);
    }
    sink.raw(pixels);
    sink.raw(palette.bytes());
    return sink.bytes();
}

} // namespace sample
