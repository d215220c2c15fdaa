// Measures the program against plain work of the same kind, and writes a table of ratios and goals.
// Exit status 1 if a goal is missed.
//
// Usage: cmped-bench INPUTS [--runs N] [--benchmark_filter=REGEX] [other options of the library]
// INPUTS is what make_inputs has made. Windows of started programs are shown on DISPLAY if that is
// set, everything else on no display.
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "benchmarks/table.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"
#include "shell/editor_resources.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace {

void addRows(const Inputs &inputs)
{
    addOpeningRows(inputs);
    addMemoryRows(inputs);
    addSavingRows(inputs);
    addComposingRows();
    addStartRows(inputs);
    addRedrawRows();
    addScenarioDialogRows();
    addRecoveryRows(inputs);
    addStallRows(inputs);
    addOpeningGrowth(inputs);
    addComposingGrowth();
    addStartGrowth(inputs);
    addTextGrowth();
    addGraphGrowth();
}

// Answers the exit status.
int tellPeak(const char *game, const char *campaign)
{
    setGameRoot(QFile::decodeName(game));
    initEditorResources();
    loadGame();
    const qint64 rise = peakOfScenarioDialog(QFile::decodeName(campaign));
    std::printf("%lld\n", static_cast<long long>(rise));
    return rise < 0 ? 1 : 0;
}

int usage()
{
    std::fprintf(stderr, "Usage: cmped-bench INPUTS [--runs N] [--benchmark_filter=REGEX]\n");
    return 2;
}

} // namespace

int main(int argc, char **argv)
{
    // Neither the user's settings nor the display have a part in it.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(home.path()));
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);

    int runs = 1;
    if (argc == 4 && std::strcmp(argv[1], scenarioDialogPeak) == 0)
        return tellPeak(argv[2], argv[3]);
    if (argc == 4 && std::strcmp(argv[2], "--runs") == 0)
        runs = std::atoi(argv[3]);
    else if (argc != 2)
        return usage();
    const Inputs inputs{QDir(QFile::decodeName(argv[1])).absolutePath()};
    if (runs < 1 || !QFile::exists(inputs.stamp()))
        return usage();

    setGameRoot(inputs.game());
    initEditorResources();
    loadGame();
    addRows(inputs);
    rows::registerAll();
    Table table;
    for (int run = 0; run < runs; ++run)
        benchmark::RunSpecifiedBenchmarks(&table);
    table.write(std::cout);
    return table.allMet() ? 0 : 1;
}
