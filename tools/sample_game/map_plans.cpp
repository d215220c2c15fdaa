#include "tools/sample_game/map_plans.h"

namespace sample {

MapPlayer human(int town, const std::vector<MapHero> &heroes, bool heroInTown)
{
    MapPlayer player;
    player.human = true;
    player.computer = true;
    player.towns = 1 << (town == kRandomTown ? 0 : town);
    player.mainTown = town;
    player.heroInTown = heroInTown;
    player.townPosition = {12, 20, 0};
    player.heroes = heroes;
    if (!heroes.empty()) {
        player.mainHero = heroes.front().id;
        player.mainHeroPortrait = heroes.front().id;
        player.mainHeroName = heroes.front().name;
    }
    return player;
}

MapPlayer computer(int town, int behaviour)
{
    MapPlayer player;
    player.computer = true;
    player.behaviour = behaviour;
    player.towns = 1 << (town == kRandomTown ? 0 : town);
    player.mainTown = town;
    player.heroInTown = true;
    player.townPosition = {60, 48, 0};
    return player;
}

MapPlayer wanderer(const std::vector<MapHero> &heroes)
{
    MapPlayer player = human(0, heroes, false);
    player.mainTown = -1;
    player.towns = 0;
    return player;
}

MapPlan plan(const char *name, int version, int subVersion, const char *description)
{
    MapPlan map;
    map.name = QString::fromUtf8(name);
    map.fileName = map.name + QStringLiteral(".e3m");
    map.version = version;
    map.subVersion = subVersion;
    map.description = QString::fromUtf8(description);
    return map;
}

} // namespace sample
