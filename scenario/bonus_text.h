// The words in which a row of the bonus table tells its bonus.
#pragma once

#include <QString>

class ScenarioData;
struct CmpStartingBonus;

// Names heroes and buildings as the scenario's map has them for this player. What no table knows
// has an empty name, and a payload of another kind than the bonus type says counts as all zeros.
// A bonus type above 7 ends the process. The texts are of the context QObject.
QString getBonusStringFromRawData(ScenarioData *scenario, unsigned int player,
                                  CmpStartingBonus &bonus);
