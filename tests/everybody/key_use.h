// Controls used by keys.
#pragma once

#include <Qt>

class QWidget;

// Presses a key in a window and lets it go.
void press(const QWidget *window, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

// Whether the arrow keys lead from one to the other, of which one is chosen.
bool belongTogether(const QWidget *one, const QWidget *other);

// Gives the control the keyboard and answers whether its keys do what they should: type, choose,
// count, turn pages, press. A control of a kind that isn't known doesn't work. A button that is
// pressed loses what it is connected to.
bool worksByKeys(QWidget *control);
