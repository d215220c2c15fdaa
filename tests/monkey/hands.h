// What a hand does with mouse and keyboard. Everything goes through a window's handle, so that a
// modal window in front swallows what a user could not reach.
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>
#include <Qt>

class QMainWindow;
class QWidget;

namespace hands {

// Places are those of the widget; one outside its window is passed over.
void click(QWidget *widget, QPoint place, Qt::MouseButton button = Qt::LeftButton,
           Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void doubleClick(QWidget *widget, QPoint place, Qt::MouseButton button = Qt::LeftButton);
// Goes down in one place and up in another.
void drag(QWidget *widget, QPoint from, QPoint to);
void hover(QWidget *widget, QPoint place);
void wheel(QWidget *widget, QPoint place, int notches);

// To whatever has the focus in the widget's window.
void key(QWidget *widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
void type(QWidget *widget, const QString &text);

// Lets files fall on a window.
void dropFiles(QWidget *window, QPoint place, const QStringList &paths);

} // namespace hands
