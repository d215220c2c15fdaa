// A campaign map as a whole: the country, its regions' masks, and the picture of it all.
#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/land_shapes.h"
#include "tools/sample_game/art/looks.h"
#include "tools/sample_game/art/masks.h"
#include "tools/sample_game/art/names.h"
#include "tools/sample_game/art/ornaments.h"
#include "tools/sample_game/art/random.h"
#include "tools/sample_game/art/scenery.h"
#include "tools/sample_game/art/terrain.h"

#include <QPainter>
#include <QStringList>

namespace art {

PaintedMap paintCampaignMap(Theme theme, int regionCount, quint32 seed, bool withLooks)
{
    Random random(seed);
    const ThemeLook &look = lookOf(theme);
    const int count = qBound(kMinRegions, regionCount, kMaxRegions);
    const Country country = shapeCountry(look, count, random.seed());

    PaintedMap map;
    map.background = paintTerrain(look, country, random.seed());
    paintScenery(map.background, look, country, random.seed());
    applyVignette(map.background, 0.34);
    QPainter painter(&map.background);
    painter.setRenderHint(QPainter::Antialiasing);
    drawFrame(painter, look, QRectF(0, 0, kMapWidth, kMapHeight), kFrameWidth);
    painter.end();

    const QStringList names = inventNames(theme, country.regions.size(), random.seed());
    const QImage dashes = withLooks ? paintDashPattern() : QImage();
    for (int i = 0; i < country.regions.size(); ++i) {
        PaintedRegion region;
        region.name = names[i];
        paintMasks(country.regions[i], region);
        if (withLooks)
            paintLooks(map.background, dashes, region);
        map.regions.append(region);
    }
    return map;
}

} // namespace art
