// Which players can still be given a hero to start with.
#pragma once

class QTableWidget;
class QTableWidgetItem;
class ScenarioData;

// The rule of playerCanTakeHero, with the heroes of a table of offers taken: each row's item in
// column 0 holds a StartingHero under Qt::UserRole. The row whose item is `ignore` is left out.
// `table` may be null.
bool StartingHero_CanAddPlayer(ScenarioData *scenario, QTableWidget *table,
                               QTableWidgetItem *ignore, unsigned int player);
