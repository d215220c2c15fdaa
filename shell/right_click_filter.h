// Keeps the right mouse button from a widget on which it would do harm.
#pragma once

#include <QObject>

class RightClickFilter : public QObject
{
    Q_OBJECT

public:
    explicit RightClickFilter(QObject *parent);

    // Swallows presses and releases of the right button; lets everything else through.
    bool eventFilter(QObject *watched, QEvent *event) override;
};
