// A campaign of five scenarios without regions, the last of which requires scenarios 0, 2 and 3.
// All are on the map of hero_map.h, which humans can play as Red, Blue, Tan or Orange.
#pragma once

#include "tests/scenario/hero_map.h"

class CrossoverCampaign : public CampaignData
{
public:
    CrossoverCampaign()
    {
        hasMap = false;
        for (const char *title : {"Thaw", "Fen", "Coast", "Ridge", "Keep"}) {
            MapHeader header = heroMap();
            header.mapName = title;
            scenarios.emplace_back();
            giveMap(scenarios.back(), header);
        }
        require({0, 2, 3});
    }

    ScenarioData &last() { return scenarios.back(); }

    void require(const QVector<int> &sources)
    {
        last().prerequisites = QBitArray(int(scenarios.size()));
        for (const int source : sources)
            last().prerequisites.setBit(source);
    }
};
