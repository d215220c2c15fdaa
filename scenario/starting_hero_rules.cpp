#include "scenario/starting_hero_rules.h"

#include "document/campaign_data.h"

#include <QTableWidget>

#include <set>

bool StartingHero_CanAddPlayer(ScenarioData *scenario, QTableWidget *table,
                               QTableWidgetItem *ignore, unsigned int player)
{
    std::set<int> used;
    for (int row = 0; table && row < table->rowCount(); ++row) {
        const QTableWidgetItem *item = table->item(row, 0);
        if (item && item != ignore)
            used.insert(item->data(Qt::UserRole).value<StartingHero>().heroId);
    }
    return playerCanTakeHero(*scenario, used, player);
}
