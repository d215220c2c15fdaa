#include "tests/desktop/author_day.h"

Steps authorsDay()
{
    Steps day;
    for (const auto part : {beginCampaign, enterScenarios, offerStartOptions, tellStories,
                            keepFiles, translateTexts, convertCampaign}) {
        const Steps steps = part();
        day.insert(day.end(), steps.begin(), steps.end());
    }
    return day;
}
