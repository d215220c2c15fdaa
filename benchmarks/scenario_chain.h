// A campaign of as many scenarios as there may be.
#pragma once

#include "document/campaign_data.h"

// A campaign without a campaign map in which every eighth scenario has a map's header and, if
// chained, requires the one before it that has.
CampaignData scenarioChain(unsigned scenarios, bool chained = true);
