// Blends runs of region pictures: packed ARGB32 pixels, not premultiplied, four to sixteen at a
// time as the machine allows. How masks and tint become a pixel is told in region_image.h.
#pragma once

#include <QtGlobal>

#include <vector>

namespace region_blend {

// The pixels of the masks under one run of the result, all of the run's length.
struct Run
{
    const quint32 *fill;
    const quint32 *border;
    const quint32 *glow;
    const quint32 *pattern; // null for looks that have none
    quint32 *result;
};

// One function for each look; the tint is packed, its alpha isn't looked at.
struct Blender
{
    using Function = void (*)(const Run &run, qint64 length, quint32 tint);

    Function unselected;
    Function selected;
    Function unused;
};

// The blenders that this machine's processor can run, the fastest last. All give the same result.
std::vector<const Blender *> usableBlenders();

} // namespace region_blend
