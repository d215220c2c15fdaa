// The pictures of which a campaign map on the screen is made: its background, and each region
// in its look and colour.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// What the window shows of a background, from its upper left corner, in pixels.
constexpr QSize campaignPictureSize{456, 600};

// A background out of the archives, cut to campaignPictureSize, read once and kept in the cache.
// Null if no archive has it or its record is damaged; it is looked for again then when asked for.
QImage campaignBackground(const QString &name);

struct RegionPicture
{
    QImage image;        // null if it can't be had
    QString missingFile; // the ready-made picture that no archive has, if that is why
};

// A region's picture: computed on a generated map, else the ready-made one. The cache keeps it
// either way. States and colours as in region_image.h.
RegionPicture regionPicture(unsigned map, unsigned region, unsigned state, unsigned colour);
