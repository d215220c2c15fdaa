// What the monkey knows to do with a control: how a user handles a control of that kind, with
// some clumsiness.
#pragma once

#include "tests/monkey/dice.h"

#include <QString>
#include <Qt>

class QAbstractItemView;
class QWidget;

namespace tricks {

// How much of a change is to be had from a control.
double weightOf(const QWidget *control);
void use(QWidget *control, Dice &dice);
void useRows(QAbstractItemView *view, Dice &dice);

// A text, or a single key if it is empty.
struct Keys
{
    QString name;
    QString text;
    Qt::Key key = Qt::Key_unknown;
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
};

// With the shortcuts of the main window or without.
Keys someKeys(Dice &dice, bool shortcuts);

} // namespace tricks
