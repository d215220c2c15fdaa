#include "tests/monkey/reach.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollBar>
#include <QStackedWidget>
#include <QTabBar>

namespace {

bool canBeUsed(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty();
}

// What is used as one thing, whatever it is made of.
bool isControl(const QWidget *widget)
{
    return qobject_cast<const QAbstractButton *>(widget) ||
           qobject_cast<const QComboBox *>(widget) ||
           qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QAbstractScrollArea *>(widget) ||
           qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QTabBar *>(widget) ||
           qobject_cast<const QScrollBar *>(widget) || qobject_cast<const QMenuBar *>(widget);
}

// What stands in a control by itself: the heads and the scroll bars of lists and tables.
bool isPartToUse(const QWidget *widget)
{
    return qobject_cast<const QScrollBar *>(widget) || widget->inherits("QHeaderView");
}

void collect(const QWidget *parent, bool inControl, QVector<QWidget *> &controls)
{
    const QObjectList &children = parent->children();
    for (QObject *child : children) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (!widget || widget->isWindow() || !canBeUsed(widget))
            continue;
        const bool control = isControl(widget);
        if (inControl ? isPartToUse(widget) : control)
            controls += widget;
        if (!qobject_cast<QDialogButtonBox *>(widget))
            collect(widget, inControl || control, controls);
    }
}

} // namespace

QWidget *frontOf(QWidget *mainWindow)
{
    if (QWidget *popup = QApplication::activePopupWidget())
        return popup;
    if (QWidget *dialog = QApplication::activeModalWidget())
        return dialog;
    return mainWindow;
}

QVector<QWidget *> controlsOf(QWidget *front)
{
    QVector<QWidget *> controls;
    collect(front, false, controls);
    return controls;
}

QVector<QWidget *> closingButtonsOf(QWidget *front)
{
    QVector<QWidget *> buttons;
    const auto boxes = front->findChildren<QDialogButtonBox *>();
    for (const QDialogButtonBox *box : boxes) {
        const auto all = box->buttons();
        for (QAbstractButton *button : all) {
            if (canBeUsed(button))
                buttons += button;
        }
    }
    return buttons;
}

QString nameOf(const QWidget *control)
{
    QString name = control->objectName();
    if (name.isEmpty() || name.startsWith(QLatin1String("qt_")))
        name = QString::fromLatin1(control->metaObject()->className());
    const QWidget *owner = control->parentWidget();
    while (owner && !owner->isWindow() &&
           (owner->objectName().isEmpty() || owner->objectName().startsWith(QLatin1String("qt_"))))
        owner = owner->parentWidget();
    if (!owner || owner->isWindow())
        return QStringLiteral("%1 > %2").arg(kindOf(control->window()), name);
    return QStringLiteral("%1 > %2 > %3").arg(kindOf(control->window()), owner->objectName(), name);
}

QStringList pagesOf(const QWidget *front)
{
    QStringList pages;
    const auto stacks = front->findChildren<QStackedWidget *>();
    for (const QStackedWidget *stack : stacks) {
        const QWidget *page = stack->currentWidget();
        if (page && page->isVisible()) {
            pages += QStringLiteral("%1 > %2 %3")
                         .arg(kindOf(front), kindOf(page), QString::number(stack->currentIndex()));
        }
    }
    return pages;
}

QString kindOf(const QWidget *window)
{
    return QString::fromLatin1(window->metaObject()->className());
}
