#include "tests/everybody/key_use.h"

#include "gamedata/editor_data.h"
#include "tests/everybody/window_walk.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGraphicsView>
#include <QListWidget>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabBar>
#include <QTableWidget>
#include <QTest>
#include <QTextEdit>

#include <algorithm>

namespace {

// Each answers whether keys changed what the control shows.

bool typesInto(QTextEdit *edit)
{
    const QString before = edit->toPlainText();
    press(edit->window(), Qt::Key_X);
    return edit->toPlainText().size() == before.size() + 1;
}

bool choosesIn(QComboBox *box)
{
    const int before = box->currentIndex();
    press(box->window(), before > 0 ? Qt::Key_Up : Qt::Key_Down);
    return box->count() < 2 || box->currentIndex() != before;
}

bool counts(QSpinBox *box)
{
    const int before = box->value();
    press(box->window(), Qt::Key_Up);
    return box->value() == before + 1;
}

bool turnsPages(QTabBar *bar)
{
    const int before = bar->currentIndex();
    const bool last = before == bar->count() - 1;
    press(bar->window(), last ? Qt::Key_Left : Qt::Key_Right);
    const bool turned = bar->currentIndex() != before;
    press(bar->window(), last ? Qt::Key_Right : Qt::Key_Left);
    return turned && bar->currentIndex() == before;
}

bool walksIn(QListWidget *list)
{
    press(list->window(), Qt::Key_Home);
    const int before = list->currentRow();
    press(list->window(), Qt::Key_Down);
    if (list->count() > 1 && list->currentRow() == before)
        return false;
    QListWidgetItem *item = list->currentItem();
    if (!item || !item->data(Qt::CheckStateRole).isValid())
        return item;
    const Qt::CheckState state = item->checkState();
    press(list->window(), Qt::Key_Space);
    return item->checkState() != state;
}

bool selectsIn(QTableWidget *table)
{
    press(table->window(), Qt::Key_Space);
    return table->rowCount() == 0 || !table->selectedItems().isEmpty();
}

bool choosesAnother(QAbstractButton *button)
{
    const auto isAnother = [button](const QWidget *widget) {
        return widget != button && widget->isEnabled() && belongTogether(widget, button);
    };
    const QVector<QWidget *> controls = focusableControls(button->window());
    if (std::none_of(controls.begin(), controls.end(), isAnother))
        return true;
    // Arrows choose from the one that is chosen on; any other is chosen by Space.
    if (!button->isChecked()) {
        press(button->window(), Qt::Key_Space);
        return button->isChecked();
    }
    // In a row it is another arrow key that leads on than in a column.
    const QWidget *window = button->window();
    for (const int key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left}) {
        if (window->focusWidget() == button)
            press(window, key);
    }
    const auto *chosen = qobject_cast<QAbstractButton *>(window->focusWidget());
    const bool changed = chosen && chosen != button && chosen->isChecked();
    button->setFocus();
    press(button->window(), Qt::Key_Space); // back, for the controls that go with it
    return changed && button->isChecked();
}

bool toggles(QAbstractButton *button)
{
    const bool before = button->isChecked();
    press(button->window(), Qt::Key_Space);
    const bool changed = button->isChecked() != before;
    press(button->window(), Qt::Key_Space);
    return changed && button->isChecked() == before;
}

// Cut off from what it does, which may be another window.
bool clicks(QAbstractButton *button)
{
    button->disconnect();
    const QSignalSpy pressed(button, &QAbstractButton::pressed);
    const QSignalSpy clicked(button, &QAbstractButton::clicked);
    press(button->window(), Qt::Key_Space);
    return pressed.count() == 1 && clicked.count() == 1;
}

bool movesOn(QGraphicsView *view)
{
    const unsigned before = EditorData::info.region;
    press(view->window(), Qt::Key_PageDown);
    return EditorData::info.region == before + 1;
}

} // namespace

void press(const QWidget *window, int key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(window->windowHandle(), Qt::Key(key), modifiers);
}

bool belongTogether(const QWidget *one, const QWidget *other)
{
    const auto *a = qobject_cast<const QAbstractButton *>(one);
    const auto *b = qobject_cast<const QAbstractButton *>(other);
    return a && b && a->autoExclusive() && b->autoExclusive() && a->isCheckable() &&
           b->isCheckable() && a->parentWidget() == b->parentWidget();
}

bool worksByKeys(QWidget *control)
{
    control->setFocus();
    if (auto *edit = qobject_cast<QTextEdit *>(control))
        return typesInto(edit);
    if (auto *box = qobject_cast<QComboBox *>(control))
        return choosesIn(box);
    if (auto *box = qobject_cast<QSpinBox *>(control))
        return counts(box);
    if (auto *bar = qobject_cast<QTabBar *>(control))
        return turnsPages(bar);
    if (auto *list = qobject_cast<QListWidget *>(control))
        return walksIn(list);
    if (auto *table = qobject_cast<QTableWidget *>(control))
        return selectsIn(table);
    if (auto *view = qobject_cast<QGraphicsView *>(control))
        return movesOn(view);
    auto *button = qobject_cast<QAbstractButton *>(control);
    if (!button)
        return false;
    if (button->autoExclusive() && button->isCheckable())
        return choosesAnother(button);
    return button->isCheckable() ? toggles(button) : clicks(button);
}
