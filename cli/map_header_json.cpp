// What a map's header holds, as JSON.
#include "cli/bit_text.h"
#include "cli/campaign_json.h"
#include "cli/json_writer.h"

namespace {

void writePlayer(JsonWriter &json, const PlayerAttributes &player)
{
    json.beginObject();
    json.field("canHuman", player.canHuman);
    json.field("canComputer", player.canComputer);
    json.field("behaviour", player.behaviour);
    json.field("allowedTownsLow", player.allowedTownsLow);
    json.field("allowedTowns", player.allowedTowns);
    json.field("townIsRandom", player.townIsRandom);
    json.field("hasMainTown", player.hasMainTown);
    json.field("generatesHero", player.generatesHero);
    json.field("mainTownType", player.mainTownType);
    json.field("mainTownPosition", player.mainTownPosition);
    json.field("randomHero", player.randomHero);
    json.field("mainHeroId", player.mainHeroId);
    json.field("mainHeroPortrait", player.mainHeroPortrait);
    json.field("mainHeroName", player.mainHeroName);
    json.field("placeholderCount", player.placeholderCount);
    json.key("heroInfo");
    json.beginArray();
    for (const PlayerAttributesHeroInfo &hero : player.heroInfo) {
        json.beginObject();
        json.field("heroId", hero.heroId);
        json.field("name", hero.name);
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

void writeVictory(JsonWriter &json, const VictoryCondition &victory)
{
    json.beginObject();
    json.field("type", victory.type);
    json.field("flags", victory.flags);
    json.field("object", victory.object);
    json.field("kind", victory.kind);
    json.field("extra", victory.extra);
    json.field("amount", victory.amount);
    json.field("position", victory.position);
    json.endObject();
}

void writeLoss(JsonWriter &json, const LossCondition &loss)
{
    json.beginObject();
    json.field("type", loss.type);
    json.field("position", loss.position);
    json.field("days", loss.days);
    json.endObject();
}

void writeHeroes(JsonWriter &json, const HeaderHeroes &heroes)
{
    json.beginObject();
    json.field("available", bitText(heroes.available));
    json.field("availableCount", heroes.availableCount);
    json.field("placeholders", heroes.placeholders);
    json.key("customHeroes");
    json.beginArray();
    for (const HeaderHero &hero : heroes.customHeroes) {
        json.beginObject();
        json.field("heroId", hero.heroId);
        json.field("portrait", hero.portrait);
        json.field("name", hero.name);
        json.field("playerMask", hero.playerMask);
        json.endObject();
    }
    json.endArray();
    json.endObject();
}

} // namespace

void writeMapHeader(JsonWriter &json, const MapHeader &header)
{
    json.beginObject();
    json.field("version", header.version);
    json.field("subVersion", header.subVersion);
    json.field("extFlagA", header.extFlagA);
    json.field("extFlagB", header.extFlagB);
    json.field("extValueA", header.extValueA);
    json.field("extValueB", header.extValueB);
    json.field("extFlagC", header.extFlagC);
    json.field("extFlagD", header.extFlagD);
    json.field("anyPlayers", header.anyPlayers);
    json.field("mapDimension", header.mapDimension);
    json.field("hasUnderground", header.hasUnderground);
    json.field("mapName", header.mapName);
    json.field("mapDescription", header.mapDescription);
    json.field("difficulty", header.difficulty);
    json.field("levelLimit", header.levelLimit);
    json.key("players");
    json.beginArray();
    for (const PlayerAttributes &player : header.players)
        writePlayer(json, player);
    json.endArray();
    json.key("victory");
    writeVictory(json, header.victory);
    json.key("loss");
    writeLoss(json, header.loss);
    json.field("teamCount", header.teamCount);
    json.field("teams", header.teams);
    json.key("headerHeroes");
    writeHeroes(json, header.headerHeroes);
    json.endObject();
}
