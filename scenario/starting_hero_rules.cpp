#include "scenario/starting_hero_rules.h"

#include "document/campaign_data.h"
#include "scenario/option_page.h"

bool StartingHero_CanAddPlayer(ScenarioData *scenario, QTableWidget *table,
                               QTableWidgetItem *ignore, unsigned int player)
{
    std::set<int> used;
    if (table)
        used = valuesInRows(table, &StartingHero::heroId, ignore);
    return playerCanTakeHero(*scenario, used, player);
}
