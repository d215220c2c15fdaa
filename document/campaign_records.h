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

// Bits of the crossover arrays in a file of this version; the newest has as many as the game's
// tables.
struct CrossoverBits
{
    unsigned int creatures = 0;
    unsigned int artifacts = 0;
};
CrossoverBits crossoverBits(quint32 version);

// Prologues of a record in a file of this version, and as many epilogues.
unsigned int storyCount(quint32 version);

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
