// One run of the monkey: monkey SAMPLE_GAME SECONDS SEED
//
// Starts the editor as the program itself does, over a private copy of the sample game, and lets
// the monkey play. A window that is closed or left by Exit is followed by a new one; where the
// editor ends the process, the run is over. journal.h tells what is written and how it ends.
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_files.h"
#include "gamedata/image_cache.h"
#include "gamedata/ini_file.h"
#include "gamedata/report.h"
#include "gamedata/runtime/dat_file.h"
#include "shell/dialog_look.h"
#include "shell/editor_resources.h"
#include "shell/fusion_style_tweaks.h"
#include "shell/main_window.h"
#include "shell/message_reporter.h"
#include "shell/mss_info.h"
#include "shell/startup.h"
#include "tests/monkey/monkey.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int wrongUsage = 1;

void startEditor(QApplication &application, const QString &game, bool inRussian)
{
    setGameRoot(game);
    initEditorResources();
    QApplication::setFont(editorFont());
    QApplication::setStyle(new FusionStyleTweaks); // which the application takes over
    QApplication::setEffectEnabled(Qt::UI_AnimateCombo, false);
    preloadArchive = new PreloadArchive; // these live to the end of the process
    ini = loadRavnIni();
    ini->SetStringVal("Global Settings", "Language", inRussian ? "1" : "0");
    loadRavnDat(ini);
    loadTranslations(&application);
    mss = new MssInfo;
    mss->LoadDll();
}

// The editor shows its message, which the monkey answers, and leaves.
void noteEndOfEditor(const Journal &journal)
{
    reportWithMessageBoxes();
    Reporter reporter = setReporter({});
    reporter.leave = [&journal](int) {
        journal.writeVisits();
        std::exit(editorEnded);
    };
    setReporter(std::move(reporter));
}

void play(const PrivateGame &game, Journal &journal, quint32 seed, int seconds)
{
    Monkey monkey(game, journal, seed, seconds);
    while (!monkey.isHome()) {
        MainWindow window(nullptr);
        window.show();
        monkey.playWith(window);
        ini->Write();
        EditorData::info = {};
    }
    journal.writeVisits();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc != 4) {
        std::fputs("Usage: monkey SAMPLE_GAME SECONDS SEED\n", stderr);
        return wrongUsage;
    }
    const PrivateGame game(QString::fromLocal8Bit(argv[1]));
    const int seconds = QByteArray(argv[2]).toInt();
    const quint32 seed = QByteArray(argv[3]).toUInt();
    Journal journal;
    if (!game.failure().isEmpty())
        journal.fault(game.failure());
    QApplication application(argc, argv);
    noteEndOfEditor(journal);
    startEditor(application, game.path(), seed % 2 != 0);
    play(game, journal, seed, seconds);
    delete mss;
    mss = nullptr;
    delete RADF;
    RADF = nullptr;
    return monkeyIsHome;
}
