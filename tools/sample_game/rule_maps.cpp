#include "tools/sample_game/rule_maps.h"

#include "tools/sample_game/map_plans.h"

namespace sample {

namespace {

constexpr int kTowns = 11;
constexpr quint32 kFirstSeed = 200;
constexpr int kBodySize = 3 * 1024;

// Some heroes of the game's table.
constexpr int kCorvane = 2;
constexpr int kFennick = 5;
constexpr int kKelsambe = 10;
constexpr int kLuthard = 11;
constexpr int kPelham = 15;
constexpr int kQuilla = 16;
constexpr int kElowyn = 28;
constexpr int kGorsewyn = 30;
constexpr int kHarrakesh = 61;

MapPlan emptyThrones()
{
    MapPlan map = plan("Empty Thrones", 28, 0,
                       "Three kings who are all somewhere else, and an army that waits for none.");
    map.players[Red] = computer(0);
    map.players[Red].heroes = {{kCorvane, {}}};
    map.players[Tan] = computer(4, 2);
    map.players[Teal] = computer(kRandomTown, 3);
    return map;
}

// The first who may be human has nobody to send, whatever the others have.
MapPlan secondSons()
{
    MapPlan map =
        plan("Second Sons", 28, 0,
             "The eldest was given the crown, and his brothers everything that it costs.");
    map.players[Red] = human(0, {}, false);
    map.players[Blue] = human(1, {{kFennick, {}}, {kElowyn, QStringLiteral("Elowyn the Younger")}});
    map.players[Green] = human(2, {}, true);
    return map;
}

MapPlan foundlingHall()
{
    MapPlan map =
        plan("Foundling Hall", 28, 0,
             "Nobody knows who knocks tonight, but there is a bed made and a sword hung up.");
    map.players[Red] = human(3, {});                 // somebody comes out of the town
    map.players[Blue] = human(6, {}, false);         // a town, and nobody in it
    map.players[Tan] = wanderer({{kHarrakesh, {}}}); // no town
    map.players[Green] = wanderer({});
    return map;
}

MapPlan wanderingFair()
{
    MapPlan map = plan("The Wandering Fair", kNewest, 7,
                       "Where the tents stand by dawn is anybody's guess, the sutlers' included.");
    map.players[Red] = human(kRandomTown, {});
    map.players[Blue] = human(kRandomTown, {{kPelham, {}}}, false);
    map.players[Tan] = human(8, {});
    return map;
}

// A town of every type for somebody who may be human: eight here, three on the map behind it.
MapPlan hearths(const char *name, const char *description, int firstTown)
{
    MapPlan map = plan(name, kNewest, 7, description);
    for (int player = 0; player < kPlayers && firstTown + player < kTowns; ++player)
        map.players[std::size_t(player)] = human(firstTown + player, {}, player % 2 == 0);
    return map;
}

// Heroes who stand on the map under another name, or twice; who can't be hired; who can't be hired
// but are described by the map all the same.
MapPlan rollOfNames()
{
    MapPlan map = plan("The Roll of Names", kNewest, 4,
                       "Some are struck out, some are written twice, and one in another hand.");
    map.players[Red] = human(0, {{kCorvane, QStringLiteral("Corvane Two-Shadows")},
                                 {kFennick, {}},
                                 {kCorvane, {}},
                                 {kKelsambe, {}}});
    map.players[Blue] = human(1, {{kFennick, QStringLiteral("Fennick, or so he says")}});
    map.lockedHeroes = {kKelsambe, kLuthard, kPelham, kQuilla};
    map.customHeroes = {{kPelham, kPelham, QStringLiteral("Pelham Inkfinger"), 0x03},
                        {kGorsewyn, kGorsewyn, {}, 0x01}};
    return map;
}

MapPlan splitCrown()
{
    MapPlan map = plan("The Split Crown", 28, 0,
                       "Half of it lies in the river, and both halves have a claimant.");
    map.players[Red] = human(0, {{kCorvane, {}}, {kFennick, QStringLiteral("Fennick Halfcrown")}});
    map.players[Blue] = human(1, {{kElowyn, {}}});
    map.players[Tan] = human(5, {{kHarrakesh, {}}});
    map.players[Green] = computer(7);
    map.players[Orange] = human(9, {});
    map.lockedHeroes = {kQuilla};
    return map;
}

// Red's town is anybody's and brings nobody forth, and Fennick has left; Blue is out of it; Tan
// lost a town, Green won the right to be played, and two more heroes can't be hired. Only Orange
// stands as before.
MapPlan splitCrownMended()
{
    MapPlan map = plan("The Split Crown, Mended", 28, 0,
                       "The goldsmith did what he could. The claimants did the rest.");
    map.players[Red] = human(kRandomTown, {{kCorvane, {}}}, false);
    map.players[Blue] = computer(1);
    map.players[Tan] = wanderer({{kHarrakesh, QStringLiteral("Harrakesh the Landless")}});
    map.players[Green] = human(7, {});
    map.players[Orange] = human(9, {});
    map.lockedHeroes = {kQuilla, kLuthard, kPelham};
    map.customHeroes = {{kPelham, kPelham, QStringLiteral("Pelham the Goldsmith"), 0x08}};
    return map;
}

} // namespace

std::vector<MapPlan> ruleMaps()
{
    std::vector<MapPlan> maps = {
        emptyThrones(),
        secondSons(),
        foundlingHall(),
        wanderingFair(),
        hearths("Eight Hearths", "Eight fires on eight hills, and each thinks it was lit first.",
                0),
        hearths("Three Far Hearths", "Beyond the last milestone somebody is burning wet wood.", 8),
        rollOfNames(),
        splitCrown(),
        splitCrownMended()};
    for (std::size_t i = 0; i < maps.size(); ++i) {
        maps[i].bodySize = kBodySize;
        maps[i].seed = kFirstSeed + quint32(i);
    }
    return maps;
}

} // namespace sample
