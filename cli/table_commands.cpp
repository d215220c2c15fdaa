#include "cli/table_commands.h"

#include "cli/campaign_json.h"
#include "cli/json_writer.h"
#include "cli/standard_output.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_loading.h"

#include <QFileInfo>
#include <QTextCodec>

#include <cstring>

namespace {

void writeValue(JsonWriter &json, const QString &text)
{
    json.value(text);
}

void writeValue(JsonWriter &json, const QStringList &texts)
{
    json.beginArray();
    for (const QString &text : texts)
        json.value(text);
    json.endArray();
}

void writeRegion(JsonWriter &json, const CampaignRegion &region)
{
    json.beginObject();
    json.field("x", region.x);
    json.field("y", region.y);
    json.field("name", region.name);
    json.key("imageNames");
    json.beginArray();
    for (const QStringList &names : region.imageNames)
        writeValue(json, names);
    json.endArray();
    json.field("borderImage", region.borderImage);
    json.field("glowImage", region.glowImage);
    json.field("fillImage", region.fillImage);
    json.endObject();
}

void writeValue(JsonWriter &json, const CampaignInfo &map)
{
    json.beginObject();
    json.field("regionCount", map.regionCount);
    json.key("regions");
    json.beginArray();
    for (const CampaignRegion &region : map.regions)
        writeRegion(json, region);
    json.endArray();
    json.field("name", map.name);
    json.field("backgroundName", map.backgroundName);
    json.field("layoutType", map.layoutType);
    json.field("generated", map.generated);
    json.endObject();
}

template<typename Value>
void writeValue(JsonWriter &json, const std::map<int, Value> &table)
{
    json.beginObject();
    for (const auto &[number, content] : table) {
        json.key(QString::number(number));
        writeValue(json, content);
    }
    json.endObject();
}

template<typename Table>
void writeTable(JsonWriter &json, const char *name, const Table &table)
{
    json.key(name);
    writeValue(json, table);
}

void writeArchive(JsonWriter &json, const LodArchive &archive)
{
    json.beginObject();
    // Without the folder, so that the same game gives the same text wherever it stands.
    json.field("path", QFileInfo(archive.path).fileName());
    json.field("version", archive.version);
    json.field("fileCount", archive.fileCount);
    json.key("files");
    json.beginObject();
    for (auto file = archive.files.begin(); file != archive.files.end(); ++file) {
        json.key(file.key());
        json.beginObject();
        json.field("name",
                   QString::fromLatin1(file->name, int(strnlen(file->name, sizeof file->name))));
        json.field("offset", file->offset);
        json.field("size", file->size);
        json.field("type", file->type);
        json.field("compressedSize", file->compressedSize);
        json.endObject();
    }
    json.endObject();
    json.endObject();
}

void writeNames(JsonWriter &json)
{
    writeTable(json, "artifacts", EditorData::artifacts);
    writeTable(json, "creatures", EditorData::creatures);
    json.field("creature_ordering", EditorData::creature_ordering);
    writeTable(json, "heroes", EditorData::heroes);
    writeTable(json, "secondarySkills", EditorData::secondarySkills);
    writeTable(json, "primarySkills", EditorData::primarySkills);
    writeTable(json, "skillLevels", EditorData::skillLevels);
    writeTable(json, "spells", EditorData::spells);
    writeTable(json, "resources", EditorData::resources);
    writeTable(json, "jktext", EditorData::jktext);
}

void writeCampaignTables(JsonWriter &json)
{
    writeTable(json, "campaignInfo", EditorData::campaignInfo);
    writeTable(json, "backgrounds", EditorData::backgrounds);
    json.field("colors", EditorData::colors);
    writeTable(json, "editorText", EditorData::editorText);
    writeTable(json, "editorCmdText", EditorData::editorCmdText);
    writeTable(json, "movieImages", EditorData::movieImages);
    writeTable(json, "musicNames", EditorData::musicNames);
    writeTable(json, "videoNames", EditorData::videoNames);
    writeTable(json, "buildings", EditorData::buildings);
}

} // namespace

ExitStatus runTables(const QStringList & /*arguments*/)
{
    loadGame();
    StandardOutput output;
    JsonWriter json(output);
    json.beginObject();
    json.field("codec", QString::fromLatin1(EditorData::codec->name()));
    json.field("nArtifacts", EditorData::nArtifacts);
    json.field("nCreatures", EditorData::nCreatures);
    writeNames(json);
    json.key("lod_archives");
    json.beginArray();
    for (const LodArchive &archive : EditorData::lod_archives)
        writeArchive(json, archive);
    json.endArray();
    writeCampaignTables(json);
    json.key("info");
    writeLoadingInfo(json);
    json.endObject();
    json.end();
    return output.finish();
}
