// Maps on which the rules of start options bite: who may be given a hero or a bonus there, and who
// may not. "The Split Crown" comes twice, the second time with another answer to every question.
#pragma once

#include "tools/sample_game/map_writer.h"

#include <vector>

namespace sample {

std::vector<MapPlan> ruleMaps();

} // namespace sample
