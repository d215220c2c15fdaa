// Masks of a region, drawn for measuring.
#pragma once

#include "tests/gamedata/naive_region_image.h"

#include <QImage>
#include <QSize>

// An ellipse with a wavy coast that nearly fills its frame, as regions do; an inner glow, an outer
// border.
NaiveMasks drawnMasks(const QSize &size);

// Diagonal dashes.
QImage drawnPattern(const QSize &size);
