#include "tools/sample_game/map_writer.h"

#include "tools/sample_game/byte_sink.h"
#include "tools/sample_game/deflate.h"
#include "tools/sample_game/noise.h"

#include <algorithm>

namespace sample {

namespace {

constexpr int kOldest = 14; // has the fewest fields
constexpr int kWordTowns = 21;
constexpr int kCountingHeroes = 32; // itself tells how many
constexpr int kSkipped = 31;
constexpr int kOldestHeroes = 128;
constexpr int kOlderHeroes = 160;
constexpr int kNewestHeroes = 178;

// subVersion and what each of its steps added. The second flag of step 1 stands before the first.
void addExtension(ByteSink &sink, int subVersion)
{
    sink.i32(subVersion);
    if (subVersion >= 1) {
        sink.u8(0);
        sink.u8(1);
    }
    if (subVersion >= 2)
        sink.i32(40);
    if (subVersion >= 4) {
        sink.i32(-7);
        sink.u8(1);
    }
    if (subVersion >= 7)
        sink.u8(1);
}

void addMainTown(ByteSink &sink, const MapPlayer &player, int version)
{
    sink.u8(player.mainTown >= 0 ? 1 : 0);
    if (player.mainTown < 0)
        return;
    if (version > kOldest) {
        sink.u8(player.heroInTown ? 1 : 0);
        sink.u8(unsigned(player.mainTown));
    }
    for (const int coordinate : player.townPosition)
        sink.u8(unsigned(coordinate));
}

void addPlayer(ByteSink &sink, const MapPlayer &player, int version)
{
    sink.u8(player.human ? 1 : 0);
    sink.u8(player.computer ? 1 : 0);
    sink.u8(unsigned(player.behaviour));
    if (version != kWordTowns)
        sink.u8(unsigned(player.towns));
    if (version > kOldest)
        sink.u16(unsigned(player.towns));
    sink.u8(player.mainTown == kRandomTown ? 1 : 0);
    addMainTown(sink, player, version);
    sink.u8(0); // no random hero
    sink.u8(unsigned(player.mainHero));
    if (player.mainHero != kNoHero) {
        sink.u8(unsigned(player.mainHeroPortrait));
        sink.countedText(player.mainHeroName.toUtf8());
    }
    if (version <= kOldest)
        return;
    sink.u8(unsigned(player.placeholders));
    sink.i32(qint32(player.heroes.size()));
    for (const MapHero &hero : player.heroes) {
        sink.u8(unsigned(hero.id));
        sink.countedText(hero.name.toUtf8());
    }
}

void addConditions(ByteSink &sink, const MapPlan &plan)
{
    sink.u8(unsigned(plan.victory.type));
    if (plan.victory.type != kNoCondition) {
        sink.u8(1);
        sink.u8(0);
        sink.raw(plan.victory.payload);
    }
    sink.u8(unsigned(plan.loss.type));
    sink.raw(plan.loss.payload);
}

void addTeams(ByteSink &sink, const MapPlan &plan)
{
    if (plan.teams.empty()) {
        sink.u8(0);
        return;
    }
    sink.u8(unsigned(*std::max_element(plan.teams.begin(), plan.teams.end()) + 1));
    for (const int team : plan.teams)
        sink.u8(unsigned(team));
}

void addAvailableHeroes(ByteSink &sink, const MapPlan &plan)
{
    int count = plan.version == kOldest ? kOldestHeroes : kOlderHeroes;
    if (plan.version >= kCountingHeroes) {
        count = kNewestHeroes;
        sink.i32(count);
    }
    std::vector<int> available;
    for (int hero = 0; hero < count; ++hero) {
        if (std::find(plan.lockedHeroes.begin(), plan.lockedHeroes.end(), hero) ==
            plan.lockedHeroes.end())
            available.push_back(hero);
    }
    sink.bits(available, count);
}

void addHeroLists(ByteSink &sink, const MapPlan &plan)
{
    addAvailableHeroes(sink, plan);
    if (plan.version > kOldest) {
        sink.i32(qint32(plan.placeholders.size()));
        for (const int hero : plan.placeholders)
            sink.u8(unsigned(hero));
    }
    if (plan.version > kWordTowns) {
        sink.u8(unsigned(plan.customHeroes.size()));
        for (const CustomHero &hero : plan.customHeroes) {
            sink.u8(unsigned(hero.id));
            sink.u8(unsigned(hero.portrait));
            sink.countedText(hero.name.toUtf8());
            sink.u8(unsigned(hero.playerMask));
        }
    }
}

} // namespace

QByteArray mapContent(const MapPlan &plan)
{
    ByteSink sink;
    sink.i32(plan.version);
    if (plan.version >= kCountingHeroes)
        addExtension(sink, plan.subVersion);
    sink.u8(plan.anyPlayers ? 1 : 0);
    sink.i32(plan.dimension);
    sink.u8(plan.underground ? 1 : 0);
    sink.countedText(plan.name.toUtf8());
    sink.countedText(plan.description.toUtf8());
    sink.u8(unsigned(plan.difficulty));
    if (plan.version > kOldest)
        sink.u8(unsigned(plan.levelLimit));
    for (const MapPlayer &player : plan.players)
        addPlayer(sink, player, plan.version);
    addConditions(sink, plan);
    addTeams(sink, plan);
    addHeroLists(sink, plan);
    sink.zeros(kSkipped);
    sink.raw(Noise(plan.seed).bytes(plan.bodySize));
    return sink.bytes();
}

QByteArray mapFile(const MapPlan &plan)
{
    return gzipMember(mapContent(plan));
}

} // namespace sample
