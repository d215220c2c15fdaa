#include "tests/desktop/entries.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionViewItem>
#include <QTabBar>
#include <QTabWidget>

namespace {

QString plain(QString text)
{
    return text.remove(QLatin1Char('&'));
}

template<typename MenuOrBar>
Entries entriesOfActions(const MenuOrBar *menu)
{
    Entries entries;
    for (const QAction *action : menu->actions()) {
        if (!action->isVisible() || action->isSeparator())
            continue;
        Entry entry;
        entry.text = plain(action->text());
        entry.point =
            menu->mapToGlobal(menu->actionGeometry(const_cast<QAction *>(action)).center());
        entry.row = int(entries.size());
        entry.enabled = action->isEnabled();
        entries.push_back(entry);
    }
    return entries;
}

Entries entriesOfTabs(const QTabWidget *tabs)
{
    Entries entries;
    for (int i = 0; i < tabs->count(); ++i) {
        Entry entry;
        entry.text = plain(tabs->tabText(i));
        entry.point = tabs->tabBar()->mapToGlobal(tabs->tabBar()->tabRect(i).center());
        entry.row = i;
        entry.enabled = tabs->isTabEnabled(i);
        entry.current = i == tabs->currentIndex();
        entries.push_back(entry);
    }
    return entries;
}

Entries entriesOfButtons(const QDialogButtonBox *box)
{
    Entries entries;
    const QList<QAbstractButton *> buttons = box->buttons();
    for (const QAbstractButton *button : buttons) {
        Entry entry;
        entry.text = plain(button->text());
        entry.point = button->mapToGlobal(button->rect().center());
        entry.row = int(entries.size());
        entry.enabled = button->isEnabled();
        entries.push_back(entry);
    }
    return entries;
}

int sideOf(const QRect &entry, const QRect &shown)
{
    if (shown.contains(entry.center()))
        return 0;
    return entry.center().y() < shown.top() || entry.center().x() < shown.left() ? -1 : 1;
}

QPoint placeOfTick(const QAbstractItemView *view, const QRect &rect)
{
    QStyleOptionViewItem option;
    option.initFrom(view);
    option.rect = rect;
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    return view->style()
        ->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, view)
        .center();
}

Entry cell(const QAbstractItemView *view, const QModelIndex &index)
{
    const QRect rect = view->visualRect(index);
    const QVariant tick = index.data(Qt::CheckStateRole);
    Entry entry;
    entry.text = index.data().toString();
    entry.point = view->viewport()->mapToGlobal(rect.center());
    entry.row = index.row();
    entry.side = sideOf(rect, view->viewport()->rect());
    entry.enabled = index.flags().testFlag(Qt::ItemIsEnabled);
    entry.tickable = tick.isValid();
    entry.current = index.row() == view->currentIndex().row();
    if (entry.tickable) {
        entry.tick = view->viewport()->mapToGlobal(placeOfTick(view, rect));
        entry.checked = tick.toInt() == Qt::Checked;
    }
    return entry;
}

// A row of several columns is one entry that stands where its first cell is.
Entries entriesOfView(const QAbstractItemView *view)
{
    Entries entries;
    const QAbstractItemModel *model = view->model();
    for (int row = 0; model && row < model->rowCount(view->rootIndex()); ++row) {
        Entry entry = cell(view, model->index(row, 0, view->rootIndex()));
        for (int column = 1; column < model->columnCount(view->rootIndex()); ++column)
            entry.text += QStringLiteral(" | ") +
                          model->index(row, column, view->rootIndex()).data().toString();
        entries.push_back(entry);
    }
    return entries;
}

// The row on show, or with the list open the one that Return would take.
Entries entriesOfBox(const QComboBox *box)
{
    const bool open = box->view()->isVisible();
    const int current = open ? box->view()->currentIndex().row() : box->currentIndex();
    Entries entries;
    for (int i = 0; i < box->count(); ++i) {
        Entry entry;
        entry.text = box->itemText(i);
        entry.row = i;
        entry.current = i == current;
        entries.push_back(entry);
    }
    return entries;
}

bool isOnTop(const QGraphicsItem *item, QPoint point)
{
    const QList<QGraphicsItem *> there = item->scene()->items(point);
    return !there.isEmpty() && there.constFirst() == item;
}

// How far the item lies on top around the point, in pixels; at most a few.
int roomAround(const QGraphicsItem *item, QPoint point)
{
    constexpr int enough = 24;
    int room = 0;
    while (room < enough && isOnTop(item, point - QPoint(room, 0)) &&
           isOnTop(item, point + QPoint(room, 0)) && isOnTop(item, point - QPoint(0, room)) &&
           isOnTop(item, point + QPoint(0, room)))
        room += 4;
    return room;
}

// Where the item lies on top, as far from its edges as can be.
QPoint placeOnTop(const QGraphicsItem *item)
{
    constexpr int step = 6;
    const QRect rect = item->sceneBoundingRect().toRect();
    QPoint best = rect.center();
    int mostRoom = 0;
    for (int y = rect.top(); y < rect.bottom(); y += step) {
        for (int x = rect.left(); x < rect.right(); x += step) {
            const int room = roomAround(item, {x, y});
            if (room > mostRoom) {
                mostRoom = room;
                best = {x, y};
            }
        }
    }
    return best;
}

// The regions of a campaign map lie above the one item that can't be selected, its background.
Entries entriesOfPicture(const QGraphicsView *view)
{
    Entries entries;
    const QList<QGraphicsItem *> items = view->scene()->items(Qt::AscendingOrder);
    for (const QGraphicsItem *item : items) {
        if (!item->flags().testFlag(QGraphicsItem::ItemIsSelectable))
            continue;
        Entry entry;
        entry.row = int(entries.size());
        entry.text = QString::number(entry.row);
        entry.point = view->viewport()->mapToGlobal(view->mapFromScene(placeOnTop(item)));
        entries.push_back(entry);
    }
    return entries;
}

} // namespace

Entries entriesOf(const QWidget *widget)
{
    if (const auto *menu = qobject_cast<const QMenu *>(widget))
        return entriesOfActions(menu);
    if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
        return entriesOfActions(bar);
    if (const auto *tabs = qobject_cast<const QTabWidget *>(widget))
        return entriesOfTabs(tabs);
    if (const auto *buttons = qobject_cast<const QDialogButtonBox *>(widget))
        return entriesOfButtons(buttons);
    if (const auto *view = qobject_cast<const QAbstractItemView *>(widget))
        return entriesOfView(view);
    if (const auto *box = qobject_cast<const QComboBox *>(widget))
        return entriesOfBox(box);
    if (const auto *picture = qobject_cast<const QGraphicsView *>(widget))
        return entriesOfPicture(picture);
    return {};
}
