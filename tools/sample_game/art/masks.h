// The three grey masks of a region, from which its looks are computed.
#pragma once

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/land_shapes.h"

namespace art {

// Sets the region's position and masks.
void paintMasks(const RegionShape &shape, PaintedRegion &region);

} // namespace art
