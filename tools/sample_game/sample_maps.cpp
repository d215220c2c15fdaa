#include "tools/sample_game/sample_maps.h"

#include "tools/sample_game/map_plans.h"
#include "tools/sample_game/rule_maps.h"

namespace sample {

namespace {

MapPlan lanternLanding()
{
    MapPlan map = plan("Lantern Landing", 28, 0,
                       "The ferries have stopped, and nobody has seen the queen since the thaw. "
                       "Hold the landing until the reeds are cut.");
    map.players[Red] =
        human(0, {{kTammas, {}}, {kMarwenna, QStringLiteral("Marwenna the Ferrier")}});
    map.players[Blue] = computer(1);
    map.victory = {11, {}};
    map.loss = {0, QByteArray("\x0c\x14\x00", 3)};
    map.customHeroes = {{kMarwenna, 12, QStringLiteral("Marwenna the Ferrier"), 0x01}};
    map.lockedHeroes = {20, 21, 22};
    map.levelLimit = 8;
    map.bodySize = 22 * 1024;
    return map;
}

MapPlan tollBridge()
{
    MapPlan map = plan("The Toll Bridge", kNewest, 7,
                       "Two crowns for a cart, one for a cow, and for an army: half of it.");
    map.dimension = 108;
    map.underground = true;
    map.difficulty = 2;
    map.levelLimit = 12;
    map.players[Red] = human(0, {{kTammas, {}}});
    map.players[Teal] = computer(9, 2);
    map.players[Orange] = computer(kRandomTown);
    map.victory = {1, QByteArray("\x06\x00\x20\x4e\x00\x00", 6)};
    map.loss = {2, QByteArray("\x5a\x00", 2)};
    map.teams = {0, 1, 0, 0, 1, 0, 1, 0};
    map.placeholders = {kTammas, kFernald};
    map.customHeroes = {{kCaptainThrale, 162, QStringLiteral("Thrale, Collector of Tolls"), 0x50}};
    map.bodySize = 41 * 1024;
    return map;
}

MapPlan millPond()
{
    MapPlan map = plan("Mill Pond", 21, 0, "The miller swears that the pond has learnt to speak.");
    map.dimension = 36;
    map.players[Red] = human(1, {{kFernald, {}}, {27, QStringLiteral("Old Moss")}});
    map.players[Green] = human(1, {{20, {}}}, false);
    map.players[Purple] = computer(5);
    map.victory = {6, QByteArray("\x11\x09\x00", 3)};
    map.placeholders = {kFernald};
    map.bodySize = 20 * 1024;
    return map;
}

MapPlan oldFord()
{
    MapPlan map = plan("The Old Ford", 14, 0,
                       "An early chart, drawn before the bridge was built. Mind the holes.");
    map.players[Red] = human(0, {});
    map.players[Red].mainHero = kMarwenna;
    map.players[Red].mainHeroPortrait = kMarwenna;
    map.players[Red].mainHeroName = QStringLiteral("Marwenna");
    map.players[Tan] = computer(3);
    map.victory = {0, QByteArray(1, '\x07')};
    map.lockedHeroes = {1, 2, 3};
    map.bodySize = 24 * 1024;
    return map;
}

MapPlan heronCourt()
{
    MapPlan map = plan("Heron Court", kNewest, 0,
                       "Whoever sits on the heron throne by autumn may call himself regent.");
    map.dimension = 108;
    map.difficulty = 3;
    map.players[Red] = human(2, {{kCalligra, {}}});
    map.players[Blue] = human(2, {{42, QStringLiteral("Uncle Glimmond")}});
    map.players[Pink] = computer(2, 3);
    map.victory = {10, QByteArray("\x03\x1e\x1e\x00", 4)};
    map.loss = {1, QByteArray("\x08\x08\x00", 3)};
    map.bodySize = 36 * 1024;
    return map;
}

MapPlan ashRoad()
{
    MapPlan map =
        plan("The Ash Road", kNewest, 1, "It snows at Cinderhall, but nothing melts. Walk softly.");
    map.players[Red] = human(3, {{54, {}}, {63, QStringLiteral("Jorrum the Débonair")}});
    map.players[Orange] = computer(3, 2);
    map.players[Purple] = computer(4, 1);
    map.victory = {2, QByteArray("\x06\x50\xc3\x00\x00", 5)};
    map.customHeroes = {{63, 64, QStringLiteral("Jorrum the Débonair"), 0x01}, {54, 54, {}, 0x01}};
    map.bodySize = 28 * 1024;
    return map;
}

MapPlan sealedWeir()
{
    MapPlan map = plan("The Sealed Weir", kNewest, 2,
                       "Seven gates, seven locks, and somebody has lost the keys on purpose.");
    map.dimension = 144;
    map.underground = true;
    map.difficulty = 3;
    map.players[Red] = human(0, {{kTammas, {}}, {kKnell, {}}});
    map.players[Green] = human(7, {{131, QStringLiteral("Fenella Wick, Regent")}});
    map.players[Tan] = computer(8);
    map.players[Teal] = computer(6, 3);
    map.victory = {3, QByteArray("\x0a\x0b\x00\x02\x01", 5)};
    map.teams = {0, 1, 1, 0, 1, 1, 1, 1};
    map.bodySize = 58 * 1024;
    return map;
}

MapPlan saltharbour()
{
    MapPlan map = plan("Saltharbour", kNewest, 4,
                       "The fleet that took the queen lies at anchor here. It is waiting for "
                       "wind; we are not.");
    map.dimension = 144;
    map.difficulty = 4;
    map.levelLimit = 30;
    map.players[Red] = human(9, {{kCaptainThrale, {}}, {kTammas, {}}});
    map.players[Teal] = computer(9, 3);
    map.players[Pink] = computer(10, 3);
    map.victory = {12, QByteArray("\x78\x00\x00\x00", 4)};
    map.loss = {0, QByteArray("\x0c\x14\x00", 3)};
    map.customHeroes = {{kCaptainThrale, 160, QStringLiteral("Captain Thrale"), 0x41}};
    map.bodySize = 49 * 1024;
    return map;
}

MapPlan nineWells()
{
    MapPlan map = plan("Nine Wells", 28, 0, "Eight of them are dry. Guess which one is guarded.");
    map.players[Red] = wanderer({{kQorlan, {}}, {120, {}}});
    map.players[Orange] = computer(6, 2);
    map.victory = {8, {}};
    map.bodySize = 30 * 1024;
    return map;
}

MapPlan barrowNight()
{
    MapPlan map =
        plan("Barrow Night", 28, 0, "Once a year the barrows open, and cousins come to visit.");
    map.players[Red] = human(4, {{kKnell, QStringLiteral("Knell of the Seven Candles")}});
    map.players[Blue] = human(0, {{2, {}}}, false);
    map.players[Purple] = computer(4);
    map.victory = {4, QByteArray("\x05\x06\x01", 3)};
    map.underground = true;
    map.bodySize = 33 * 1024;
    return map;
}

MapPlan snowPass()
{
    MapPlan map = plan("Over the Snow Pass", kNewest, 7,
                       "A föhn wind, three passes, and bread for two of them.");
    map.players[Red] = human(10, {{170, {}}, {171, {}}});
    map.players[Blue] = computer(8, 1);
    map.players[Tan] = computer(6, 1);
    map.victory = {5, QByteArray("\x20\x21\x00", 3)};
    map.bodySize = 45 * 1024;
    return map;
}

MapPlan karrunDrums()
{
    MapPlan map = plan("Drums of the Karrun", 21, 0, "They drum to keep warm. Mostly.");
    map.players[Red] = human(6, {{kQorlan, {}}});
    map.players[Green] = computer(6, 3);
    map.players[Teal] = computer(7);
    map.victory = {9, {}};
    map.bodySize = 26 * 1024;
    return map;
}

MapPlan nobodyHome()
{
    MapPlan map = plan("Nobody Home", 28, 0, "A map on which nobody may play.");
    map.anyPlayers = false;
    map.bodySize = 2 * 1024;
    return map;
}

} // namespace

const std::vector<MapPlan> &sampleMaps()
{
    static const std::vector<MapPlan> maps = [] {
        std::vector<MapPlan> list = {lanternLanding(), tollBridge(),  millPond(),   oldFord(),
                                     heronCourt(),     ashRoad(),     sealedWeir(), saltharbour(),
                                     nineWells(),      barrowNight(), snowPass(),   karrunDrums()};
        for (size_t i = 0; i < list.size(); ++i)
            list[i].seed = quint32(100 + i);
        return list;
    }();
    return maps;
}

std::vector<MapFile> mapFiles()
{
    std::vector<MapFile> files;
    for (const MapPlan &map : sampleMaps())
        files.push_back({map.fileName, mapFile(map)});
    for (const MapPlan &map : ruleMaps())
        files.push_back({map.fileName, mapFile(map)});
    const MapPlan empty = nobodyHome();
    files.push_back({empty.fileName, mapFile(empty)});
    MapPlan plain = plan("Plain Sailing", 28, 0, "A map that was never packed.");
    plain.players[Red] = human(0, {{kTammas, {}}});
    plain.bodySize = 6 * 1024;
    files.push_back({plain.fileName, mapContent(plain)});
    const MapPlan torn = plan("Torn Page", kNewest, 7, "A map whose second half is gone.");
    const QByteArray whole = mapFile(torn);
    files.push_back({torn.fileName, whole.left(whole.size() / 2)});
    return files;
}

} // namespace sample
