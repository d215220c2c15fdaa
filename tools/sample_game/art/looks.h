// Ready-made pictures of a region, and the cut to few colours that palette pictures need.
#pragma once

#include "tools/sample_game/art/art.h"

namespace art {

// Paints all looks of a region whose masks and position are set.
void paintLooks(const QImage &background, const QImage &dashes, PaintedRegion &region);

// The picture with at most so many distinct opaque colours, none of them pure cyan; transparent
// pixels become 0. ARGB32; alpha is either 0 or 255 afterwards.
QImage quantised(const QImage &image, int colours);

} // namespace art
