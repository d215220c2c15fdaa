// The words of the sample game's world: everything that has a number and a name. Each list is in
// the order of the numbers, from 0 if nothing else is told. All names are this project's own.
#pragma once

#include <QStringList>

namespace sample::names {

QStringList creatures();      // 150, the text table's
QStringList addedCreatures(); // 150 to 185, the table file's

QStringList artifacts();      // 144, the text table's
QStringList addedArtifacts(); // 144 to 165, the table file's

QStringList heroes();      // 156, the text table's
QStringList addedHeroes(); // 156 to 177, the table file's

QStringList skills();      // 28, the text table's
QStringList addedSkills(); // 28 to 30, the table file's

QStringList adventureSpells(); // spells 0 to 9
QStringList combatSpells();    // spells 10 to 69
QStringList creatureSpells();  // behind the last spell that has a number

QStringList towns();                  // 11
QStringList resources();              // 7
QStringList neutralBuildings();       // 16
QStringList specialBuildings();       // 81
QStringList dwellings();              // 140: seven and seven upgraded for nine towns, then the rest
QStringList addedDwellings(int town); // 14 for towns 9 and 10
QStringList addedSpecials(int town);  // 10 for towns 9 and 10, one for town 8

// The lines of a text, without the empty ones.
QStringList lines(const char *text);

} // namespace sample::names
