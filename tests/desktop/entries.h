// The entries of a widget of any kind: list, table, combo box, menu, tab bar, row of buttons,
// picture of regions.
#pragma once

#include <QPoint>
#include <QString>

#include <vector>

class QWidget;

// See widget_report.h for what is told of it.
struct Entry
{
    QString text;
    QPoint point;
    QPoint tick;
    int row = 0;
    int side = 0;
    bool enabled = true;
    bool tickable = false;
    bool checked = false;
    bool current = false;
};

using Entries = std::vector<Entry>;

// Those on show; of a list all. None for a widget of another kind.
Entries entriesOf(const QWidget *widget);
