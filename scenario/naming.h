// The names that every dialog of a scenario shows: of heroes and players, and of scenarios by way
// of document/scenario_names; and which heroes a map disables. Free functions without a state.
//
// Numbers beyond their table are absent entries: a hero or colour without a name, a player without
// heroes. The texts are of the context QObject.
#pragma once

#include "document/scenario_names.h"
#include "document/start_option_values.h"

#include <QBitArray>
#include <QString>

class QComboBox;
class ScenarioData;

// The name of the player's colour.
QString colourName(unsigned int player);

// The player's number, counted from 1, and the name of its colour.
QString getFullPlayerName(unsigned int player);

// The hero's name on the scenario's map if it has one there for this player, otherwise the game's,
// and where it stands. Without `showPlace` a hero on the map goes without; all others keep theirs.
QString getHeroName(ScenarioData *scenario, unsigned int player, unsigned short hero,
                    bool showPlace);

// Appends an item with the hero's name and place; its number is the item's data, an unsigned int
// under Qt::UserRole.
void addHeroToCombobox(QComboBox *box, ScenarioData *scenario, unsigned int player,
                       unsigned int hero);
// Appends the heroes that the player has on the map, in the map's order. With `withSpecial` the
// strongest hero comes first, and the generated one if the player's town brings one forth.
void addHeroesToCombobox(QComboBox *box, ScenarioData *scenario, unsigned int player,
                         bool withSpecial);

// A bit for each hero of the game's table, set unless the map allows or customises the hero. The
// same for every player.
QBitArray getDisabledHeroes(ScenarioData *scenario, unsigned int player);
// Looks a hero up in what getDisabledHeroes answers; the three special numbers never are disabled.
bool HeroIsDisabled(QBitArray &disabled, unsigned int hero);
