#include "gamedata/region_blend.h"

#include "gamedata/region_blend_kernel.h"

namespace region_blend {

#ifdef CMPED_WIDE_VECTORS
extern const Blender avx2Blender;
extern const Blender avx512Blender;
#endif

std::vector<const Blender *> usableBlenders()
{
    std::vector<const Blender *> usable{&blenderOfThisSource};
#ifdef CMPED_WIDE_VECTORS
    if (__builtin_cpu_supports("avx2"))
        usable.push_back(&avx2Blender);
    if (__builtin_cpu_supports("avx512bw"))
        usable.push_back(&avx512Blender);
#endif
    return usable;
}

} // namespace region_blend
