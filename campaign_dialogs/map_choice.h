// What the dialogs that let one choose a campaign map have in common.
#pragma once

#include <Qt>

constexpr int firstMap = 24;         // offered before all others
constexpr int idRole = Qt::UserRole; // of a list's item: the number of its map or background
