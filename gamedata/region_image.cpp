#include "gamedata/region_image.h"

#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_blend.h"
#include "gamedata/report.h"

#include <QDebug>

#include <algorithm>
#include <array>
#include <vector>

namespace {

quint32 tintRgb(int color)
{
    const QColor tint = getRegionColor_32bit(color);
    return qRgb(tint.red(), tint.green(), tint.blue());
}

struct Masks
{
    QImage fill;
    QImage border;
    QImage glow;
};

// What the log says before the process ends over a missing mask.
struct MissingMaskTexts
{
    const char *fill;
    const char *border;
    const char *glow;
};

constexpr MissingMaskTexts missingMask{"No fill img", "No border img", "No glow img"};
constexpr MissingMaskTexts missingUnusedMask{"Fill image is null", "Border image is null",
                                             "Glow image is null"};

QImage loadMask(const QString &name, const char *missingText)
{
    const QImage mask = preloadArchive->loadPcxImage32(name);
    if (mask.isNull()) {
        qDebug() << missingText;
        endSilently(1);
    }
    return mask.convertToFormat(QImage::Format_ARGB32);
}

// All three in the fill's size: what lies outside a mask is transparent, so it isn't covered.
Masks loadMasks(const QString &fill, const QString &border, const QString &glow,
                const MissingMaskTexts &missing)
{
    Masks masks = {loadMask(fill, missing.fill), loadMask(border, missing.border),
                   loadMask(glow, missing.glow)};
    const QRect area = masks.fill.rect();
    for (QImage *mask : {&masks.border, &masks.glow}) {
        if (mask->rect() != area)
            *mask = mask->copy(area);
    }
    return masks;
}

const quint32 *rowOf(const QImage &image, int y)
{
    return reinterpret_cast<const quint32 *>(image.constScanLine(y));
}

const region_blend::Blender &blender()
{
    static const region_blend::Blender &fastest = *region_blend::usableBlenders().back();
    return fastest;
}

// Pixels of 32 bits leave no gap between rows, so a picture is one run.
QImage composed(const Masks &masks, region_blend::Blender::Function blend, quint32 tint)
{
    QImage result(masks.fill.size(), QImage::Format_ARGB32);
    if (result.isNull())
        return {};
    const region_blend::Run run = {rowOf(masks.fill, 0), rowOf(masks.border, 0),
                                   rowOf(masks.glow, 0), nullptr,
                                   reinterpret_cast<quint32 *>(result.bits())};
    blend(run, qint64(result.width()) * result.height(), tint);
    return result;
}

// Gives the pattern's pixels under one row of a region at any place, zeros outside the pattern.
class PatternRows
{
public:
    PatternRows(const QImage &pattern, int x, int y, int width)
        : m_pattern(pattern), m_left(x), m_top(y), m_width(width), m_row(size_t(width), 0)
    {
        m_begin = std::clamp<qint64>(-m_left, 0, width);
        m_end = std::clamp<qint64>(pattern.width() - m_left, m_begin, width);
    }

    const quint32 *at(int row)
    {
        const qint64 y = m_top + row;
        const bool inside = y >= 0 && y < m_pattern.height();
        if (inside && m_begin == 0 && m_end == m_width)
            return rowOf(m_pattern, int(y)) + m_left;
        std::fill(m_row.begin(), m_row.end(), 0);
        if (inside && m_begin < m_end) {
            const quint32 *source = rowOf(m_pattern, int(y)) + (m_left + m_begin);
            std::copy_n(source, m_end - m_begin, m_row.begin() + m_begin);
        }
        return m_row.data();
    }

private:
    QImage m_pattern;
    qint64 m_left;
    qint64 m_top;
    qint64 m_width;
    qint64 m_begin = 0; // the columns inside the pattern
    qint64 m_end = 0;
    std::vector<quint32> m_row;
};

QPoint regionPosition(unsigned map, unsigned region)
{
    const QVector<CampaignRegion> &regions = EditorData::campaignMap(map).regions;
    if (region >= unsigned(regions.size()))
        return {};
    return {regions[int(region)].x, regions[int(region)].y};
}

} // namespace

QColor getRegionColor_32bit(int color)
{
    static constexpr std::array<QRgb, 8> tints{
        qRgb(255, 0, 0),    qRgb(80, 130, 255), qRgb(193, 139, 84), qRgb(42, 173, 9),
        qRgb(247, 131, 30), qRgb(175, 16, 196), qRgb(47, 189, 179), qRgb(221, 127, 132)};
    if (color < 0 || size_t(color) >= tints.size())
        return {};
    return QColor(tints[size_t(color)]);
}

QImage createUnselectedRegionImage_F(unsigned color, const QString &fill, const QString &border,
                                     const QString &glow)
{
    const Masks masks = loadMasks(fill, border, glow, missingMask);
    return composed(masks, blender().unselected, tintRgb(int(color)));
}

QImage createSelectedRegionImage_F(int color, const QString &fill, const QString &border,
                                   const QString &glow)
{
    const Masks masks = loadMasks(fill, border, glow, missingMask);
    return composed(masks, blender().selected, tintRgb(color));
}

QImage createUnusedRegionImage_F(int color, const QString &fill, const QString &border,
                                 const QString &glow, unsigned map, unsigned region)
{
    qDebug() << "Open pcx: " << fill;
    const Masks masks = loadMasks(fill, border, glow, missingUnusedMask);
    const QImage pattern = preloadArchive->loadPcxImage32(QStringLiteral("cmpdash.pcx"));
    if (pattern.isNull())
        endSilently(1);

    QImage result(masks.fill.size(), QImage::Format_ARGB32);
    if (result.isNull())
        return {};
    const quint32 tint = tintRgb(color);
    const QPoint position = regionPosition(map, region);
    PatternRows patternRows(pattern.convertToFormat(QImage::Format_ARGB32), position.x(),
                            position.y(), result.width());
    for (int y = 0; y < result.height(); ++y) {
        const region_blend::Run run = {rowOf(masks.fill, y), rowOf(masks.border, y),
                                       rowOf(masks.glow, y), patternRows.at(y),
                                       reinterpret_cast<quint32 *>(result.scanLine(y))};
        blender().unused(run, result.width(), tint);
    }
    return result;
}

QImage createGeneratedImage(unsigned color, unsigned map, unsigned region, unsigned state,
                            const QString &fill, const QString &border, const QString &glow)
{
    switch (state) {
    case regionUnselected:
        return createUnselectedRegionImage_F(color, fill, border, glow);
    case regionSelected:
        return createSelectedRegionImage_F(int(color), fill, border, glow);
    case regionUnused:
        return createUnusedRegionImage_F(int(color), fill, border, glow, map, region);
    default:
        return {};
    }
}
