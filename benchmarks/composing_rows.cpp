// Composing a region's picture in each of its looks, against the same by setPixelColor, against
// copying the picture, and by how many pixels it has.
#include "benchmarks/drawn_masks.h"
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "gamedata/campaign_picture.h"
#include "gamedata/editor_data.h"
#include "gamedata/image_cache.h"
#include "gamedata/region_image.h"

#include <array>
#include <stdexcept>

namespace {

// A campaign map of our own, with one region in its corner.
constexpr int drawnMap = 200;
constexpr unsigned colour = 2;

struct Look
{
    const char *name;
    unsigned state;
};

constexpr std::array<Look, 3> looks = {{
    {"unselected", regionUnselected},
    {"selected", regionSelected},
    {"unused", regionUnused},
}};

// Masks of one size, in the cache, from where composing takes them.
class Region
{
public:
    explicit Region(const QSize &size)
        : m_masks(drawnMasks(size)),
          m_name(QString("drawn %1x%2 ").arg(size.width()).arg(size.height()))
    {
        CampaignInfo &map = EditorData::campaignInfo[drawnMap];
        map.regions.resize(1);
        map.regionCount = 1;
        preloadArchive->images32[m_fill] = m_masks.fill;
        preloadArchive->images32[m_border] = m_masks.border;
        preloadArchive->images32[m_glow] = m_masks.glow;
        preloadArchive->images32["cmpdash.pcx"] = drawnPattern(campaignPictureSize);
    }

    QImage composed(unsigned state) const
    {
        return createGeneratedImage(colour, drawnMap, 0, state, m_fill, m_border, m_glow);
    }

    QImage pixelByPixel(unsigned state) const
    {
        const QColor tint = getRegionColor_32bit(int(colour));
        if (state == regionUnselected)
            return naive::unselected(m_masks, tint);
        if (state == regionSelected)
            return naive::selected(m_masks, tint);
        return naive::unused(m_masks, tint, preloadArchive->images32["cmpdash.pcx"], 0, 0);
    }

    QImage copied() const { return m_masks.fill.copy(); }

private:
    NaiveMasks m_masks;
    QString m_name;
    QString m_fill = m_name + "fill";
    QString m_border = m_name + "border";
    QString m_glow = m_name + "glow";
};

rows::Pair againstPixels(const QSize &size, unsigned state)
{
    const Region region(size);
    if (region.composed(state) != region.pixelByPixel(state))
        throw std::runtime_error("the pictures differ");
    return {rows::timedOften([=] { region.composed(state); }),
            rows::timed([=] { region.pixelByPixel(state); })};
}

rows::Pair againstCopies(const QSize &size, unsigned state)
{
    const Region region(size);
    return {rows::timedOften([=] { region.composed(state); }),
            rows::timedOften([=] { region.copied(); })};
}

void addRowsFor(const QSize &size, const Look &look)
{
    rows::Row row;
    row.work = QString("compose a region picture, %1x%2, %3")
                   .arg(size.width())
                   .arg(size.height())
                   .arg(look.name)
                   .toStdString();
    row.reference = "the same by setPixelColor";
    row.kind = rows::Goal::TimesFaster;
    row.goal = 100;
    row.prepare = [size, state = look.state] { return againstPixels(size, state); };
    rows::add(row);
    row.reference = "copying the picture";
    row.kind = rows::Goal::AtMost;
    row.goal = 12;
    row.turns = 101;
    row.prepare = [size, state = look.state] { return againstCopies(size, state); };
    rows::add(row);
}

} // namespace

void addComposingRows()
{
    for (const QSize &size : {QSize(160, 140), campaignPictureSize})
        for (const Look &look : looks)
            addRowsFor(size, look);
}

void addComposingGrowth()
{
    static constexpr std::array<QSize, 5> sizes = {
        {{50, 50}, {100, 100}, {160, 140}, {300, 300}, campaignPictureSize}};
    for (const Look &look : looks) {
        rows::Growth growth;
        growth.work = std::string("compose a region picture of 50x50 to 456x600, ") + look.name;
        growth.of = "pixels";
        growth.prepare = [state = look.state] {
            std::vector<rows::Step> steps;
            steps.reserve(sizes.size());
            for (const QSize &size : sizes)
                steps.push_back(
                    {double(size.width()) * size.height(),
                     rows::timedOften([region = Region(size), state] { region.composed(state); })});
            return steps;
        };
        rows::add(growth);
    }
}
