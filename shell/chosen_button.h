// Buttons of which one is chosen: round ones, and others that exclude each other.
#pragma once

#include <QAbstractButton>
#include <QWidget>

// Chooses this one and has the Tab key stop at it alone; the arrow keys lead to its neighbours. Qt
// itself does so only once one of them gets the keyboard, and doesn't follow if another is chosen.
inline void chooseButton(QAbstractButton *button)
{
    button->setChecked(true);
    const bool usable = button->isEnabledTo(button->parentWidget());
    const auto neighbours = button->parentWidget()->findChildren<QAbstractButton *>(
        QString(), Qt::FindDirectChildrenOnly);
    for (QAbstractButton *neighbour : neighbours) {
        if (neighbour->isCheckable() && neighbour->autoExclusive())
            neighbour->setFocusPolicy(neighbour == button || !usable ? Qt::StrongFocus
                                                                     : Qt::ClickFocus);
    }
}
