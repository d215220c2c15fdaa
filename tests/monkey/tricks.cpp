#include "tests/monkey/tricks.h"

#include "tests/monkey/hands.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QGraphicsItem>
#include <QGraphicsView>
#include <QHeaderView>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QRadioButton>
#include <QTabBar>
#include <QTextEdit>

#include <array>

namespace {

constexpr int indicator = 9; // into a check box, or into a row that has one

QPoint somewhereIn(const QWidget *widget, Dice &dice)
{
    return {dice.below(widget->width()), dice.below(widget->height())};
}

const QStringList &texts()
{
    static const QStringList list{
        "a",       "Z9",   "12",    "65536",    "-3",     "  ",    "жёлудь", "ПРИВЕТ",
        "αβγ",     "שלום", "مرحبا", "漢字かな", "한국어", "ñß",    "🐒",      "👩‍👩‍👧",
        "e\u0301", "\t",   "%1 %2", "<b>x",     "&&",     "Name:", "\u00a0", "\u2028"};
    return list;
}

// More than any text control takes.
QString longText(Dice &dice)
{
    QString text;
    for (int length = dice.between(1, 900); text.size() < length;)
        text += dice.pick(texts());
    return text;
}

void edit(QWidget *control, Dice &dice)
{
    const QPointer<QWidget> alive = control;
    hands::click(control, somewhereIn(control, dice));
    if (!alive)
        return;
    if (dice.chance(0.2))
        hands::key(control, Qt::Key_A, Qt::ControlModifier);
    switch (dice.below(8)) {
    case 0:
        hands::key(control, Qt::Key_Delete);
        break;
    case 1:
        QApplication::clipboard()->setText(longText(dice));
        hands::key(control, Qt::Key_V, Qt::ControlModifier);
        break;
    case 2:
        hands::key(control, Qt::Key_Z, Qt::ControlModifier);
        break;
    case 3:
        hands::click(control, somewhereIn(control, dice), Qt::RightButton);
        break;
    default:
        hands::type(control, dice.pick(texts()));
    }
}

void useNumber(QWidget *control, Dice &dice)
{
    switch (dice.below(4)) {
    case 0:
        hands::wheel(control, control->rect().center(), dice.between(-5, 5));
        break;
    case 1:
        hands::click(control, somewhereIn(control, dice)); // its arrows, maybe
        break;
    default:
        hands::click(control, QPoint(control->width() / 3, control->height() / 2));
        hands::key(control, Qt::Key_A, Qt::ControlModifier);
        hands::type(control,
                    QString::number(dice.between(-2, 1) + dice.below(1 << dice.below(18))));
    }
}

void useCombo(QComboBox *box, Dice &dice)
{
    static constexpr std::array<Qt::Key, 7> keys{Qt::Key_Down, Qt::Key_Up,   Qt::Key_PageDown,
                                                 Qt::Key_End,  Qt::Key_Home, Qt::Key_S,
                                                 Qt::Key_M};
    switch (dice.below(6)) {
    case 0:
        hands::wheel(box, box->rect().center(), dice.between(-3, 3));
        break;
    case 1:
        hands::click(box, box->rect().center(), Qt::RightButton);
        break;
    case 2:
        if (box->hasFocus()) {
            hands::key(box, dice.pick(keys));
            break;
        }
        [[fallthrough]];
    default:
        hands::click(box, box->rect().center());
    }
}

void useButton(QAbstractButton *button, Dice &dice)
{
    const bool marked = qobject_cast<QCheckBox *>(button) || qobject_cast<QRadioButton *>(button);
    const QPoint place = marked ? QPoint(indicator, button->height() / 2) : button->rect().center();
    switch (dice.below(25)) {
    case 0:
        hands::click(button, place, Qt::RightButton);
        break;
    case 1:
        hands::doubleClick(button, place);
        break;
    case 2:
        hands::drag(button, place, QPoint(-3, -3));
        break;
    default:
        hands::click(button, place);
    }
}

void useTabs(QTabBar *tabs, Dice &dice)
{
    if (dice.chance(0.15))
        hands::key(tabs, Qt::Key_Tab, Qt::ControlModifier);
    else
        hands::click(tabs, tabs->tabRect(dice.below(tabs->count())).center());
}

void useMenuBar(QMenuBar *bar, Dice &dice)
{
    hands::click(bar, bar->actionGeometry(dice.pick(bar->actions())).center());
}

void useMap(QGraphicsView *view, Dice &dice)
{
    QPoint place = somewhereIn(view, dice);
    const auto items = view->scene()->items();
    if (!items.isEmpty() && dice.chance(0.7)) {
        const QGraphicsItem *item = dice.pick(items);
        place = view->mapFromScene(item->sceneBoundingRect().center());
    }
    if (!view->rect().contains(place))
        return;
    switch (dice.below(7)) {
    case 0:
    case 1:
        hands::click(view, place);
        break;
    case 2:
        hands::click(view, place, Qt::RightButton);
        break;
    case 3:
        hands::doubleClick(view, place, Qt::RightButton);
        break;
    case 4:
        hands::wheel(view, place, dice.between(-3, 3));
        break;
    default:
        hands::doubleClick(view, place);
    }
}

} // namespace

namespace tricks {

double weightOf(const QWidget *control)
{
    const QString name = control->objectName();
    if (name == QLatin1String("refreshButton"))
        return 5; // without a map most of the dialog is closed
    if (name.startsWith(QLatin1String("add")))
        return 4;
    if (name.startsWith(QLatin1String("remove")) || name.startsWith(QLatin1String("delete")))
        return 0.5;
    if (control->inherits("QScrollBar") || control->inherits("QHeaderView"))
        return 0.3;
    return 1;
}

void use(QWidget *control, Dice &dice)
{
    if (auto *box = qobject_cast<QComboBox *>(control))
        useCombo(box, dice);
    else if (qobject_cast<QAbstractSpinBox *>(control))
        useNumber(control, dice);
    else if (auto *button = qobject_cast<QAbstractButton *>(control))
        useButton(button, dice);
    else if (auto *tabs = qobject_cast<QTabBar *>(control))
        useTabs(tabs, dice);
    else if (auto *bar = qobject_cast<QMenuBar *>(control))
        useMenuBar(bar, dice);
    else if (auto *map = qobject_cast<QGraphicsView *>(control))
        useMap(map, dice);
    else if (qobject_cast<QTextEdit *>(control) || qobject_cast<QLineEdit *>(control))
        edit(control, dice);
    else if (auto *view = qobject_cast<QAbstractItemView *>(control);
             view && !qobject_cast<QHeaderView *>(control))
        useRows(view, dice);
    else
        hands::click(control, somewhereIn(control, dice));
}

void useRows(QAbstractItemView *view, Dice &dice)
{
    const QAbstractItemModel *model = view->model();
    const int rows = model->rowCount(view->rootIndex());
    if (rows == 0) {
        hands::click(view->viewport(), somewhereIn(view->viewport(), dice));
        return;
    }
    const QModelIndex index =
        model->index(dice.below(rows), dice.below(model->columnCount()), view->rootIndex());
    view->scrollTo(index);
    const QRect row = view->visualRect(index) & view->viewport()->rect();
    if (row.isEmpty())
        return;
    const bool checkable = index.flags() & Qt::ItemIsUserCheckable;
    const QPoint place =
        checkable ? QPoint(row.left() + indicator, row.center().y()) : row.center();
    switch (dice.below(10)) {
    case 0:
        hands::click(view->viewport(), place, Qt::RightButton);
        break;
    case 1:
        hands::doubleClick(view->viewport(), place);
        break;
    case 2:
        hands::click(view->viewport(), place, Qt::LeftButton,
                     dice.chance(0.5) ? Qt::ControlModifier : Qt::ShiftModifier);
        break;
    case 3:
        hands::wheel(view->viewport(), place, dice.between(-4, 4));
        break;
    default:
        hands::click(view->viewport(), place);
    }
}

Keys someKeys(Dice &dice, bool shortcuts)
{
    static constexpr std::array<Qt::Key, 14> keys{
        Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Tab,  Qt::Key_Left,    Qt::Key_Right,
        Qt::Key_Up,    Qt::Key_Down,    Qt::Key_Home, Qt::Key_End,     Qt::Key_PageUp,
        Qt::Key_Space, Qt::Key_Delete,  Qt::Key_F2,   Qt::Key_PageDown};
    static constexpr std::array<int, 10> commands{Qt::Key_Return,
                                                  Qt::Key_Enter,
                                                  int(Qt::CTRL) + Qt::Key_Return,
                                                  int(Qt::CTRL) + Qt::Key_N,
                                                  int(Qt::CTRL) + Qt::Key_O,
                                                  int(Qt::CTRL) + Qt::Key_S,
                                                  int(Qt::CTRL) + Qt::Key_R,
                                                  int(Qt::CTRL) + Qt::Key_E,
                                                  int(Qt::ALT) + Qt::Key_F,
                                                  Qt::Key_Menu};
    Keys chosen;
    if (shortcuts && dice.chance(0.5)) {
        const int command = dice.pick(commands);
        chosen.name = QKeySequence(command).toString();
        chosen.key = Qt::Key(command & ~int(Qt::KeyboardModifierMask));
        chosen.modifiers = Qt::KeyboardModifiers(command & int(Qt::KeyboardModifierMask));
    } else if (dice.chance(0.3)) {
        chosen.text = dice.pick(texts());
        chosen.name = chosen.text;
    } else {
        chosen.key = dice.pick(keys);
        chosen.name = QKeySequence(chosen.key).toString();
    }
    return chosen;
}

} // namespace tricks
