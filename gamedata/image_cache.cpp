#include "gamedata/image_cache.h"

#include "gamedata/pcx_image.h"

#include <tuple>

PreloadArchive *preloadArchive = nullptr;

namespace {

using ImageReader = QImage (*)(const QString &name);

const QImage &cachedOrRead(QMap<QString, QImage> &cache, const QString &name, ImageReader read)
{
    auto found = cache.find(name);
    if (found == cache.end())
        found = cache.insert(name, read(name));
    return found.value();
}

// The same picture in 16 bits, as reading its record again would give it: there cyan is a colour,
// which is all that is transparent in 32 bits.
QImage in16Bits(const QImage &picture)
{
    constexpr QRgb key = qRgb(0, 255, 255);
    const int width = picture.width();
    const int height = picture.height();
    QImage result(width, height, QImage::Format_RGB16);
    for (int y = 0; y < height; ++y) {
        const auto *source = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
        auto *target = reinterpret_cast<quint16 *>(result.scanLine(y));
        for (int x = 0; x < width; ++x) {
            const QRgb pixel = qAlpha(source[x]) == 0 ? key : source[x];
            target[x] =
                quint16((pixel >> 8 & 0xf800) | (pixel >> 5 & 0x07e0) | (pixel >> 3 & 0x1f));
        }
    }
    return result;
}

template<typename Key>
QImage *imageIn(QMap<Key, QImage> &cache, const Key &key)
{
    const auto found = cache.find(key);
    return found == cache.end() ? nullptr : &found.value();
}

} // namespace

bool RegInfo::operator<(const RegInfo &other) const
{
    return std::tie(map, region, state, color) <
           std::tie(other.map, other.region, other.state, other.color);
}

void PreloadArchive::preloadPcxImage32(const QString &name)
{
    cachedOrRead(images32, name, OpenPcx8Image);
}

void PreloadArchive::preloadPcxImage16(const QString &name)
{
    loadPcxImage16(name);
}

QImage PreloadArchive::loadPcxImage32(const QString &name)
{
    return cachedOrRead(images32, name, OpenPcx8Image);
}

QImage PreloadArchive::loadPcxImage16(const QString &name)
{
    const QImage in32Bits = images32.value(name);
    if (in32Bits.isNull() || images16.contains(name))
        return cachedOrRead(images16, name, OpenPcx8Image_16bit);
    return images16.insert(name, in16Bits(in32Bits)).value();
}

QImage *PreloadArchive::getLargeGeneratedImage(unsigned map, unsigned region, unsigned state,
                                               unsigned color)
{
    return imageIn(largeImages, RegInfo{map, region, state, color});
}

QImage *PreloadArchive::getSmallGeneratedImage(unsigned map, unsigned region)
{
    return imageIn(smallImages, qMakePair(map, region));
}

void PreloadArchive::saveLargeGeneratedImage(unsigned map, unsigned region, unsigned state,
                                             unsigned color, const QImage &image)
{
    largeImages.insert(RegInfo{map, region, state, color}, image);
}

void PreloadArchive::saveSmallGeneratedImage(unsigned map, unsigned region, const QImage &image)
{
    smallImages.insert(qMakePair(map, region), image);
}
