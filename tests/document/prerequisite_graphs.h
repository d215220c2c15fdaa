// Graphs of prerequisites for tests: written down as rows, or made at random.
#pragma once

#include "document/campaign_data.h"

#include <QStringList>

#include <algorithm>
#include <random>

// A row of "0" and "1" for each scenario: what it requires, scenario 0 first.
inline CampaignData campaignOf(const QStringList &rows)
{
    CampaignData campaign;
    campaign.scenarios.resize(size_t(rows.size()));
    for (int i = 0; i < rows.size(); ++i) {
        QBitArray &bits = campaign.scenarios[size_t(i)].prerequisites;
        bits = QBitArray(rows[i].size());
        for (int j = 0; j < bits.size(); ++j)
            bits.setBit(j, rows[i][j] == '1');
    }
    return campaign;
}

inline QString rowOf(const QBitArray &bits)
{
    QString row;
    for (int j = 0; j < bits.size(); ++j)
        row += bits.testBit(j) ? '1' : '0';
    return row;
}

inline QStringList rowsOf(const CampaignData &campaign)
{
    QStringList rows;
    for (const ScenarioData &scenario : campaign.scenarios)
        rows << rowOf(scenario.prerequisites);
    return rows;
}

// Up to `most` scenarios with any arrows between them, in arrays of any size; sound ones point
// backwards only.
inline CampaignData randomCampaign(std::mt19937 &random, unsigned most)
{
    CampaignData campaign;
    campaign.scenarios.resize(random() % (most + 1));
    const bool sound = random() % 2 != 0;
    const unsigned rarity = 2 + unsigned(random() % most);
    for (size_t i = 0; i < campaign.scenarios.size(); ++i) {
        QBitArray &bits = campaign.scenarios[i].prerequisites;
        bits = QBitArray(int(random() % (most + 6)));
        for (int j = 0; j < (sound ? std::min(int(i), bits.size()) : bits.size()); ++j)
            bits.setBit(j, random() % rarity == 0);
    }
    return campaign;
}
