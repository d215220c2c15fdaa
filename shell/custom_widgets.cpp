#include "shell/custom_widgets.h"

#include <QMouseEvent>

CustomListWidget::CustomListWidget(QWidget *parent) : QListWidget(parent) {}

void CustomListWidget::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        event->ignore();
    else
        QAbstractItemView::mousePressEvent(event);
}

void CustomListWidget::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton)
        event->ignore();
    else
        QAbstractItemView::mouseDoubleClickEvent(event);
}

CustomTableWidget::CustomTableWidget(QWidget *parent) : QTableWidget(parent) {}
