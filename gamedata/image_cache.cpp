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
    cachedOrRead(images16, name, OpenPcx8Image_16bit);
}

QImage PreloadArchive::loadPcxImage32(const QString &name)
{
    return cachedOrRead(images32, name, OpenPcx8Image);
}

QImage PreloadArchive::loadPcxImage16(const QString &name)
{
    return cachedOrRead(images16, name, OpenPcx8Image_16bit);
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
