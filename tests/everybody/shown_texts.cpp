// The texts of a window with the room that the style leaves them, for window_walk.h.
#include "tests/everybody/window_walk.h"

#include "shell/elided_label.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QStyleOption>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>

namespace {

using Texts = QVector<ShownText>;

void addButton(QAbstractButton *button, Texts &texts)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.text = button->text();
    option.icon = button->icon();
    option.iconSize = button->iconSize();
    QStyle::SubElement element = QStyle::SE_PushButtonContents;
    if (qobject_cast<QCheckBox *>(button))
        element = QStyle::SE_CheckBoxContents;
    else if (qobject_cast<QRadioButton *>(button))
        element = QStyle::SE_RadioButtonContents;
    else if (!qobject_cast<QPushButton *>(button))
        return; // a button of a tool bar shows its icon alone
    QRect room = button->style()->subElementRect(element, &option, button);
    if (!button->icon().isNull()) {
        // On either side, wherever the icon stands.
        const int side = button->iconSize().width() + 4; // pixels that the style leaves beside it
        if (button->layoutDirection() == Qt::LeftToRight)
            room.setLeft(room.left() + side);
        else
            room.setRight(room.right() - side);
    }
    texts += {button, button->text(), room, button->isEnabled(), ShownText::NoRest, false};
}

void addLabel(QLabel *label, Texts &texts)
{
    if (label->pixmap(Qt::ReturnByValue).isNull())
        texts +=
            {label,
             label->text(),
             label->contentsRect(),
             label->isEnabled(),
             qobject_cast<ElidedLabel *>(label) ? ShownText::BehindEllipsis : ShownText::NoRest,
             label->wordWrap()};
}

void addCombo(QComboBox *box, Texts &texts)
{
    QStyleOptionComboBox option;
    option.initFrom(box);
    const QRect room = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, box);
    texts += {box, box->currentText(), room, box->isEnabled(), ShownText::NoRest, false};
}

void addSpin(QSpinBox *box, Texts &texts)
{
    QStyleOptionSpinBox option;
    option.initFrom(box);
    option.subControls = QStyle::SC_All;
    const QRect room =
        box->style()->subControlRect(QStyle::CC_SpinBox, &option, QStyle::SC_SpinBoxEditField, box);
    texts += {box, box->text(), room, box->isEnabled(), ShownText::NoRest, false};
}

void addTabs(QTabBar *bar, Texts &texts)
{
    for (int tab = 0; tab < bar->count(); ++tab)
        texts +=
            {bar, bar->tabText(tab), bar->tabRect(tab), bar->isEnabled(), ShownText::NoRest, false};
}

void addGroup(QGroupBox *group, Texts &texts)
{
    if (group->title().isEmpty())
        return;
    QStyleOptionGroupBox option;
    option.initFrom(group);
    option.text = group->title();
    option.subControls = QStyle::SC_All;
    const QRect room = group->style()->subControlRect(QStyle::CC_GroupBox, &option,
                                                      QStyle::SC_GroupBoxLabel, group);
    texts += {group,
              group->title(),
              room.intersected(group->rect()),
              group->isEnabled(),
              ShownText::NoRest,
              false};
}

void addMenuBar(QMenuBar *bar, Texts &texts)
{
    const auto actions = bar->actions();
    for (QAction *action : actions)
        texts += {bar, action->text(), bar->actionGeometry(action), true, ShownText::NoRest, false};
}

// A list scrolls to what it has no room for.
void addList(QListWidget *list, Texts &texts)
{
    constexpr int boxWidth = 24; // pixels of an item's check box with what is around it
    for (int row = 0; row < list->count(); ++row) {
        const QListWidgetItem *item = list->item(row);
        QRect room = list->visualItemRect(item);
        if (!list->viewport()->rect().contains(room))
            continue;
        if (item->flags() & Qt::ItemIsUserCheckable) {
            const bool mirrored = list->layoutDirection() == Qt::RightToLeft;
            room.adjust(mirrored ? 0 : boxWidth, 0, mirrored ? -boxWidth : 0, 0);
        }
        const bool enabled = list->isEnabled() && (item->flags() & Qt::ItemIsEnabled);
        texts += {list->viewport(), item->text(), room, enabled, ShownText::BehindEllipsis, false};
    }
}

void addTable(QTableWidget *table, Texts &texts)
{
    QHeaderView *head = table->horizontalHeader();
    for (int column = 0; column < table->columnCount(); ++column) {
        const QRect room(head->sectionViewportPosition(column), 0, head->sectionSize(column),
                         head->height());
        texts += {head->viewport(),
                  table->horizontalHeaderItem(column)->text(),
                  room,
                  table->isEnabled(),
                  ShownText::NoRest,
                  false};
        for (int row = 0; row < table->rowCount(); ++row) {
            const QTableWidgetItem *item = table->item(row, column);
            texts += {table->viewport(),  item->text(),      table->visualItemRect(item),
                      table->isEnabled(), ShownText::NoRest, false};
        }
    }
}

template<typename Widget, typename Add>
bool addedAs(QWidget *widget, Texts &texts, Add add)
{
    auto *known = qobject_cast<Widget *>(widget);
    if (known)
        add(known, texts);
    return known;
}

void addText(QWidget *widget, Texts &texts)
{
    const auto nothing = [](auto *, Texts &) {};
    (void)(addedAs<QAbstractButton>(widget, texts, addButton) ||
           addedAs<QComboBox>(widget, texts, addCombo) ||
           addedAs<QSpinBox>(widget, texts, addSpin) || addedAs<QTabBar>(widget, texts, addTabs) ||
           addedAs<QGroupBox>(widget, texts, addGroup) ||
           addedAs<QMenuBar>(widget, texts, addMenuBar) ||
           addedAs<QListWidget>(widget, texts, addList) ||
           addedAs<QTableWidget>(widget, texts, addTable) ||
           addedAs<QTextEdit>(widget, texts,
                              [](QTextEdit *edit, Texts &all) {
                                  all += {edit->viewport(),         edit->toPlainText(),
                                          edit->viewport()->rect(), edit->isEnabled(),
                                          ShownText::Scrolled,      true};
                              }) ||
           addedAs<QLabel>(widget, texts, addLabel) || addedAs<QWidget>(widget, texts, nothing));
}

} // namespace

QVector<ShownText> shownTexts(QWidget *window)
{
    Texts all;
    const QVector<QWidget *> widgets = shownWidgets(window);
    for (QWidget *widget : widgets)
        addText(widget, all);
    Texts texts;
    for (const ShownText &shown : qAsConst(all)) {
        if (!shown.text.trimmed().isEmpty())
            texts += shown;
    }
    return texts;
}
