// Rewriting a campaign for other ground: another campaign map, or from a background to a map and
// back. Scenarios change their places and some are dropped; their prerequisites are written anew.
//
// A scenario has a map if it has a map's header. Nothing here asks, and the modified flag stays as
// it is. The records of what is kept go over whole.
#pragma once

class CampaignData;

// How many of the campaign's scenarios have a map.
unsigned int scenariosWithMap(const CampaignData &campaign);

// From one campaign map to another. The scenarios with a map move to the front in their order and
// their prerequisites follow them; the other regions are empty. A map with fewer regions than there
// are scenarios with a map drops the last of them.
void moveToCampaignMap(CampaignData &campaign, unsigned int mapId);

// From a background to a campaign map. The scenarios with a map become a chain in the first
// regions: each requires the one before it. Those beyond the map's regions are dropped.
void convertToCampaignMap(CampaignData &campaign, unsigned int mapId);

// From a campaign map to a background. Kept, in their order, are the scenarios with a map that
// require nothing and all that require one of those, directly or through others, with a map or
// without one. Prerequisites stay as they stand. If nothing is left there is one empty scenario.
void convertToBackground(CampaignData &campaign, unsigned int backgroundId);
