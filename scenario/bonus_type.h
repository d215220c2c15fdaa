// What bonuses say in numbers, and where the item of a row keeps its kind.
#pragma once

#include "document/start_option_values.h"

#include <QTableWidgetItem>

#include <array>

// Resources that a bonus gives at once, and the game's texts for them.
struct ResourceGroup
{
    int resource;
    int text; // in EditorData::jktext
};
constexpr std::array<ResourceGroup, 2> resourceGroups{{{woodAndOre, 27}, {rareResources, 28}}};

constexpr int bonusTypeRole = Qt::UserRole + 1; // an unsigned char; the record is one role below

// False for no item.
inline bool holdsBonus(const QTableWidgetItem *item, BonusType type)
{
    return item && item->data(bonusTypeRole).toInt() == int(type);
}
