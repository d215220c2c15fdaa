// What a program's windows show, for a test that drives them from outside by mouse and keyboard.
//
// A question is an object with
//   object  name of a widget; a widget without a name goes by its class
//   item    text of an entry in it: of a list, table, combo box, menu, tab bar or row of buttons,
//           "&" left out; or row, its number. For a picture of regions the number is a region's.
//   items   true: all entries are wanted
// Looked at are what stands in front, a popup first, and what is on show there alone.
//
// The answer is an object with
//   window, title, active   the window that takes the input, and whether it does already
//   popup                   name of the popup in front, or empty
//   found                   how many widgets on show have the name; of one of them:
//   point                   in the screen's pixels: where a user would click it
//   enabled, focus, checked, text, open (a combo box's list is open), current (row), count (rows),
//                           ticks (entries that are ticked)
//   items                   the entries' texts, "[x] " or "[ ] " in front where they can be
//                           ticked, " (grey)" behind where they can't be used
//   item                    {row, point, tick (where its tick is), side, enabled, checked,
//   current};
//                           side: 0 on show, -1 before what is on show, 1 behind it
#pragma once

#include <QJsonObject>

QJsonObject widgetReport(const QJsonObject &question);
