// A page of start options on show by itself, and what its tests do there: press its buttons, click
// on its rows, answer its dialogs, read its table.
#pragma once

#include "tests/support/widgets.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLayout>
#include <QPushButton>
#include <QTableWidget>

// Keeps what is written by qDebug while it lives.
class TraceRecorder
{
public:
    TraceRecorder() : m_before(qInstallMessageHandler(record)) { messages().clear(); }
    ~TraceRecorder() { qInstallMessageHandler(m_before); }
    TraceRecorder(const TraceRecorder &) = delete;
    TraceRecorder &operator=(const TraceRecorder &) = delete;

    static QStringList &messages()
    {
        static QStringList recorded;
        return recorded;
    }

private:
    static void record(QtMsgType type, const QMessageLogContext &, const QString &message)
    {
        if (type == QtDebugMsg)
            messages() << message;
    }

    const QtMessageHandler m_before;
};

// Chooses texts in the combo boxes of these names, one after another, and presses a button.
struct Choice
{
    const char *box;
    QString text;
};

inline NextDialog::Answer choose(const QVector<Choice> &choices,
                                 QDialogButtonBox::StandardButton button = QDialogButtonBox::Ok)
{
    return [choices, button](QWidget *dialog) {
        for (const Choice &choice : choices) {
            auto *box = childOf<QComboBox>(dialog, choice.box);
            const int index = box->findText(choice.text);
            if (index < 0)
                QTest::qFail(qPrintable("No such choice: " + choice.text), __FILE__, __LINE__);
            box->setCurrentIndex(index);
        }
        clickOn(childOf<QDialogButtonBox>(dialog, "buttonBox")->button(button));
    };
}

// The same after a look at the dialog, which closes whatever that finds.
inline NextDialog::Answer lookAndChoose(const NextDialog::Answer &look,
                                        const QVector<Choice> &choices,
                                        QDialogButtonBox::StandardButton button)
{
    return [=](QWidget *dialog) {
        look(dialog);
        choose(choices, button)(dialog);
    };
}

template<typename Page>
class ShownPage
{
public:
    ShownPage() : page(nullptr)
    {
        page.resize(440, 280);
        bringOnShow(page);
    }

    QTableWidget *table() { return childOf<QTableWidget>(&page, "tableWidget"); }
    QPushButton *button(const char *name) { return childOf<QPushButton>(&page, name); }
    QTableWidgetItem *item(int row, int column = 0) { return table()->item(row, column); }

    void click(const char *name) { clickOn(button(name)); }
    void clickRow(int row, int column = 0) { clickOn(table()->viewport(), centreOf(row, column)); }
    void doubleClickRow(int row, int column = 0)
    {
        QWidget *viewport = table()->viewport();
        QTest::mouseDClick(page.windowHandle(), Qt::LeftButton, {},
                           viewport->mapTo(&page, centreOf(row, column)));
    }

    // Opens the editing of a row by the item of any column.
    void openEditMenu(QTableWidgetItem *edited)
    {
        QVERIFY(
            QMetaObject::invokeMethod(&page, "openEditMenu", Q_ARG(QTableWidgetItem *, edited)));
    }

    // The buttons that can be pressed: "add edit remove".
    QString enabledButtons()
    {
        QStringList names;
        for (const char *name : {"add", "edit", "remove"}) {
            if (button(qPrintable(QString(name) + "Button"))->isEnabled())
                names << name;
        }
        return names.join(' ');
    }

    // Both texts of each row.
    QStringList rows()
    {
        QStringList texts;
        for (int row = 0; row < table()->rowCount(); ++row)
            texts << item(row, 0)->text() + " | " + item(row, 1)->text();
        return texts;
    }

    QList<int> rowHeights()
    {
        QList<int> heights;
        for (int row = 0; row < table()->rowCount(); ++row)
            heights << table()->rowHeight(row);
        return heights;
    }

    Page page;

private:
    QPoint centreOf(int row, int column)
    {
        return table()->visualItemRect(item(row, column)).center();
    }
};

// What the tables of both pages of heroes have in common.
template<typename Page>
void verifyTableLook(ShownPage<Page> &shown, const QStringList &headers, int part, int whole)
{
    QTableWidget *table = shown.table();
    QCOMPARE(table->columnCount(), 2);
    QWidget *buttons = childOf<QWidget>(&shown.page, "layoutWidget");
    QCOMPARE(buttons->layout()->objectName(), QString("horizontalLayout"));
    for (const char *name : {"addButton", "editButton", "removeButton"})
        QCOMPARE(shown.button(name)->parentWidget(), buttons);
    for (int column = 0; column < 2; ++column)
        QCOMPARE(table->horizontalHeaderItem(column)->text(), headers[column]);
    QVERIFY(!table->showGrid());
    QVERIFY(table->verticalHeader()->isHidden());
    QCOMPARE(table->verticalHeader()->defaultSectionSize(), 20);
    QCOMPARE(table->verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
    QVERIFY(table->horizontalHeader()->isVisible());
    QVERIFY(table->horizontalHeader()->defaultAlignment().testFlag(Qt::AlignLeft));
    QCOMPARE(table->horizontalHeader()->font().pointSize(), 8);
    QVERIFY(table->horizontalHeader()->stretchLastSection());
    QVERIFY(table->width() > 100);
    QCOMPARE(table->horizontalHeader()->defaultSectionSize(), table->width() * part / whole);
    QCOMPARE(table->columnWidth(0), table->width() * part / whole);
    QCOMPARE(table->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(table->selectionMode(), QAbstractItemView::SingleSelection);
}

// A button does its work when it goes down.
template<typename Page>
void pressDown(ShownPage<Page> &shown, const char *name)
{
    QPushButton *button = shown.button(name);
    QTest::mousePress(shown.page.windowHandle(), Qt::LeftButton, {},
                      button->mapTo(&shown.page, button->rect().center()));
}

template<typename Page>
void letGo(ShownPage<Page> &shown, const char *name)
{
    QPushButton *button = shown.button(name);
    QTest::mouseRelease(shown.page.windowHandle(), Qt::LeftButton, {},
                        button->mapTo(&shown.page, button->rect().center()));
}
