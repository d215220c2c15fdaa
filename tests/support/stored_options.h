// Start options as the scenario dialog stores them, so that it finds nothing to change.
#pragma once

#include "document/start_options.h"

#include <memory>

// Starting bonuses of so many resources for the first player.
inline std::shared_ptr<CmpScenarioStartOptions> resourceBonuses(int count)
{
    StartingBonusSet set;
    for (int i = 0; i < count; ++i)
        set.bonuses.push_back({7, QVariant::fromValue(BonusResource{quint8(i), 100 * i + 5})});
    auto options = std::make_shared<CmpScenarioStartOptions>();
    options->optionType = 1;
    options->optionData = QVariant::fromValue(set);
    return options;
}
