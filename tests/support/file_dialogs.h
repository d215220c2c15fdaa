// Answers file dialogs: checks what they show, then chooses a path or cancels.
#pragma once

#include "tests/support/message_boxes.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QStringList>
#include <QTest>

#include <functional>

// What a file dialog has to show when it opens.
struct ExpectedFileDialog
{
    QString caption;
    QString folder;
    QString name;
    QStringList filters;
};

// An empty choice cancels. `chosen` is called when the choice is made, before anybody uses it.
inline NextDialog::Answer chooseFile(const ExpectedFileDialog &expected, const QString &choice,
                                     const std::function<void()> &chosen = {})
{
    return [=](QWidget *widget) {
        auto *dialog = qobject_cast<QFileDialog *>(widget);
        if (!dialog) {
            widget->close();
            QFAIL("Another dialog came in the place of a file dialog.");
        }
        const QString caption = dialog->windowTitle();
        const QString folder = dialog->directory().path();
        const QStringList filters = dialog->nameFilters();
        auto *edit = dialog->findChild<QLineEdit *>("fileNameEdit");
        const QString name = edit->text();
        if (chosen)
            QObject::connect(dialog, &QFileDialog::accepted, chosen);
        if (choice.isEmpty()) {
            dialog->reject();
        } else {
            edit->setText(choice);
            QTest::keyClick(dialog->windowHandle(), Qt::Key_Return);
        }
        QCOMPARE(caption, expected.caption);
        QCOMPARE(folder, expected.folder);
        QCOMPARE(name, expected.name);
        QCOMPARE(filters, expected.filters);
    };
}
