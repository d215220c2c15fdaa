// Which starting bonuses a player can be given on a scenario's map.
//
// A hero has to stand on the map for the player, or be one of the special ones that it can have; a
// building has to fit the player's main town, which must not be a random one. Resources and types
// of bonus that nobody knows are always allowed.
#pragma once

#include <QBitArray>

class ScenarioData;
struct CmpStartingBonus;

class StartingBonusRules
{
public:
    // Looks at the map once. Without a map, or beyond its players, the player has neither heroes
    // nor a town.
    StartingBonusRules(const ScenarioData &scenario, unsigned int player);

    // A payload of another kind than the bonus type says counts as all zeros.
    bool allows(const CmpStartingBonus &bonus) const;
    bool allowsHero(unsigned int hero) const;
    bool allowsBuilding(unsigned int building) const;

private:
    QBitArray heroesOnMap; // a bit for each hero of the game's table
    bool generatesHero = false;
    bool hasMainTown = false;
    unsigned int townType = 0;
};
