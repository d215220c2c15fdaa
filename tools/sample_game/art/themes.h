// The moods of the maps: their colours and how much of each kind of country they have.
#pragma once

#include "tools/sample_game/art/art.h"
#include "tools/sample_game/art/colour.h"

namespace art {

enum class Trees
{
    Round,
    Conifer,
    SnowyConifer,
    Palm,
    Reed,
    Dead
};

struct ThemeLook
{
    Tone seaDeep, seaShallow, foam;
    Tone shore, low, lush, high; // land from the beach up
    Tone rock, rockShade, cap; // mountains; the cap is snow, or embers in the mouth of a fire mount
    Tone treeLight, treeDark;
    Tone wall, roof, ink;
    Tone river, road;
    double landBias;    // more is more land
    double channel;     // how deep the water between regions is, 0 for none
    double mountainous; // 0 to 1
    double wooded;      // 0 to 1
    Trees trees;
    bool dunes;
    bool fireMounts;
};

const ThemeLook &lookOf(Theme theme);

} // namespace art
