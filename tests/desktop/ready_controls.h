// What the functions for controls, menus and dialogs share: waiting until something can be used.
#pragma once

#include "tests/desktop/editor.h"

#include <QPoint>

// Parts of an answer of widget_report.h.
QPoint place(const QJsonValue &point);
QJsonObject entryOf(const QJsonObject &seen);
bool isReady(const QJsonObject &seen); // the only one of its name, in a window that takes the input

QJsonObject ready(Editor &editor, const QString &control);
QJsonObject readyEntry(Editor &editor, const QJsonObject &question);
