// What there is to see and to use in an open window, and how it is told to somebody who can't see
// it. Parts that belong to a control, such as the arrows of a spin box, aren't told by themselves.
#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <QVector>

class QWidget;

// Visible widgets, the window first.
QVector<QWidget *> shownWidgets(QWidget *window);

// Those that take the keyboard, whether they are enabled or not.
QVector<QWidget *> focusableControls(QWidget *window);

// Which one it is, for a person who reads a failure: its class, its object's name, its text.
QString describe(const QWidget *widget);

// What a screen reader calls a control. Empty if it would say nothing.
QString spokenName(QWidget *control);

// The names of what the control stands in, from the outside: a page, a group.
QString spokenGroup(QWidget *control);

// A text on show and the room it has, in the widget's coordinates.
struct ShownText
{
    QWidget *widget = nullptr;
    QString text;
    QRect room;
    bool enabled = true;
    // Where the rest can be had if the room is too small.
    enum
    {
        NoRest,
        BehindEllipsis,
        Scrolled
    } rest = NoRest;
    bool wraps = false;
};

QVector<ShownText> shownTexts(QWidget *window);

// What holds the texts of a window that are cut.
QStringList cutTexts(QWidget *window);

// Pairs of neighbours that stand on each other, and widgets that stick out of their parent.
QStringList misplacedWidgets(QWidget *window);
