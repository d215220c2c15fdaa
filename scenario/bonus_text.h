// The words in which a row of the bonus table tells its bonus.
#pragma once

#include <QString>

class ScenarioData;
struct CmpStartingBonus;

// Names heroes and buildings as the scenario's map has them for this player. A bonus type above 7
// ends the process.
QString getBonusStringFromRawData(ScenarioData *scenario, unsigned int player,
                                  CmpStartingBonus &bonus);
