// What of the editor stands in front and can be reached.
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class QAction;
class QWidget;

// The popup, the modal dialog or else the window itself.
QWidget *frontOf(QWidget *mainWindow);

// The controls of a window that a user can use now, in the order of their making: each one whole,
// without the parts it is made of. Those that close a dialog are left out.
QVector<QWidget *> controlsOf(QWidget *front);

// The buttons of a dialog's button box.
QVector<QWidget *> closingButtonsOf(QWidget *front);

// A control's name by its window and its own, a part of a larger one by the one it is part of.
QString nameOf(const QWidget *control);

// The pages that are on show in a window's tabs and stacks: "Window > Page 2".
QStringList pagesOf(const QWidget *front);

// The class without what the toolkit puts around it.
QString kindOf(const QWidget *window);
