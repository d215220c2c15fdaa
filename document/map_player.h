// The players of a scenario's map, asked for by numbers that come from files.
#pragma once

#include "document/campaign_data.h"

#include <tuple>

constexpr unsigned int playerCount = std::tuple_size<decltype(MapHeader::players)>::value;
constexpr unsigned int randomTown = 0xFF; // as a main town's type

// Null without a map and for a number that no player has.
inline const PlayerAttributes *playerOnMap(const ScenarioData &scenario, unsigned int player)
{
    if (!scenario.mapHeader || player >= scenario.mapHeader->players.size())
        return nullptr;
    return &scenario.mapHeader->players[player];
}

// The same as a record: one with all flags clear where there is no such player.
inline const PlayerAttributes &attributesOnMap(const ScenarioData &scenario, unsigned int player)
{
    static const PlayerAttributes absent;
    const PlayerAttributes *found = playerOnMap(scenario, player);
    return found ? *found : absent;
}
