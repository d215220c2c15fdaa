// From the start of the program to the first paint of its window, against an empty main window, and
// by how many entries the game's archives have. Both are programs of their own that tell when their
// window was painted.
#include "benchmarks/child.h"
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"

#include <QFile>
#include <QTemporaryDir>

#include <ctime>
#include <memory>

namespace {

double monotonicSeconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return double(now.tv_sec) + double(now.tv_nsec) / 1e9;
}

// On the display, if there is one; with settings and data of no user.
rows::Measure startOf(const std::string &program, const QString &game)
{
    const auto home = std::make_shared<QTemporaryDir>();
    const std::string place = QFile::encodeName(home->path()).toStdString();
    const std::vector<std::string> environment = {
        qEnvironmentVariableIsSet("DISPLAY") ? "QT_QPA_PLATFORM=xcb" : "QT_QPA_PLATFORM=offscreen",
        "CMPED_GAME_DIR=" + QFile::encodeName(game).toStdString(),
        "SDL_AUDIODRIVER=dummy",
        "XDG_DATA_HOME=" + place,
        "XDG_CONFIG_HOME=" + place,
        "XDG_RUNTIME_DIR=" + place,
    };
    return [program, home, environment] {
        const double before = monotonicSeconds();
        return std::stod(outputOf(program, {}, environment)) / 1e9 - before;
    };
}

} // namespace

void addStartRows(const Inputs &inputs)
{
    rows::Row row;
    row.work = "start to visible window, archives of 12,000 entries and 300 MB";
    row.reference = "an empty Qt main window";
    row.goal = 4;
    row.turns = 21;
    row.prepare = [game = inputs.game()] {
        return rows::Pair{startOf("editor_probe", game), startOf("empty_window_probe", game)};
    };
    rows::add(row);
}

void addStartGrowth(const Inputs &inputs)
{
    rows::Growth growth;
    growth.work = "start to visible window";
    growth.of = "archive entries";
    growth.turns = 9;
    growth.prepare = [inputs] {
        std::vector<rows::Step> steps;
        steps.reserve(startEntries.size());
        for (const int entries : startEntries)
            steps.push_back({double(entries), startOf("editor_probe", inputs.startGame(entries))});
        return steps;
    };
    rows::add(growth);
}
