// Compiled for processors with AVX2; called after a look at the processor only.
#include "gamedata/region_blend_kernel.h"

namespace region_blend {

extern const Blender avx2Blender;
const Blender avx2Blender = blenderOfThisSource;

} // namespace region_blend
