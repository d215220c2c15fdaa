// Campaigns of a chosen weight, for what is counted and measured.
#pragma once

#include "document/campaign_data.h"

// A campaign without a campaign map, each scenario with a map whose file has about this many packed
// bytes (to one per cent), with texts and a prologue. There are eight different maps; the others
// repeat them. The game's tables stand before it is called.
CampaignData campaignOfMaps(unsigned scenarios, int packedBytes);
