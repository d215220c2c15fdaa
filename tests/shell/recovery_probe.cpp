// Runs the editor's library as the launcher does and does in it, one after another, the steps that
// RECOVERY_PROBE_STEPS names, with ";" between them:
//
//   edit NAME    names the campaign so in its properties
//   within ACTION
//                opens this dialog of the menu, writes into all its texts and takes the next step
//                with the dialog open
//   new ROW      makes a new campaign on this row of the list
//   recent       opens the first of the recent files
//   save, exit   by the menu
//   close        by the window's button
//   signal N     raises it
//   abort
//   stay         does nothing from now on
//
// File dialogs are cancelled. Boxes are answered by the buttons that RECOVERY_PROBE_ANSWERS names,
// "Yes;No;...", and by OK behind the last; "stay" leaves the box open. Prints a line for each, and
// for the window before each step:
//
//   box|TITLE|TEXT|is the main window visible
//   window|TITLE
#include "tests/shell/probe.h"

#include <QAbstractButton>
#include <QAction>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QSplashScreen>
#include <QTextEdit>

#include <csignal>
#include <cstdlib>
#include <functional>

namespace {

using probe::print;
using probe::visibleWidget;

QStringList steps;
QStringList answers;

void answerBox(QMessageBox *box)
{
    static QMessageBox *left = nullptr;
    if (box == left)
        return;
    print({"box", box->windowTitle(), box->text(), visibleWidget<QMainWindow>() ? "1" : "0"});
    const QString answer = answers.isEmpty() ? "OK" : answers.takeFirst();
    if (answer == "stay")
        left = box;
    for (const auto button :
         {QMessageBox::Ok, QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
        QAbstractButton *found = box->button(button);
        if (found && found->text().remove('&') == answer)
            return found->click();
    }
}

// Opens a dialog of the menu, does something in it and accepts it.
void useDialog(const QMainWindow *window, const char *action,
               const std::function<void(QWidget *)> &use)
{
    QTimer::singleShot(0, window, [use] {
        QWidget *dialog = QApplication::activeModalWidget();
        use(dialog);
        dialog->findChild<QDialogButtonBox *>("buttonBox")->button(QDialogButtonBox::Ok)->click();
    });
    window->findChild<QAction *>(action)->trigger();
}

void takeStep(QMainWindow *window, const QString &step);

void leaveDialogOpen(QMainWindow *window, const QString &action)
{
    QTimer::singleShot(0, window, [window] {
        const QWidget *dialog = QApplication::activeModalWidget();
        const auto texts = dialog->findChildren<QTextEdit *>();
        for (QTextEdit *text : texts)
            text->setPlainText("not accepted");
        print({"dialog", dialog->windowTitle()});
        takeStep(window, steps.takeFirst());
    });
    window->findChild<QAction *>(action)->trigger();
}

void openRecentFile(const QMainWindow *window)
{
    const auto actions = window->findChildren<QAction *>();
    for (QAction *action : actions) {
        if (!action->data().toString().isEmpty())
            return action->trigger();
    }
}

void takeStep(QMainWindow *window, const QString &step)
{
    const QString word = step.section(' ', 0, 0);
    const QString rest = step.section(' ', 1);
    if (word == "edit")
        useDialog(window, "campaignProperties", [rest](QWidget *dialog) {
            dialog->findChild<QTextEdit *>("nameEdit")->setPlainText(rest);
        });
    else if (word == "within")
        leaveDialogOpen(window, rest);
    else if (word == "new")
        useDialog(window, "actionNew", [rest](QWidget *dialog) {
            dialog->findChild<QListWidget *>("listWidget")->setCurrentRow(rest.toInt());
        });
    else if (word == "recent")
        openRecentFile(window);
    else if (word == "save")
        window->findChild<QAction *>("actionSave")->trigger();
    else if (word == "exit")
        window->findChild<QAction *>("actionExit")->trigger();
    else if (word == "close")
        window->close();
    else if (word == "signal")
        std::raise(rest.toInt());
    else if (word == "abort")
        std::abort();
}

void look()
{
    static bool busy = false;
    if (auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget()))
        return dialog->reject();
    if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        if (box->isVisible())
            answerBox(box);
        return;
    }
    QMainWindow *window = visibleWidget<QMainWindow>();
    if (busy || !window || visibleWidget<QSplashScreen>() || steps.isEmpty())
        return;
    busy = true;
    print({"window", window->windowTitle()});
    QTimer::singleShot(0, window, [window] {
        takeStep(window, steps.takeFirst());
        busy = false;
    });
}

void startLooking()
{
    steps = qEnvironmentVariable("RECOVERY_PROBE_STEPS").split(';', Qt::SkipEmptyParts);
    answers = qEnvironmentVariable("RECOVERY_PROBE_ANSWERS").split(';', Qt::SkipEmptyParts);
    probe::lookWith(look);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startLooking)

int main(int argc, char **argv)
{
    return probe::runEditor(argc, argv);
}
