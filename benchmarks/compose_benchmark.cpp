// Composing a region's picture against the same work by setPixelColor and against copying the
// picture; redrawing a map whose pictures are cached against making pixmaps of them.
#include "benchmarks/stopwatch.h"
#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_image.h"
#include "tests/gamedata/naive_region_image.h"

#include <QGuiApplication>
#include <QPixmap>

#include <cmath>
#include <functional>

namespace {

constexpr int mapWidth = 456;
constexpr int mapHeight = 600;
constexpr double measureMilliseconds = 400;

// How far out of the region's shape a point lies, 1 being its edge: an ellipse with a wavy coast
// that nearly fills its frame, as regions do.
double distanceFromCentre(const QSize &size, int x, int y)
{
    const double dx = 2.0 * x / size.width() - 1;
    const double dy = 2.0 * y / size.height() - 1;
    const double wave = 1 + 0.08 * std::sin(7 * std::atan2(dy, dx));
    return std::hypot(dx, dy) * wave;
}

NaiveMasks drawMasks(const QSize &size)
{
    const QImage empty(size, QImage::Format_ARGB32);
    NaiveMasks masks = {empty, empty, empty};
    masks.fill.fill(Qt::transparent);
    masks.border = masks.glow = masks.fill;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double distance = distanceFromCentre(size, x, y);
            const int grey = std::min(255, int(distance * 255));
            const QColor color(grey, grey, grey);
            if (distance < 1)
                masks.fill.setPixelColor(x, y, color);
            if (distance < 0.9)
                masks.glow.setPixelColor(x, y, color);
            if (distance > 0.85 && distance < 1)
                masks.border.setPixelColor(x, y, color);
        }
    }
    return masks;
}

QImage drawPattern()
{
    QImage pattern(mapWidth, mapHeight, QImage::Format_ARGB32);
    for (int y = 0; y < mapHeight; ++y) {
        for (int x = 0; x < mapWidth; ++x)
            pattern.setPixelColor(x, y,
                                  (x + y) % 8 < 4 ? QColor(40, 40, 40) : QColor(200, 200, 200));
    }
    return pattern;
}

void layOutMap()
{
    preloadArchive = new PreloadArchive; // lives as long as the process, as in the program
    preloadArchive->images32["cmpdash.pcx"] = drawPattern();
    CampaignInfo &map = EditorData::campaignInfo[0];
    map.regions.resize(1);
    map.regionCount = 1;
}

bool measureLook(const char *look, const NaiveMasks &masks, const std::function<QImage()> &fast,
                 const std::function<QImage()> &naive)
{
    const QSize size = masks.fill.size();
    if (fast() != naive()) {
        std::printf("%s %dx%d: the results differ\n", look, size.width(), size.height());
        return false;
    }
    const double composing = stopwatch::best(measureMilliseconds, fast);
    const double pixelByPixel = stopwatch::best(measureMilliseconds, naive);
    const double copying = stopwatch::best(measureMilliseconds, [&] { return masks.fill.copy(); });
    std::printf("%s %dx%d: %.1f us composed, %.1f us by setPixelColor, %.1f us copied\n", look,
                size.width(), size.height(), composing / 1e3, pixelByPixel / 1e3, copying / 1e3);
    const bool faster =
        stopwatch::atLeast("  times faster than setPixelColor", pixelByPixel / composing, 100);
    return stopwatch::atMost("  copies of the picture", composing / copying, 12) && faster;
}

bool measureComposing(const QSize &size)
{
    const NaiveMasks masks = drawMasks(size);
    preloadArchive->images32["fill"] = masks.fill;
    preloadArchive->images32["border"] = masks.border;
    preloadArchive->images32["glow"] = masks.glow;
    const QColor tint = getRegionColor_32bit(2);
    const QImage pattern = preloadArchive->images32["cmpdash.pcx"];
    const auto composed = [](unsigned state) {
        return createGeneratedImage(2, 0, 0, state, "fill", "border", "glow");
    };

    bool met = measureLook(
        "unselected", masks, [&] { return composed(regionUnselected); },
        [&] { return naive::unselected(masks, tint); });
    met &= measureLook(
        "selected", masks, [&] { return composed(regionSelected); },
        [&] { return naive::selected(masks, tint); });
    met &= measureLook(
        "unused", masks, [&] { return composed(regionUnused); },
        [&] { return naive::unused(masks, tint, pattern, 0, 0); });
    return met;
}

bool measureRedraw()
{
    constexpr unsigned regions = 20;
    const QImage picture = drawMasks({160, 140}).fill;
    std::vector<QImage> pictures;
    for (unsigned region = 0; region < regions; ++region) {
        pictures.push_back(picture.copy());
        for (unsigned state = 0; state < 3; ++state)
            preloadArchive->saveLargeGeneratedImage(0, region, state, 2, pictures.back());
    }
    const double cached = stopwatch::best(measureMilliseconds, [] {
        std::vector<QPixmap> pixmaps;
        pixmaps.reserve(regions);
        for (unsigned region = 0; region < regions; ++region)
            pixmaps.push_back(QPixmap::fromImage(
                *preloadArchive->getLargeGeneratedImage(0, region, regionUnselected, 2)));
        return pixmaps;
    });
    const double plain = stopwatch::best(measureMilliseconds, [&] {
        std::vector<QPixmap> pixmaps;
        pixmaps.reserve(regions);
        for (const QImage &image : pictures)
            pixmaps.push_back(QPixmap::fromImage(image));
        return pixmaps;
    });
    std::printf("20 regions: %.1f us from the cache, %.1f us as bare pixmaps\n", cached / 1e3,
                plain / 1e3);
    return stopwatch::atMost("  redraw of 20 cached regions against their pixmaps", cached / plain,
                             2);
}

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    layOutMap();

    bool met = measureComposing({160, 140});
    met &= measureComposing({mapWidth, mapHeight});
    met &= measureRedraw();
    return met ? 0 : 1;
}
