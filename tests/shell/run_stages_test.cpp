// What the start-up and the end leave behind, seen from within the process: the globals, the
// pictures kept, when the settings are written, and an end that asks nothing.
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"
#include "gamedata/runtime/dat_file.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/mss_info.h"
#include "shell/style.h"
#include "tests/shell/probe.h"
#include "tests/support/file_contents.h"
#include "tests/support/tiny_game.h"

#include <QAction>
#include <QEvent>
#include <QMainWindow>
#include <QSplashScreen>
#include <QTest>

#include <array>

namespace {

// What was seen while the event loop ran.
struct Sight
{
    bool hasTableFile = false;
    QImage pattern;
    bool asked = false;
    QByteArray settings;
    bool soundIsReady = false;
    int polished = 0;
    int polishedByOtherStyles = 0;
    QString styleSheet;
    bool isStandardLook = false;
    bool splashStoodBeforeTheWindow = false;
    bool windowWasMadeBeforeSound = false;
    bool splashStayedUntilTheWindow = false;
    bool splashLeftBehindTheWindow = false;
};

Sight sight;
QString settingsFile;

// Which of splash screen, window and sound is there when another one comes or goes. The window is
// polished while it is made.
void noteOrder(const QObject *watched, QEvent::Type type)
{
    if (watched->inherits("QMainWindow") && type == QEvent::Polish) {
        sight.splashStoodBeforeTheWindow = probe::visibleWidget<QSplashScreen>() != nullptr;
        sight.windowWasMadeBeforeSound = !mss;
    } else if (watched->inherits("QMainWindow") && type == QEvent::Show) {
        sight.splashStayedUntilTheWindow = probe::visibleWidget<QSplashScreen>() != nullptr;
    } else if (watched->inherits("QSplashScreen") && type == QEvent::Hide) {
        sight.splashLeftBehindTheWindow = probe::visibleWidget<QMainWindow>() != nullptr;
    }
}

// Every widget, the splash screen first, is polished by the style it is shown in.
class StartWatch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        noteOrder(watched, event->type());
        if (event->type() == QEvent::Polish && watched->isWidgetType()) {
            ++sight.polished;
            if (!qobject_cast<FusionStyleTweaks *>(static_cast<QWidget *>(watched)->style()))
                ++sight.polishedByOtherStyles;
        }
        return QObject::eventFilter(watched, event);
    }
};

// Changes a setting and the campaign, then leaves by the menu.
void lookAndLeave(QMainWindow *window)
{
    sight.hasTableFile = RADF != nullptr;
    sight.pattern = preloadArchive->images16.value("cmpdash.pcx");
    ini->SetStringVal("Campaign Editor", "Path", "/somewhere");
    EditorData::info.modified = true;
    sight.settings = contents(settingsFile);
    sight.styleSheet = qApp->styleSheet();
    sight.isStandardLook = Style::current() == Style::standard();
    sight.soundIsReady = mss && mss->initialized && mss->driver != 0 && mss->stream == 0;
    window->findChild<QAction *>("actionExit")->trigger();
    sight.asked = QApplication::activeModalWidget() != nullptr;
}

void look()
{
    static bool seen = false;
    QMainWindow *window = probe::visibleWidget<QMainWindow>();
    if (!window || seen)
        return;
    seen = true;
    // Once the event loop runs; nothing of the start-up is left to be done then.
    QTimer::singleShot(0, window, [window] { lookAndLeave(window); });
}

void startLooking()
{
    probe::lookWith(look);
    QCoreApplication::instance()->installEventFilter(new StartWatch(QCoreApplication::instance()));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(startLooking)

class RunStagesTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void loopEndsWithZero() { QCOMPARE(result, 0); }
    void splashWindowAndSoundComeInTheirOrder();
    void dashPatternIsKeptBeforeTheLoop();
    void allWidgetsAreShownInTheProgramsStyle();
    void standardLookIsUsedWithoutASheet();
    void exitAsksNothingAboutChanges();
    void settingsAreWrittenBehindTheLoopAlone();
    void tableFileIsFreedAtTheEnd();
    void soundIsReadyInTheLoopAndFreedAtTheEnd();
    void settingsAndPicturesAreNotFreed();
    void applicationIsGone();

private:
    tiny::Game game;
    int result = -1;
};

void RunStagesTest::initTestCase()
{
    setGameRoot(game.path());
    qputenv("XDG_DATA_HOME", QFile::encodeName(game.path()));
    settingsFile = game.filePath("Ravn_settings.ini");
    QByteArray name("cmped");
    std::array<char *, 2> arguments{name.data(), nullptr};
    result = run(1, arguments.data());
}

void RunStagesTest::splashWindowAndSoundComeInTheirOrder()
{
    QVERIFY(sight.splashStoodBeforeTheWindow);
    QVERIFY(sight.windowWasMadeBeforeSound);
    QVERIFY(sight.splashStayedUntilTheWindow);
    QVERIFY(sight.splashLeftBehindTheWindow);
}

void RunStagesTest::dashPatternIsKeptBeforeTheLoop()
{
    QCOMPARE(sight.pattern.format(), QImage::Format_RGB16);
    QCOMPARE(sight.pattern.size(), QSize(456, 600));
}

void RunStagesTest::allWidgetsAreShownInTheProgramsStyle()
{
    QVERIFY(sight.polished > 1);
    QCOMPARE(sight.polishedByOtherStyles, 0);
}

void RunStagesTest::standardLookIsUsedWithoutASheet()
{
    QVERIFY(sight.isStandardLook);
    QCOMPARE(sight.styleSheet, QString());
}

void RunStagesTest::exitAsksNothingAboutChanges()
{
    QVERIFY(!sight.asked);
    QVERIFY(EditorData::info.modified);
}

void RunStagesTest::settingsAreWrittenBehindTheLoopAlone()
{
    QCOMPARE(sight.settings, QByteArray("[Global Settings]\r\nLanguage=0\r\n"));
    QCOMPARE(contents(settingsFile), QByteArray("[Global Settings]\r\n\r\nLanguage=0\r\n\r\n\r\n"
                                                "[Campaign Editor]\r\n\r\nPath=/somewhere\r\n"
                                                "\r\n\r\n"));
}

void RunStagesTest::tableFileIsFreedAtTheEnd()
{
    QVERIFY(sight.hasTableFile);
    QVERIFY(!RADF);
}

void RunStagesTest::soundIsReadyInTheLoopAndFreedAtTheEnd()
{
    QVERIFY(sight.soundIsReady);
    QVERIFY(!mss);
}

void RunStagesTest::settingsAndPicturesAreNotFreed()
{
    QCOMPARE(QByteArray(ini->GetStringVal("Campaign Editor", "Path", "")),
             QByteArray("/somewhere"));
    QVERIFY(preloadArchive->images16.contains("cmpdash.pcx"));
}

void RunStagesTest::applicationIsGone()
{
    QVERIFY(!QCoreApplication::instance());
}

// The editor makes the application object.
int main(int argc, char **argv)
{
    RunStagesTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "run_stages_test.moc"
