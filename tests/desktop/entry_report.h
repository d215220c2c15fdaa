// The part of a report on a widget that tells of its entries; see widget_report.h.
#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QPoint>

class QWidget;

inline QJsonArray pointReport(QPoint point)
{
    return {point.x(), point.y()};
}

// Adds what the question asks for and the widget has.
void describeEntries(QJsonObject &answer, QWidget *widget, const QJsonObject &question);
