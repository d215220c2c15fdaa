// How the cost of exporting texts, and of asking for prerequisites, grows with the campaign.
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "document/campaign_data.h"
#include "document/prerequisites.h"
#include "document/text_exchange.h"

#include <memory>
#include <stdexcept>

namespace {

CampaignData campaignOfTexts(unsigned scenarios)
{
    const QString story = QString("The road is long, and the night longer.\n").repeated(15);
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, scenarios);
    for (ScenarioData &scenario : campaign.scenarios) {
        scenario.mapFileName = "harbour.e3m";
        scenario.mapHeader = std::make_shared<MapHeader>(); // those without a map are left out
        scenario.regionText = story;
        for (int i = 0; i < 2; ++i) {
            scenario.prologues[std::size_t(i)] =
                std::make_shared<CmpPrologue>(CmpPrologue{1, 2, story});
            scenario.epilogues[std::size_t(i)] = scenario.prologues[std::size_t(i)];
        }
    }
    return campaign;
}

std::vector<rows::Step> textSteps()
{
    std::vector<rows::Step> steps;
    for (const unsigned scenarios : {1u, 10u, 100u, 1000u}) {
        const auto campaign = std::make_shared<CampaignData>(campaignOfTexts(scenarios));
        const int storyBytes = campaign->scenarios.front().regionText.size();
        const int atLeast = int(scenarios) * 5 * storyBytes;
        steps.push_back({double(scenarios), rows::timedOften([campaign, atLeast] {
                             if (exportedTexts(*campaign).size() < atLeast)
                                 throw std::runtime_error("texts are missing");
                         })});
    }
    return steps;
}

constexpr unsigned layerWidth = 4;

// Each scenario requires all four of the layer before: the ways through are without number. The
// last scenario of all is required by nobody, so that a search for it has to see everything.
CampaignData layeredCampaign(unsigned layers)
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, layers * layerWidth + 1);
    for (unsigned i = layerWidth; i < layers * layerWidth; ++i) {
        const unsigned layerBefore = i / layerWidth * layerWidth - layerWidth;
        for (unsigned required = layerBefore; required < layerBefore + layerWidth; ++required)
            setPrerequisite(campaign.scenarios[i], required, true);
    }
    return campaign;
}

std::vector<rows::Step> graphSteps()
{
    std::vector<rows::Step> steps;
    for (const unsigned layers : {8u, 16u, 32u, 64u}) {
        const auto campaign = std::make_shared<CampaignData>(layeredCampaign(layers));
        const unsigned alone = layers * layerWidth;
        if (!isReferencedBy(campaign.get(), 0, alone - 1))
            throw std::runtime_error("the last layer doesn't require the first");
        steps.push_back({double(layers), rows::timedOften([campaign, alone] {
                             if (isReferencedBy(campaign.get(), alone, alone - 1))
                                 throw std::runtime_error("a scenario is required by nobody");
                         })});
    }
    return steps;
}

} // namespace

void addTextGrowth()
{
    rows::Growth growth;
    growth.work = "export texts";
    growth.of = "scenarios";
    growth.turns = 31;
    growth.prepare = textSteps;
    rows::add(growth);
}

void addGraphGrowth()
{
    rows::Growth growth;
    growth.work = "isReferencedBy through a layered graph";
    growth.of = "layers of four scenarios";
    growth.turns = 31;
    growth.prepare = graphSteps;
    rows::add(growth);
}
