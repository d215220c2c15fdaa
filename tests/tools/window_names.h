// The texts by which somebody finds their way in a window.
#pragma once

#include "shell/elided_label.h"
#include "tools/manual/manual_scenes.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QGraphicsView>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QToolButton>

// Without the mark of its key.
inline QString shownName(QString text)
{
    return text.remove(QLatin1Char('&'));
}

// What the window tells, rather than the name of something: it changes, or is a sentence.
inline bool isMessage(const QLabel *label)
{
    bool isNumber = false;
    label->text().toInt(&isNumber);
    return isNumber || label->wordWrap() || qobject_cast<const ElidedLabel *>(label);
}

inline bool showsIconOnly(const QAbstractButton *button)
{
    const auto *tool = qobject_cast<const QToolButton *>(button);
    return tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly;
}

// The windows' texts by which somebody finds their way, as they are on show.
class NamesOnShow
{
public:
    explicit NamesOnShow(QWidget *window) : m_window(window)
    {
        if (qobject_cast<const QDialog *>(window))
            add(window->windowTitle());
        addEach<QAbstractButton>([this](auto *button) {
            if (!showsIconOnly(button))
                add(button->text());
        });
        addEach<QGroupBox>([this](auto *group) { add(group->title()); });
        addEach<QLabel>([this](auto *label) {
            if (!isMessage(label))
                add(label->text());
        });
        addEach<QTabWidget>([this](auto *tabs) {
            for (int i = 0; i < tabs->count(); ++i)
                add(tabs->tabText(i));
        });
        addEach<QTableWidget>([this](auto *table) {
            for (int i = 0; i < table->columnCount(); ++i)
                add(table->horizontalHeaderItem(i)->text());
        });
        addEach<QMenuBar>([this](auto *bar) { addMenu(bar->actions()); });
    }

    QSet<QString> names;

    // The names of files used before, which the menu holds too, carry their paths.
    void addMenu(const QList<QAction *> &actions)
    {
        for (const QAction *action : actions) {
            if (action->isVisible() && !action->data().isValid())
                add(action->text());
            if (action->menu())
                addMenu(action->menu()->actions());
        }
    }

private:
    template<typename Widget, typename Add>
    void addEach(const Add &addTexts)
    {
        const auto widgets = m_window->findChildren<Widget *>();
        for (Widget *widget : widgets) {
            if (widget->isVisibleTo(m_window))
                addTexts(widget);
        }
    }

    void add(const QString &text)
    {
        if (!text.isEmpty())
            names.insert(shownName(text));
    }

    QWidget *m_window;
};

// The names in the menu that a right click on the map opens.
inline void addMenuOfMap(QWidget *window, NamesOnShow &shown)
{
    auto *view = window->findChild<QGraphicsView *>(QStringLiteral("graphicsView"));
    if (!view)
        return;
    bool came = false;
    QTimer::singleShot(0, view, [&] {
        QWidget *menu = QApplication::activePopupWidget();
        QVERIFY(menu);
        came = true;
        shown.addMenu(menu->actions());
        menu->close();
    });
    emit view->customContextMenuRequested({});
    QVERIFY(came);
}

inline QSet<QString> namesIn(const ManualScene &scene)
{
    const ManualWindow opened = scene.open();
    opened.window->show();
    NamesOnShow shown(opened.window.get());
    addMenuOfMap(opened.window.get(), shown);
    return shown.names;
}
