// How the sample game's maps are drawn up: players by colour, and the ways in which they start.
#pragma once

#include "tools/sample_game/map_writer.h"

#include <QString>

#include <vector>

namespace sample {

constexpr int kNewest = 32; // of the maps' versions

enum Player
{
    Red,
    Blue,
    Tan,
    Green,
    Orange,
    Purple,
    Teal,
    Pink
};

// A human or a computer plays. The first hero is the main one; the town may bring one forth too.
MapPlayer human(int town, const std::vector<MapHero> &heroes, bool heroInTown = true);
// Never played by a human. Its town always brings a hero forth.
MapPlayer computer(int town, int behaviour = 1);
// A human who plays without a town: what stands on the map is all there is.
MapPlayer wanderer(const std::vector<MapHero> &heroes);

// A map without players, in a file of its name.
MapPlan plan(const char *name, int version, int subVersion, const char *description);

} // namespace sample
