// Masks for the composition of region pictures, put straight into the cache.
#pragma once

#include "gamedata/image_cache.h"
#include "gamedata/region_image.h"
#include "tests/gamedata/game_files.h"
#include "tests/gamedata/naive_region_image.h"

#include <QRandomGenerator>
#include <QVector>

#include <memory>

namespace region_masks {

constexpr QRgb notCovered = 0;
constexpr int lightBlue = 1; // 80, 130, 255

constexpr QRgb grey(uint value)
{
    return 0xff000000 | value * 0x010101;
}

inline QImage onePixel(QRgb pixel)
{
    QImage image(1, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, pixel);
    return image;
}

inline QImage rowOf(const QVector<QRgb> &pixels)
{
    QImage image(pixels.size(), 1, QImage::Format_ARGB32);
    for (int x = 0; x < pixels.size(); ++x)
        image.setPixel(x, 0, pixels[x]);
    return image;
}

// A mask as the archives may hold one: about half of it covered, any alpha, any colour, and
// colours also where it isn't covered.
inline QImage randomMask(QRandomGenerator &random, const QSize &size)
{
    QImage mask(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const QRgb rgb = random.generate() & 0xffffff;
            const uint kind = random.generate() % 4;
            const uint alpha = kind < 2 ? 0 : kind == 2 ? 255 : random.generate() % 256;
            mask.setPixel(x, y, alpha << 24 | rgb);
        }
    }
    return mask;
}

inline void useMasks(const NaiveMasks &masks)
{
    preloadArchive->images32["fill"] = masks.fill;
    preloadArchive->images32["border"] = masks.border;
    preloadArchive->images32["glow"] = masks.glow;
}

inline void usePattern(const QImage &pattern)
{
    preloadArchive->images32["cmpdash.pcx"] = pattern;
}

inline QImage composed(unsigned state, int color, unsigned map = 0, unsigned region = 0)
{
    return createGeneratedImage(unsigned(color), map, region, state, "fill", "border", "glow");
}

// Map 0 with one region at this place.
inline void placeRegion(int x, int y)
{
    CampaignRegion region;
    region.x = x;
    region.y = y;
    EditorData::campaignInfo[0].regions = {region};
}

// A cache of its own for each test, and no tables.
class Stage
{
public:
    Stage()
    {
        preloadArchive = m_cache.get();
        game_files::forgetTables();
    }
    ~Stage()
    {
        preloadArchive = nullptr;
        game_files::forgetTables();
    }
    Stage(const Stage &) = delete;
    Stage &operator=(const Stage &) = delete;

private:
    std::unique_ptr<PreloadArchive> m_cache = std::make_unique<PreloadArchive>();
};

} // namespace region_masks
