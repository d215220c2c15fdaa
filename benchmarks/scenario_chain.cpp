#include "benchmarks/scenario_chain.h"

CampaignData scenarioChain(unsigned scenarios, bool chained)
{
    constexpr unsigned scenariosForMap = 8;
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, scenarios);
    for (std::size_t i = 0; i < campaign.scenarios.size(); i += scenariosForMap) {
        ScenarioData &scenario = campaign.scenarios[i];
        scenario.mapFileName = QStringLiteral("chapter %1.e3m").arg(i);
        scenario.mapHeader = std::make_shared<MapHeader>();
        scenario.startOptions = std::make_shared<CmpScenarioStartOptions>();
        if (chained && i > 0)
            scenario.prerequisites.setBit(int(i - scenariosForMap));
    }
    return campaign;
}
