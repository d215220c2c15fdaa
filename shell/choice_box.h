// Combo boxes of the dialogs: the value chosen is the item's data, never the row.
#pragma once

#include "shell/right_click_filter.h"

#include <QAbstractItemView>
#include <QComboBox>

#include <initializer_list>

// A right click neither opens a box nor chooses from its list. The filter lives as long as `owner`.
inline void keepRightClicksOff(std::initializer_list<QComboBox *> boxes, QObject *owner)
{
    auto *filter = new RightClickFilter(owner);
    for (QComboBox *box : boxes) {
        box->installEventFilter(filter);
        box->view()->viewport()->installEventFilter(filter);
    }
}

// The value chosen; 0 where none is.
inline int choiceOf(const QComboBox *box)
{
    return box->currentData(Qt::UserRole).toInt();
}

// Selects the item with this value; none if the box lacks it.
inline void selectChoice(QComboBox *box, unsigned int value)
{
    box->setCurrentIndex(box->findData(value));
}

// Stores the value chosen and answers whether it differs from the old one. A value that the box
// lacks shows as no choice and stays until one is made.
template<typename Value>
bool storeChoice(const QComboBox *box, Value &value)
{
    if (box->currentIndex() < 0)
        return false;
    const auto chosen = Value(box->currentData().toUInt());
    if (chosen == value)
        return false;
    value = chosen;
    return true;
}
