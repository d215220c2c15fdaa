// The names of scenarios in lists and in files of texts. Free functions without a state.
//
// A region or scenario beyond its table is an absent entry: without a name, without a map. The
// texts are of the context QObject. `campaignMap` is the key of EditorData::campaignInfo.
#pragma once

#include <QString>

class CampaignData;

// A scenario by its map's file name: with the region's name on a campaign map, numbered from 1
// without one.
QString getScenarioFilename(CampaignData *campaign, unsigned int campaignMap,
                            unsigned int scenario);
// A scenario by its map's title: with the region's name on a campaign map, numbered from 0 without
// one.
QString getScenarioName(CampaignData *campaign, unsigned int campaignMap, unsigned int scenario);
