// Runs the editor's library as the launcher does, watches it from within its own event loops and
// prints what it sees, a line each:
//
//   box|TITLE|TEXT|ICON|BUTTONS|is the main window visible|SPLASH
//       line feeds as "\n"; then presses OK
//   window|TITLE|MENU|SPLASH|FONT SIZE|COMBO ANIMATION|HIGH DPI SCALING|HIGH DPI PIXMAPS|
//       do message boxes show markup as it is
//
// When the window is there, RUN_PROBE_END says how the program is ended: "exit" by its menu,
// "close" by the window's button, "code NUMBER" by ending the event loop with it, "new ROW" by
// choosing this row of the dialog for a new campaign, or a signal's number; where the editor
// survives it, the menu ends it.
#include "tests/shell/probe.h"

#include <QAbstractButton>
#include <QAction>
#include <QListWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplashScreen>

#include <csignal>

namespace {

using probe::print;

// Which of the built-in pictures the splash screen shows.
QString splashName()
{
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget *widget : widgets) {
        const auto *splash = qobject_cast<QSplashScreen *>(widget);
        if (!splash)
            continue;
        const QImage shown = splash->pixmap().toImage();
        for (const char *language : {"en", "ru"}) {
            const QPixmap picture(QString(":/icons/ravn_cmped_%1.png").arg(language));
            if (!shown.isNull() && shown == picture.toImage())
                return language + QString(splash->isVisible() ? " visible" : " hidden");
        }
    }
    return "none";
}

void answerBox()
{
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    if (!box || !box->isVisible())
        return;
    print({"box", box->windowTitle(), box->text(), QString::number(box->icon()),
           QString::number(int(box->standardButtons())),
           probe::visibleWidget<QMainWindow>() ? "1" : "0", splashName()});
    box->button(QMessageBox::Ok)->click();
}

void chooseNewCampaign(QMainWindow *window, int row)
{
    QTimer::singleShot(0, window, [row] {
        QApplication::activeModalWidget()->findChild<QListWidget *>()->setCurrentRow(row);
    });
    window->findChild<QAction *>("actionNew")->trigger();
}

void endProgram(QMainWindow *window)
{
    const QByteArray way = qgetenv("RUN_PROBE_END");
    if (way == "exit")
        window->findChild<QAction *>("actionExit")->trigger();
    else if (way == "close")
        window->close();
    else if (way.startsWith("code "))
        QCoreApplication::exit(way.mid(5).toInt());
    else if (way.startsWith("new "))
        chooseNewCampaign(window, way.mid(4).toInt());
    else
        std::raise(way.toInt());
    if (way.toInt() == SIGXFSZ)
        QCoreApplication::quit();
}

bool showsMarkupAsItIs()
{
    QMessageBox box;
    box.ensurePolished();
    return box.textFormat() == Qt::PlainText;
}

void look()
{
    static bool seen = false;
    answerBox();
    QMainWindow *window = probe::visibleWidget<QMainWindow>();
    // The splash screen goes last: before that the start-up is still under way.
    if (!window || seen || splashName().endsWith("visible"))
        return;
    seen = true;
    print({"window", window->windowTitle(), window->menuBar()->actions().first()->text(),
           splashName(), QString::number(QApplication::font().pointSize()),
           QString::number(QApplication::isEffectEnabled(Qt::UI_AnimateCombo)),
           QString::number(QCoreApplication::testAttribute(Qt::AA_EnableHighDpiScaling)),
           QString::number(QCoreApplication::testAttribute(Qt::AA_UseHighDpiPixmaps)),
           QString::number(showsMarkupAsItIs())});
    QTimer::singleShot(0, window, [window] { endProgram(window); });
}

void startLooking()
{
    probe::lookWith(look);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startLooking)

int main(int argc, char **argv)
{
    return probe::runEditor(argc, argv);
}
