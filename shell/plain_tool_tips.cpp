#include "shell/plain_tool_tips.h"

#include "shell/shown_text.h"

#include <QHelpEvent>
#include <QToolTip>
#include <QWidget>

PlainToolTips::PlainToolTips(QObject *parent) : QObject(parent) {}

bool PlainToolTips::eventFilter(QObject *watched, QEvent *event)
{
    auto *widget = qobject_cast<QWidget *>(watched);
    if (event->type() != QEvent::ToolTip || !widget || widget->toolTip().isEmpty())
        return false;
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       plainToolTip(widget->toolTip()), widget);
    return true;
}
