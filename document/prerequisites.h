// Which scenario has to be won before which. A scenario's `prerequisites` are the arrows of a
// graph: bit i points at scenario i. Only direct ones are stored.
//
// Files may hold any graph, so nothing here relies on its being free of cycles, nor on an array's
// having as many bits as there are scenarios: bits beyond an array's size are clear, and an arrow
// to a scenario that doesn't exist leads no further. No walk goes in circles or recurses. Nothing
// is reported.
//
// CampaignData::removePrecondition and CampaignData::switchPreconditions are defined here too.
#pragma once

#include <QBitArray>

#include <set>

class CampaignData;
class ScenarioData;

// True if `scenario` requires `target`, directly or through others. A scenario requires itself
// only if it stands on a cycle.
bool isReferencedBy(CampaignData *campaign, unsigned int target, unsigned int scenario);

// A bit for each scenario that `scenario` requires, directly or through others: its own only if it
// stands on a cycle.
QBitArray requiredBy(const CampaignData &campaign, unsigned int scenario);

// Whether `scenario` requires `required` directly, as its array says.
bool hasPrerequisite(const ScenarioData &scenario, unsigned int required);
// Sets or clears one bit. An array that ends before the bit is lengthened to set it.
void setPrerequisite(ScenarioData &scenario, unsigned int required, bool on);

// Gives every array one bit for each scenario; bits beyond are dropped. Scenarios that share an
// array share the new one too, so thousands without prerequisites take no room.
void resizePrerequisites(CampaignData &campaign);

// Adds to `result` the scenarios that require scenario `index`, directly or through others. Those
// in it already are not walked on from. All pointers lead into the campaign's vector, those given
// too.
void addAllWithPrecondition(CampaignData &campaign, int index, std::set<ScenarioData *> &result);
