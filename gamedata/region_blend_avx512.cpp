// Compiled for processors with AVX-512; called after a look at the processor only.
#include "gamedata/region_blend_kernel.h"

namespace region_blend {

extern const Blender avx512Blender;
const Blender avx512Blender = blenderOfThisSource;

} // namespace region_blend
