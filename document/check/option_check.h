// A scenario's start options against its map and the game's tables.
#pragma once

#include "document/check/findings.h"

class CampaignData;

void checkOptions(const CampaignData &campaign, unsigned int index, Findings &findings);

// How many choices the scenario's start options offer.
unsigned int optionCount(const CampaignData &campaign, unsigned int index);
