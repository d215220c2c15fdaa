// Pictures of a campaign map's regions, composed from three grey masks.
//
// Fill, border and glow are the names of palette pictures in the archives, read through
// preloadArchive. A mask's value is its red channel; it covers the pixels whose alpha isn't 0. The
// result is a new image in the fill's size, Format_ARGB32 with colours not premultiplied: pixels
// outside the fill stay as the fill has them, the others start from the colour's tint, which the
// glow changes first and the border darkens then. A pixel outside a smaller mask isn't covered.
//
// A missing mask ends the process with exit code 1 after a line in the log.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

// The looks of a region, as they stand for `state`.
constexpr unsigned regionUnselected = 0;
constexpr unsigned regionSelected = 1;
constexpr unsigned regionUnused = 2;

// The tint of a player colour from 0 to 7. Any other number gives an invalid colour, which
// composes as black.
QColor getRegionColor_32bit(int color);

// The glow darkens the tint.
QImage createUnselectedRegionImage_F(unsigned color, const QString &fill, const QString &border,
                                     const QString &glow);

// The glow lightens the tint.
QImage createSelectedRegionImage_F(int color, const QString &fill, const QString &border,
                                   const QString &glow);

// The glow takes its opacity from cmpdash.pcx, a pattern in the size of the whole campaign map,
// so that dashes run on from region to region. A missing pattern ends the process silently.
QImage createUnusedRegionImage_F(int color, const QString &fill, const QString &border,
                                 const QString &glow, unsigned map, unsigned region);

// The look of this state; a null image for a state that is none.
QImage createGeneratedImage(unsigned color, unsigned map, unsigned region, unsigned state,
                            const QString &fill, const QString &border, const QString &glow);
