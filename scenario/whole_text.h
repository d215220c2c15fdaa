// Tool tips that tell a text whole where its room cuts it. Names come from maps and campaigns and
// may be of any length.
#pragma once

#include "shell/shown_text.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QToolTip>

// What isn't cut has no tool tip.
inline void tellWholeText(const QString &text, bool cut, const QHelpEvent &event, QWidget *widget)
{
    const QString whole = cut ? plainToolTip(text) : QString();
    QToolTip::showText(event.globalPos(), whole, widget);
}

// Of the item of a table or list that the event, which came to the viewport, points at.
inline void tellWholeItem(const QAbstractItemView *view, const QHelpEvent &event)
{
    const QModelIndex index = view->indexAt(event.pos());
    const QRect shown = view->visualRect(index).intersected(view->viewport()->rect());
    const QString text = index.data().toString();
    // A list forgets about the width of a word without end when it asks for room.
    const int wanted =
        qMax(view->sizeHintForIndex(index).width(), view->fontMetrics().horizontalAdvance(text));
    tellWholeText(text, index.isValid() && wanted > shown.width(), event, view->viewport());
}
