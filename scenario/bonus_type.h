// The kinds of bonus, what they say in numbers, and where the item of a row keeps its own.
#pragma once

#include <QTableWidgetItem>

#include <array>

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

// Numbers of a bonus that stand for several resources at once, and the game's texts for them.
struct ResourceGroup
{
    int resource;
    int text; // in EditorData::jktext
};
constexpr std::array<ResourceGroup, 2> resourceGroups{{{0xFD, 27}, {0xFE, 28}}};

constexpr int bonusTypeRole = Qt::UserRole + 1; // an unsigned char; the record is one role below

// False for no item.
inline bool holdsBonus(const QTableWidgetItem *item, BonusType type)
{
    return item && item->data(bonusTypeRole).toInt() == int(type);
}
