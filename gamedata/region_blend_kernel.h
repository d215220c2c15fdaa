// The arithmetic of region pictures, in vectors of the widest kind that the including source is
// compiled for. Everything here is local to that source: two widths must never be linked as one.
//
// A channel times a mask's value fits 16 bits, so two channels share a 32-bit lane: blue and red
// in one vector, green alone in another. No look branches on a pixel: what isn't covered takes a
// factor that changes nothing.
#pragma once

#include "gamedata/region_blend.h"

#include <cstring>

namespace {

#if defined(__AVX512BW__)
constexpr int vectorBytes = 64;
#elif defined(__AVX2__)
constexpr int vectorBytes = 32;
#else
constexpr int vectorBytes = 16;
#endif

using Pixels = quint32 __attribute__((vector_size(vectorBytes)));
using Halves = quint16 __attribute__((vector_size(vectorBytes)));
constexpr int blockPixels = vectorBytes / int(sizeof(quint32));

struct Planes
{
    Halves blueRed;
    Halves green; // every second half is 0
};

inline Planes planesOf(quint32 pixel)
{
    const Pixels all = Pixels{} + pixel;
    return {Halves(all & 0xff00ff), Halves(all >> 8 & 0xff)};
}

inline Pixels packed(const Planes &planes)
{
    return Pixels(planes.blueRed) | Pixels(planes.green) << 8;
}

// Channel by channel (c * factor) >> 8, so that 256 leaves everything as it is.
inline Planes scaled(const Planes &planes, Halves factor)
{
    return {(planes.blueRed * factor) >> 8, (planes.green * factor) >> 8};
}

// All bits of a pixel set where the mask doesn't cover it.
inline Pixels uncovered(Pixels mask)
{
    return Pixels((mask >> 24) == 0);
}

inline Pixels redOf(Pixels mask)
{
    return mask >> 16 & 0xff;
}

inline Pixels select(Pixels condition, Pixels yes, Pixels no)
{
    return (yes & condition) | (no & ~condition);
}

inline Halves inBothHalves(Pixels value)
{
    return Halves(value | value << 16);
}

constexpr quint32 unitFactor = 256;
constexpr quint32 opaqueTint = 0xaf000000;
constexpr quint32 unusedTint = 0x79000000;

struct Block
{
    Pixels fill;
    Pixels border;
    Pixels glow;
    Pixels pattern;
};

inline Pixels darkenedByBorder(const Planes &planes, const Block &block)
{
    const Pixels factor =
        select(uncovered(block.border), Pixels{} + unitFactor, redOf(block.border));
    return packed(scaled(planes, inBothHalves(factor)));
}

// Selected: ((c - 255) * g >> 8) + 255, written with the complement 255 - c so that nothing is
// negative. The shift rounds down, hence up on the complement; 255 leaves the channel as it is.
class LightenedByGlow
{
public:
    explicit LightenedByGlow(quint32 tint)
        : m_complement(planesOf(~tint)), m_white(planesOf(0xffffff))
    {
    }

    Pixels operator()(const Block &block) const
    {
        const Pixels value = redOf(block.glow) | (uncovered(block.glow) & 255);
        const Halves glow = inBothHalves(value);
        const Planes light = {m_white.blueRed - ((m_complement.blueRed * glow + 255) >> 8),
                              m_white.green - ((m_complement.green * glow + 255) >> 8)};
        return darkenedByBorder(light, block) | opaqueTint;
    }

private:
    Planes m_complement;
    Planes m_white;
};

// Unselected: at most half of the light goes.
class DarkenedByGlow
{
public:
    explicit DarkenedByGlow(quint32 tint) : m_tint(planesOf(tint)) {}

    Pixels operator()(const Block &block) const
    {
        const Pixels factor =
            select(uncovered(block.glow), Pixels{} + unitFactor, (redOf(block.glow) + 255) >> 1);
        return darkenedByBorder(scaled(m_tint, inBothHalves(factor)), block) | opaqueTint;
    }

private:
    Planes m_tint;
};

// Unused: the glow lays the pattern over the tint as opacity.
class DashedByGlow
{
public:
    explicit DashedByGlow(quint32 tint) : m_tint(planesOf(tint)) {}

    Pixels operator()(const Block &block) const
    {
        const Pixels alpha =
            select(uncovered(block.glow), Pixels{} + unusedTint, redOf(block.pattern) << 24);
        return darkenedByBorder(m_tint, block) | alpha;
    }

private:
    Planes m_tint;
};

inline Pixels load(const quint32 *from, int count)
{
    Pixels pixels{};
    if (from)
        std::memcpy(&pixels, from, size_t(count) * sizeof *from);
    return pixels;
}

template<typename Look>
void composeBlock(const region_blend::Run &run, qint64 at, int count, const Look &look)
{
    const Block block = {load(run.fill + at, count), load(run.border + at, count),
                         load(run.glow + at, count),
                         load(run.pattern ? run.pattern + at : nullptr, count)};
    const Pixels result = select(uncovered(block.fill), block.fill, look(block));
    std::memcpy(run.result + at, &result, size_t(count) * sizeof *run.result);
}

template<typename Look>
void composeRun(const region_blend::Run &run, qint64 length, quint32 tint)
{
    const Look look(tint);
    qint64 at = 0;
    for (; at + blockPixels <= length; at += blockPixels)
        composeBlock(run, at, blockPixels, look);
    if (at < length)
        composeBlock(run, at, int(length - at), look);
}

constexpr region_blend::Blender blenderOfThisSource{
    composeRun<DarkenedByGlow>, composeRun<LightenedByGlow>, composeRun<DashedByGlow>};

} // namespace
