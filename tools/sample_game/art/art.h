// The sample game's pictures, painted by code: campaign maps with their regions, backgrounds,
// movie stills and the dashed pattern. Everything is made from a seed with integer random numbers
// of its own, so the same arguments give the same bytes. Coordinates and sizes are pixels.
// Nothing here fails; pictures are values and belong to the caller.
#pragma once

#include <QImage>
#include <QPoint>
#include <QString>
#include <QVector>

namespace art {

constexpr int kMapWidth = 456;
constexpr int kMapHeight = 600;
constexpr int kMovieWidth = 400;
constexpr int kMovieHeight = 300;
constexpr int kMoviePictures = 12; // scenes after these repeat with other weather
constexpr int kMinRegions = 2;
constexpr int kMaxRegions = 16;
constexpr int kRegionStates = 3;  // 0 unselected, 1 selected, 2 unused
constexpr int kRegionColours = 8; // the players' colours
constexpr int kLookColours = 200; // most distinct colours of one ready-made look

enum class Theme
{
    Isles,
    Highlands,
    Frost,
    Desert,
    Marsh,
    Ember
};
constexpr int kThemes = 6;

// One region of a painted map. The masks are ARGB32, grey, all of one size, with alpha 0 where
// they don't cover and 255 where they do. The looks have the masks' size, alpha 0 or 255 only,
// at most kLookColours colours, never pure cyan; they are null unless asked for.
struct PaintedRegion
{
    QPoint position; // of the upper left corner on the map
    QImage fill, border, glow;
    QImage looks[kRegionStates][kRegionColours];
    QString name;
};

struct PaintedMap
{
    QImage background; // RGB32, kMapWidth x kMapHeight
    QVector<PaintedRegion> regions;
};

// The count of regions is cut to kMinRegions..kMaxRegions. Neighbouring rectangles overlap, and
// the last region is a lighthouse isle that shares a few pixels with one before it.
PaintedMap paintCampaignMap(Theme theme, int regionCount, quint32 seed, bool withLooks);

// A scene of kMapWidth x kMapHeight, RGB32, for campaigns without a map.
QImage paintBackground(Theme theme, quint32 seed);

// A still of kMovieWidth x kMovieHeight, RGB32; the number chooses the scene.
QImage paintMoviePicture(int number, quint32 seed);

// 800 x 600, Grayscale8: the alpha of unused regions, in map coordinates.
QImage paintDashPattern();

} // namespace art
