// The program from its first to its last moment: stages in a fixed order, each of which depends
// on what stands above it.
#include "gamedata/editor_data.h"
#include "gamedata/game_files.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"
#include "gamedata/runtime/dat_file.h"
#include "gamedata/used_folder.h"
#include "shell/dialog_look.h"
#include "shell/editor_resources.h"
#include "shell/exit_signals.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/main_window.h"
#include "shell/message_reporter.h"
#include "shell/mss_info.h"
#include "shell/plain_message_boxes.h"
#include "shell/startup.h"

#include <QApplication>
#include <QDir>
#include <QSplashScreen>
#include <QTimer>

#include <array>
#include <csignal>
#include <future>
#include <memory>
#include <type_traits>

namespace {

struct Session
{
    int argc;
    char **argv;
    std::unique_ptr<QApplication> application;
    std::unique_ptr<QFont> font;
    std::unique_ptr<QPixmap> splashPicture;
    std::unique_ptr<QSplashScreen> splash;
    std::unique_ptr<MainWindow> window;
    std::future<void *> soundLibrary;
};

// Let a write past the limit on file sizes fail, which a message tells, instead of killing the
// editor with the document in it.
void surviveFileSizeLimit()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

void setAttributes(Session &)
{
    surviveFileSizeLimit();
    initEditorResources();
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling, true);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps, true);
}

void createApplication(Session &session)
{
    session.application = std::make_unique<QApplication>(session.argc, session.argv);
    QApplication::setWindowIcon(applicationIcon());
    session.application->installEventFilter(new PlainMessageBoxes(session.application.get()));
    reportWithMessageBoxes();
}

// Loading it takes a third as long as all the rest of the start, so it goes on beside that.
void loadSoundLibraryAhead(Session &session)
{
    session.soundLibrary = std::async(std::launch::async, loadSoundLibrary);
}

void setFont(Session &session)
{
    session.font = std::make_unique<QFont>(editorFont());
    QApplication::setFont(*session.font);
}

void leaveSystemFolder(Session &)
{
    if (getSystemPath() == QDir::currentPath())
        QDir::setCurrent(QCoreApplication::applicationDirPath());
}

void setStyle(Session &)
{
    QApplication::setStyle(new FusionStyleTweaks); // which the application takes over
}

void stopComboAnimation(Session &)
{
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
}

void createImageCache(Session &)
{
    preloadArchive = new PreloadArchive;
}

void loadSettings(Session &)
{
    ini = loadRavnIni();
    recallUsedFolder();
}

void loadTableFile(Session &)
{
    loadRavnDat(ini);
}

void loadLanguage(Session &session)
{
    loadTranslations(session.application.get());
}

void loadSplashPicture(Session &session)
{
    session.splashPicture = std::make_unique<QPixmap>(splashPicture());
}

void showSplash(Session &session)
{
    session.splash = std::make_unique<QSplashScreen>(*session.splashPicture);
    session.splash->show();
}

void createWindow(Session &session)
{
    session.window = std::make_unique<MainWindow>(nullptr);
}

void startSound(Session &session)
{
    session.soundLibrary.wait();
    mss = new MssInfo;
    mss->LoadDll();
}

void openNamedFile(Session &session)
{
    session.window->processInfo(session.application.get());
}

void showWindow(Session &session)
{
    QCoreApplication::processEvents();
    session.window->show();
    session.splash->hide();
}

void preloadPattern(Session &)
{
    preloadArchive->preloadPcxImage16(QStringLiteral("cmpdash.pcx"));
}

// The first thing that the loop does is to ask about changes that another one has left. Who names
// a file has other plans.
void runEventLoop(Session &session)
{
    const ExitSignals signalsOfTheSystem;
    if (QCoreApplication::arguments().size() == 1)
        QTimer::singleShot(0, session.window.get(), &MainWindow::offerRecoveryCopy);
    QApplication::exec();
}

void writeSettings(Session &)
{
    ini->Write();
    keepUsedFolder();
}

void freeTableFile(Session &)
{
    delete RADF;
    RADF = nullptr;
}

// The library and its thread play on until the process ends, whatever becomes of the object.
void freeSound(Session &)
{
    static_assert(std::is_trivially_destructible_v<MssInfo>);
    delete mss;
    mss = nullptr;
}

void destroyWindows(Session &session)
{
    session.window.reset();
    session.splash.reset();
    session.splashPicture.reset();
    session.font.reset();
    session.application.reset();
}

constexpr std::array<void (*)(Session &), 23> stages{{
    setAttributes,
    createApplication,
    loadSoundLibraryAhead,
    setFont,
    leaveSystemFolder,
    setStyle,
    stopComboAnimation,
    createImageCache,
    loadSettings,
    loadTableFile,
    loadLanguage,
    loadSplashPicture,
    showSplash,
    createWindow,
    startSound,
    openNamedFile,
    showWindow,
    preloadPattern,
    runEventLoop,
    writeSettings,
    freeTableFile,
    freeSound,
    destroyWindows,
}};

} // namespace

// Runs the editor with the launcher's command line; argument 1, if any, is a campaign to open.
// Answers 0 whenever it answers. A missing game file ends the process instead.
extern "C" Q_DECL_EXPORT int run(int argc, char **argv)
{
    Session session{argc, argv, {}, {}, {}, {}, {}, {}};
    for (const auto stage : stages)
        stage(session);
    return 0;
}
