#include "tests/everybody/window_walk.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QTabBar>
#include <QTabWidget>

namespace {

// Used as one thing, whatever it is made of.
bool isMadeOfParts(const QWidget *widget)
{
    return widget->inherits("QComboBox") || widget->inherits("QAbstractSpinBox") ||
           widget->inherits("QAbstractScrollArea") || widget->inherits("QTabBar") ||
           widget->inherits("QMenuBar") || widget->inherits("QHeaderView");
}

void collect(QWidget *parent, QVector<QWidget *> &found)
{
    found += parent;
    if (isMadeOfParts(parent))
        return;
    const QObjectList &children = parent->children();
    for (QObject *child : children) {
        auto *widget = qobject_cast<QWidget *>(child);
        if (widget && !widget->isWindow() && widget->isVisible())
            collect(widget, found);
    }
}

QString nameOf(QAccessibleInterface *control)
{
    return control ? control->text(QAccessible::Name).trimmed() : QString();
}

QVector<QWidget *> shownChildren(const QWidget *parent)
{
    QVector<QWidget *> shown;
    const auto children = parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (QWidget *child : children) {
        if (!child->isWindow() && child->isVisible() && !child->size().isEmpty())
            shown += child;
    }
    return shown;
}

// The bar of the tabs lies on the edge of the pages, as every style has it.
bool mayOverlap(const QWidget *a, const QWidget *b)
{
    return qobject_cast<const QTabWidget *>(a->parentWidget()) &&
           a->geometry().intersected(b->geometry()).height() <=
               a->style()->pixelMetric(QStyle::PM_TabBarBaseOverlap);
}

} // namespace

QVector<QWidget *> shownWidgets(QWidget *window)
{
    QVector<QWidget *> found;
    collect(window, found);
    return found;
}

QVector<QWidget *> focusableControls(QWidget *window)
{
    QVector<QWidget *> controls;
    const QVector<QWidget *> widgets = shownWidgets(window);
    for (QWidget *widget : widgets) {
        if (widget != window && widget->focusPolicy() != Qt::NoFocus && !widget->focusProxy())
            controls += widget;
    }
    return controls;
}

QString describe(const QWidget *widget)
{
    QString text;
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        text = button->text();
    else if (const auto *label = qobject_cast<const QLabel *>(widget))
        text = label->text();
    return QStringLiteral("%1 %2 \"%3\"")
        .arg(QLatin1String(widget->metaObject()->className()), widget->objectName(), text);
}

// A combo box calls itself by its choice, and leaves its name to its label.
QString spokenName(QWidget *control)
{
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(control);
    if (!spoken)
        return {};
    if (!qobject_cast<QComboBox *>(control))
        return nameOf(spoken);
    QStringList labels;
    const auto relations = spoken->relations(QAccessible::Label);
    for (const auto &relation : relations)
        labels += nameOf(relation.first);
    return labels.join(QLatin1Char(' '));
}

QString spokenGroup(QWidget *control)
{
    QStringList groups;
    for (QWidget *parent = control->parentWidget(); parent && !parent->isWindow();
         parent = parent->parentWidget()) {
        const QString name = nameOf(QAccessible::queryAccessibleInterface(parent));
        if (!name.isEmpty())
            groups.prepend(name);
    }
    return groups.join(QStringLiteral(" > "));
}

QStringList cutTexts(QWidget *window)
{
    QStringList cut;
    const QVector<ShownText> texts = shownTexts(window);
    for (const ShownText &shown : texts) {
        if (shown.rest == ShownText::Scrolled)
            continue;
        const QFontMetrics metrics = shown.widget->fontMetrics();
        const QSize needed = shown.wraps ? metrics
                                               .boundingRect(QRect(0, 0, shown.room.width(), 0),
                                                             Qt::TextWordWrap, shown.text)
                                               .size()
                                         : metrics.size(Qt::TextShowMnemonic, shown.text);
        const bool fits =
            needed.height() <= shown.room.height() &&
            (needed.width() <= shown.room.width() || shown.rest == ShownText::BehindEllipsis);
        if (!fits)
            cut += QStringLiteral("%1: \"%2\" needs %3 by %4, has %5 by %6")
                       .arg(describe(shown.widget), shown.text)
                       .arg(needed.width())
                       .arg(needed.height())
                       .arg(shown.room.width())
                       .arg(shown.room.height());
    }
    // What a bar has no room for goes behind a button of its own.
    const auto buttons = window->findChildren<QAbstractButton *>();
    for (const QAbstractButton *button : buttons) {
        const bool stands = button->isVisible() && qobject_cast<QTabBar *>(button->parentWidget());
        if (stands || (button->isVisible() && button->objectName().endsWith("_ext_button")))
            cut += describe(button);
    }
    return cut;
}

QStringList misplacedWidgets(QWidget *window)
{
    QStringList misplaced;
    const QVector<QWidget *> widgets = shownWidgets(window);
    for (const QWidget *parent : widgets) {
        if (isMadeOfParts(parent))
            continue;
        const QVector<QWidget *> children = shownChildren(parent);
        for (int i = 0; i < children.size(); ++i) {
            if (!parent->rect().contains(children[i]->geometry()))
                misplaced += describe(children[i]) + " sticks out of " + describe(parent);
            for (int j = i + 1; j < children.size(); ++j) {
                if (children[i]->geometry().intersects(children[j]->geometry()) &&
                    !mayOverlap(children[i], children[j]))
                    misplaced += describe(children[i]) + " stands on " + describe(children[j]);
            }
        }
    }
    return misplaced;
}
