#include "tests/desktop/widget_report.h"

#include "tests/desktop/entry_report.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSpinBox>
#include <QStatusBar>
#include <QTextEdit>
#include <QWindow>

namespace {

QString nameOf(const QWidget *widget)
{
    if (!widget)
        return {};
    const QString name = widget->objectName();
    return name.isEmpty() ? QString::fromLatin1(widget->metaObject()->className()) : name;
}

QWidget *frontWindow()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    return QApplication::activeWindow();
}

bool takesInput(const QWidget *window)
{
    return window && window->isActiveWindow() && window->windowHandle() &&
           window->windowHandle()->isExposed();
}

void addOnShow(QList<QWidget *> &found, QWidget *parent, const QString &name)
{
    if (!parent)
        return;
    QList<QWidget *> all = parent->findChildren<QWidget *>();
    all.prepend(parent);
    for (QWidget *widget : qAsConst(all)) {
        if (widget->isVisible() && nameOf(widget) == name && !found.contains(widget))
            found.append(widget);
    }
}

QList<QWidget *> find(const QString &name)
{
    QList<QWidget *> found;
    addOnShow(found, QApplication::activePopupWidget(), name);
    if (found.isEmpty())
        addOnShow(found, frontWindow(), name);
    return found;
}

QString labelsOf(const QWidget *bar)
{
    QStringList texts;
    const QList<QLabel *> labels = bar->findChildren<QLabel *>();
    for (const QLabel *label : labels)
        texts += label->text();
    return texts.join(QLatin1String(" | "));
}

QString textOf(const QWidget *widget)
{
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        return edit->text();
    if (const auto *text = qobject_cast<const QTextEdit *>(widget))
        return text->toPlainText();
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        return button->text().remove(QLatin1Char('&'));
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return box->currentText();
    if (const auto *number = qobject_cast<const QSpinBox *>(widget))
        return number->text();
    if (qobject_cast<const QStatusBar *>(widget))
        return labelsOf(widget);
    return {};
}

// A box with a text is ticked at its left, where the little square is.
QPoint placeToClick(const QWidget *widget)
{
    const bool ticked =
        qobject_cast<const QCheckBox *>(widget) || qobject_cast<const QRadioButton *>(widget);
    QPoint place = widget->rect().center();
    if (ticked)
        place.setX(8);
    return widget->mapToGlobal(place);
}

void describe(QJsonObject &answer, QWidget *widget)
{
    answer["point"] = pointReport(placeToClick(widget));
    answer["enabled"] = widget->isEnabled();
    answer["focus"] = widget->hasFocus();
    answer["text"] = textOf(widget);
    if (const auto *button = qobject_cast<QAbstractButton *>(widget))
        answer["checked"] = button->isChecked();
}

} // namespace

QJsonObject widgetReport(const QJsonObject &question)
{
    const QWidget *window = frontWindow();
    QJsonObject answer;
    answer["window"] = nameOf(window);
    answer["title"] = window ? window->windowTitle() : QString();
    answer["active"] = takesInput(window);
    answer["popup"] = nameOf(QApplication::activePopupWidget());
    const QString name = question["object"].toString();
    if (name.isEmpty())
        return answer;
    const QList<QWidget *> found = find(name);
    answer["found"] = found.size();
    if (found.isEmpty())
        return answer;
    describe(answer, found.constFirst());
    describeEntries(answer, found.constFirst(), question);
    return answer;
}
