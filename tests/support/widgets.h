// Widgets under test: found by their names, brought on show, read and clicked on.
#pragma once

#include "tests/support/message_boxes.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>

// A name that is missing ends the test program: nothing behind it would mean anything.
template<typename Widget>
Widget *childOf(const QWidget *parent, const char *name)
{
    auto *widget = parent->findChild<Widget *>(name);
    if (!widget)
        qFatal("%s has no %s.", parent->metaObject()->className(), name);
    return widget;
}

// Shows a widget and waits until clicks reach it.
inline void bringOnShow(QWidget &widget)
{
    widget.show();
    if (!QTest::qWaitForWindowExposed(&widget))
        QTest::qFail("The window never came.", __FILE__, __LINE__);
}

inline QStringList textsOf(const QComboBox *box)
{
    QStringList texts;
    for (int row = 0; row < box->count(); ++row)
        texts << box->itemText(row);
    return texts;
}

// Clicks on a row of the list that a combo box has opened.
inline void clickOnRow(QComboBox *box, int row, Qt::MouseButton button = Qt::LeftButton)
{
    QAbstractItemView *list = box->view();
    const QModelIndex index = box->model()->index(row, box->modelColumn());
    list->scrollTo(index);
    clickOn(list->viewport(), list->visualRect(index).center(), button);
}

// A right click neither opens a box nor chooses from its list; a left click does both.
inline void verifyRightClicksDoNothing(QComboBox *box)
{
    QVERIFY(box->count() > 1);
    box->setCurrentIndex(0);
    clickOn(box, Qt::RightButton);
    QCoreApplication::processEvents();
    QVERIFY(!box->view()->isVisible());
    clickOn(box);
    QTRY_VERIFY(box->view()->isVisible());
    QCoreApplication::processEvents();
    clickOnRow(box, 1, Qt::RightButton);
    QCoreApplication::processEvents();
    QVERIFY(box->view()->isVisible());
    QCOMPARE(box->currentIndex(), 0);
    clickOnRow(box, 1);
    QTRY_COMPARE(box->currentIndex(), 1);
}

// Rows of data for a test that calls verifyButtonCloses.
inline void addButtonsThatClose()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<int>("result");
    QTest::newRow("OK") << int(QDialogButtonBox::Ok) << int(QDialog::Accepted);
    QTest::newRow("Cancel") << int(QDialogButtonBox::Cancel) << int(QDialog::Rejected);
}

inline void verifyButtonCloses(QDialog &dialog)
{
    QFETCH(int, button);
    dialog.setResult(-1);
    auto *box = childOf<QDialogButtonBox>(&dialog, "buttonBox");
    clickOn(box->button(QDialogButtonBox::StandardButton(button)));
    QVERIFY(!dialog.isVisible());
    QTEST(dialog.result(), "result");
}
