#include "shell/right_click_filter.h"

#include <QMouseEvent>

RightClickFilter::RightClickFilter(QObject *parent) : QObject(parent) {}

bool RightClickFilter::eventFilter(QObject *, QEvent *event)
{
    if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonRelease)
        return false;
    return static_cast<QMouseEvent *>(event)->button() == Qt::RightButton;
}
