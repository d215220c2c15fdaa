// A day of a campaign author: a campaign from its first name to its last conversion, as a list of
// steps. Each needs what the ones before it have done, and throws a Failure if something isn't as
// it has to be.
#pragma once

#include "tests/desktop/workplace.h"

#include <vector>

struct Step
{
    const char *name;
    void (*act)(Workplace &);
};

using Steps = std::vector<Step>;

Steps authorsDay();

// Its parts, in their order.
Steps beginCampaign();
Steps enterScenarios();
Steps offerStartOptions();
Steps tellStories();
Steps keepFiles();
Steps translateTexts();
Steps convertCampaign();
