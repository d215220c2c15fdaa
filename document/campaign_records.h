// One scenario's record in a campaign file, as the newest format has it. The layout stands in
// campaign_records.cpp.
#pragma once

#include "document/campaign_data.h"

// What a record gets from its campaign.
struct RecordContext
{
    QBitArray prerequisites;
    unsigned int scenarioCount = 0; // bits of prerequisites in the file
    quint32 mapSize = 0;
};

// How many records a campaign's file gets: as many as the reader will look for.
unsigned int recordCount(const CampaignData &campaign);

// What the prerequisites of one scenario take in the file.
qint64 prerequisiteBytes(unsigned int scenarioCount);

// What a scenario's bonuses take in memory beyond their bytes in the file.
qint64 bonusMemory(const ScenarioData &scenario);

void writeScenarioRecord(QDataStream &stream, ScenarioData &scenario, RecordContext context);

// A campaign without a map is one chain through the scenarios that have a map: the prerequisites
// of a scenario behind `previous`, the last one before it that has a map, or -1.
QBitArray chainPrerequisites(const ScenarioData &scenario, int previous, unsigned int count);
