// The kinds of bonus, and where the item of a row keeps its own.
#pragma once

#include <QTableWidgetItem>

// As stored in files.
enum class BonusType : unsigned char
{
    Spell,
    Creature,
    Building,
    Artifact,
    Scroll,
    PrimarySkill,
    SecondarySkill,
    Resource,
};

constexpr int bonusTypeRole = Qt::UserRole + 1; // an unsigned char; the record is one role below

// False for no item.
inline bool holdsBonus(const QTableWidgetItem *item, BonusType type)
{
    return item && item->data(bonusTypeRole).toInt() == int(type);
}
