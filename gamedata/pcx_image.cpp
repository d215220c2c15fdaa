#include "gamedata/pcx_image.h"

#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <QtEndian>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

namespace {

// Where the parts of a record lie. Width and height end every kind of header.
struct RecordKind
{
    qint64 headerBytes;
    qint64 bytesPerPixel;
    qint64 paletteBytes;
};

constexpr int paletteSize = 256;
constexpr RecordKind paletteRecord{12, 1, qint64(3) * paletteSize};
constexpr RecordKind plainRecord{12, 3, 0};
constexpr RecordKind p32Record{32, 4, 0};

constexpr std::array<char, 4> p32Magic{'P', '3', '2', 'F'};

// A record whose header and size have been found sound.
struct Picture
{
    int width = 0; // 0 if the record holds no picture
    int height = 0;
    const uchar *pixels = nullptr;
    const uchar *palette = nullptr; // behind the pixels

    QImage image(QImage::Format format) const
    {
        return width == 0 ? QImage() : QImage(width, height, format);
    }
    const uchar *row(int y, int bytesPerPixel) const
    {
        return pixels + qint64(y) * width * bytesPerPixel;
    }
};

Picture openRecord(const char *record, qint64 size, const RecordKind &kind)
{
    const bool checked = size != uncheckedRecordSize;
    if (!record || (checked && size < kind.headerBytes))
        return {};
    const auto width = qFromLittleEndian<quint32>(record + kind.headerBytes - 8);
    const auto height = qFromLittleEndian<quint32>(record + kind.headerBytes - 4);
    if (width == 0 || height == 0 || width > limits::pictureSide || height > limits::pictureSide)
        return {};
    const qint64 pixelBytes = qint64(width) * height * kind.bytesPerPixel;
    if (checked && pixelBytes + kind.paletteBytes > size - kind.headerBytes)
        return {};
    const uchar *pixels = reinterpret_cast<const uchar *>(record) + kind.headerBytes;
    return {int(width), int(height), pixels, pixels + pixelBytes};
}

constexpr quint32 rgb32(uint red, uint green, uint blue)
{
    return 0xff000000u | red << 16 | green << 8 | blue;
}

// Five, six and five bits, the lower ones cut off.
constexpr quint16 rgb16(uint red, uint green, uint blue)
{
    return quint16((red >> 3) << 11 | (green >> 2) << 5 | blue >> 3);
}

template<typename Pixel, typename Pack>
std::array<Pixel, paletteSize> packedPalette(const Picture &picture, Pack pack)
{
    std::array<Pixel, paletteSize> packed;
    const uchar *entry = picture.palette;
    for (Pixel &pixel : packed) {
        pixel = pack(entry[0], entry[1], entry[2]);
        entry += 3;
    }
    return packed;
}

// Looks every index of the picture up; the image has room for it.
template<typename Pixel>
void fillFromPalette(QImage &image, const Picture &picture,
                     const std::array<Pixel, paletteSize> &palette)
{
    for (int y = 0; y < picture.height; ++y) {
        const uchar *source = picture.row(y, paletteRecord.bytesPerPixel);
        auto *target = reinterpret_cast<Pixel *>(image.scanLine(y));
        for (int x = 0; x < picture.width; ++x)
            target[x] = palette[source[x]];
    }
}

template<typename Pixel, typename Pack>
QImage readPlain(const char *record, qint64 size, QImage::Format format, Pack pack)
{
    const Picture picture = openRecord(record, size, plainRecord);
    QImage image = picture.image(format);
    if (image.isNull())
        return {};
    for (int y = 0; y < picture.height; ++y) {
        const uchar *source = picture.row(y, plainRecord.bytesPerPixel);
        auto *target = reinterpret_cast<Pixel *>(image.scanLine(y));
        for (int x = 0; x < picture.width; ++x, source += plainRecord.bytesPerPixel)
            target[x] = pack(source[2], source[1], source[0]);
    }
    return image;
}

bool hasP32Magic(const char *record, qint64 size)
{
    const bool longEnough = size == uncheckedRecordSize || size >= qint64(p32Magic.size());
    return record && longEnough && std::memcmp(record, p32Magic.data(), p32Magic.size()) == 0;
}

} // namespace

QImage ReadFromArray(char *record, qint64 size)
{
    if (hasP32Magic(record, size))
        return ReadFromArray_P32(record, size);
    return readPlain<quint32>(record, size, QImage::Format_RGB32, rgb32);
}

QImage ReadFromArray_P32(char *record, qint64 size)
{
    const Picture picture = openRecord(record, size, p32Record);
    QImage image = picture.image(QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    for (int y = 0; y < picture.height; ++y) {
        const uchar *source = picture.row(y, p32Record.bytesPerPixel);
        auto *target = reinterpret_cast<quint32 *>(image.scanLine(picture.height - y - 1));
        for (int x = 0; x < picture.width; ++x, source += p32Record.bytesPerPixel)
            target[x] = rgb32(source[2], source[1], source[0]);
    }
    return image;
}

QImage ReadFromArray_16bit(char *record, qint64 size)
{
    return readPlain<quint16>(record, size, QImage::Format_RGB16, rgb16);
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): a colour is as cheap as a reference to it
QImage ReadFromArrayPalette(char *record, QColor key, qint64 size)
{
    const Picture picture = openRecord(record, size, paletteRecord);
    QImage image = picture.image(QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    auto palette = packedPalette<quint32>(picture, rgb32);
    // Keyed out in the table once rather than in every pixel.
    std::replace(palette.begin(), palette.end(), quint32(key.rgba()), quint32(0));
    fillFromPalette(image, picture, palette);
    return image;
}

QImage ReadFromArrayPalette_Slow(char *record, QColor key, qint64 size)
{
    const Picture picture = openRecord(record, size, paletteRecord);
    QImage image = picture.image(QImage::Format_ARGB32);
    if (image.isNull())
        return {};
    // Colours compare equal only in the same model and with the same depth.
    key = QColor::fromRgba(key.rgba());
    for (int y = 0; y < picture.height; ++y) {
        const uchar *source = picture.row(y, paletteRecord.bytesPerPixel);
        for (int x = 0; x < picture.width; ++x) {
            const uchar *entry = picture.palette + qptrdiff(3) * source[x];
            const QColor color(entry[0], entry[1], entry[2]);
            image.setPixelColor(x, y, color == key ? QColor(Qt::transparent) : color);
        }
    }
    return image;
}

QImage ReadFromArrayPalette_16bit(char *record, qint64 size)
{
    const Picture picture = openRecord(record, size, paletteRecord);
    QImage image = picture.image(QImage::Format_RGB16);
    if (!image.isNull())
        fillFromPalette(image, picture, packedPalette<quint16>(picture, rgb16));
    return image;
}

QImage OpenPcx8Image(const QString &name)
{
    int size = 0;
    const std::unique_ptr<char[]> record(EditorData::getLodFileData(name, &size));
    return record ? ReadFromArrayPalette(record.get(), QColor(Qt::cyan), size) : QImage();
}

QImage OpenPcx8Image_16bit(const QString &name)
{
    int size = 0;
    const std::unique_ptr<char[]> record(EditorData::getLodFileData(name, &size));
    return record ? ReadFromArrayPalette_16bit(record.get(), size) : QImage();
}
