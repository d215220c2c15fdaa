// The sample game's campaigns. "sample.e3c" is the one to show: on the default map, with most
// regions taken, every look and colour in use, stories, and start options of every kind. The
// others are named for what they are.
#pragma once

#include "tools/sample_game/campaign_writer.h"

#include <QString>

#include <vector>

namespace sample {

struct NamedCampaign
{
    QString fileName;
    CampaignPlan plan;
};

std::vector<NamedCampaign> sampleCampaigns();

// The one on show, told apart for its length.
CampaignPlan absentQueen();

// A scenario with one of the sample maps imported.
ScenarioPlan scenarioOn(int sampleMap);

// Numbers from first to last, both included.
std::vector<int> range(int first, int last);

// Tracks whose files are there.
constexpr int kRiverMarch = 0;
constexpr int kLullaby = 12;
constexpr int kSnowbound = 21;
constexpr int kRoadEast = 34;
constexpr int kCampfire = 40;
constexpr int kClockworkWaltz = 50;

} // namespace sample
