// A campaign as JSON: the records field by field, under their names. Bit arrays are texts of "0"
// and "1", index 0 first; a map is told by its size and its SHA-256.
#pragma once

#include "document/map_header.h"
#include "document/start_options.h"

class CampaignData;
class JsonWriter;

// EditorData::info, without what belongs to a window.
void writeLoadingInfo(JsonWriter &json);

// {"info": ..., "campaign": ...}
void writeCampaign(JsonWriter &json, const CampaignData &campaign);

void writeMapHeader(JsonWriter &json, const MapHeader &header);
void writeStartOptions(JsonWriter &json, const CmpScenarioStartOptions &options);
