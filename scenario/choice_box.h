// Combo boxes of the dialogs: the value chosen is the item's data, never the row.
#pragma once

#include <QComboBox>

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
