// The pictures of which a campaign map on the screen is made: its background, and each region
// in its look and colour.
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

// What the window shows of a background, from its upper left corner, in pixels.
constexpr QSize campaignPictureSize{456, 600};

// A background out of the archives, cut to campaignPictureSize; null if no archive has it or its
// record is damaged.
QImage campaignBackground(const QString &name);

struct RegionPicture
{
    QImage image;        // null if it can't be had
    QString missingFile; // the ready-made picture that no archive has, if that is why
};

// A region's picture: computed and kept in the cache on a generated map, else the ready-made
// one. States and colours as in region_image.h.
RegionPicture regionPicture(unsigned map, unsigned region, unsigned state, unsigned colour);
