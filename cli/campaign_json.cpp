#include "cli/campaign_json.h"

#include "cli/bit_text.h"
#include "cli/json_writer.h"
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"

#include <QCryptographicHash>

namespace {

void writePrologues(JsonWriter &json, const ScenarioData::Prologues &prologues)
{
    json.beginArray();
    for (const auto &prologue : prologues) {
        if (!prologue) {
            json.null();
            continue;
        }
        json.beginObject();
        json.field("videoId", prologue->videoId);
        json.field("musicIndex", prologue->musicIndex);
        json.field("text", prologue->text);
        json.endObject();
    }
    json.endArray();
}

void writeCrossover(JsonWriter &json, const CmpScenarioCrossover &crossover)
{
    json.beginObject();
    json.field("heroKeeps", bitText(crossover.heroKeeps));
    json.field("artifacts", bitText(crossover.artifacts));
    json.field("creatures", bitText(crossover.creatures));
    json.endObject();
}

void writeCompressedMap(JsonWriter &json, const QByteArray &bytes)
{
    const QByteArray hash = QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
    json.beginObject();
    json.field("size", bytes.size());
    json.field("sha256", QString::fromLatin1(hash.toHex()));
    json.endObject();
}

void writeScenario(JsonWriter &json, const ScenarioData &scenario)
{
    json.beginObject();
    json.field("mapFileName", scenario.mapFileName);
    json.field("mapSize", scenario.mapSize);
    json.field("prerequisites", bitText(scenario.prerequisites));
    json.field("regionColor", scenario.regionColor);
    json.field("defaultDifficulty", scenario.defaultDifficulty);
    json.field("regionText", scenario.regionText);
    json.key("prologues");
    writePrologues(json, scenario.prologues);
    json.key("epilogues");
    writePrologues(json, scenario.epilogues);
    json.key("crossover");
    writeCrossover(json, scenario.crossover);
    json.key("startOptions");
    if (scenario.startOptions)
        writeStartOptions(json, *scenario.startOptions);
    else
        json.null();
    json.key("mapHeader");
    if (scenario.mapHeader)
        writeMapHeader(json, *scenario.mapHeader);
    else
        json.null();
    json.key("compressedMap");
    writeCompressedMap(json, scenario.compressedMap);
    json.endObject();
}

} // namespace

void writeLoadingInfo(JsonWriter &json)
{
    json.beginObject();
    json.field("campaign", EditorData::info.campaign);
    json.field("version", EditorData::info.version);
    json.field("region", EditorData::info.region);
    json.endObject();
}

void writeCampaign(JsonWriter &json, const CampaignData &campaign)
{
    json.beginObject();
    json.key("info");
    writeLoadingInfo(json);
    json.key("campaign");
    json.beginObject();
    json.field("version", campaign.version);
    json.field("mapId", campaign.mapId);
    json.field("name", campaign.name);
    json.field("description", campaign.description);
    json.field("difficultySelectable", campaign.difficultySelectable);
    json.field("musicId", campaign.musicId);
    json.field("hasMap", campaign.hasMap);
    json.field("spareFlag", campaign.spareFlag);
    json.field("customValue", campaign.customValue);
    json.field("scenarioCount", campaign.scenarioCount);
    json.field("spareCounter", campaign.spareCounter);
    json.key("scenarios");
    json.beginArray();
    for (const ScenarioData &scenario : campaign.scenarios)
        writeScenario(json, scenario);
    json.endArray();
    json.endObject();
    json.endObject();
    json.end();
}
