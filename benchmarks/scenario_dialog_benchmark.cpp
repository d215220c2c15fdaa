// The scenario dialog with as many scenarios as the editor takes, against filling a plain list
// widget of that length: opening it, and adding, moving and deleting one.
//
// Usage: scenario_dialog_benchmark GAMEFOLDER
#include "benchmarks/stopwatch.h"
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"
#include "scenario/scenario_info.h"
#include "shell/editor_resources.h"

#include <QApplication>
#include <QListWidget>
#include <QPushButton>

#include <algorithm>
#include <vector>

namespace {

constexpr unsigned scenarioCount = 30000;
constexpr double measureMilliseconds = 1500;
constexpr int changes = 9;

// An eighth of the scenarios have a map each; their arrays are those of a chain, or all clear.
CampaignData longCampaign(bool chained)
{
    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, scenarioCount - 2 * changes);
    for (std::size_t i = 0; i < campaign.scenarios.size(); i += 8) {
        ScenarioData &scenario = campaign.scenarios[i];
        scenario.mapFileName = QStringLiteral("chapter %1.e3m").arg(i);
        scenario.mapHeader = std::make_shared<MapHeader>();
        scenario.startOptions = std::make_shared<CmpScenarioStartOptions>();
        if (chained && i > 0)
            scenario.prerequisites.setBit(int(i) - 8);
    }
    return campaign;
}

int fillPlainList()
{
    QListWidget list;
    for (unsigned i = 0; i < scenarioCount; ++i) {
        auto *item = new QListWidgetItem(QString::number(i + 1) + ". Empty");
        item->setData(Qt::UserRole, i);
        list.addItem(item);
    }
    return list.count();
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

int openDialog(CampaignData &campaign)
{
    ScenarioInfo dialog(nullptr, &campaign, 24, scenarioCount / 2);
    dialog.show();
    settle();
    return int(dialog.getCurrentRegion());
}

// The middle one of several clicks, each until the list is painted again.
double clickTime(ScenarioInfo &dialog, const char *button)
{
    auto *pressed = dialog.findChild<QPushButton *>(button);
    std::vector<double> times;
    for (int i = 0; i < changes; ++i) {
        times.push_back(stopwatch::once([&] {
            pressed->click();
            settle();
        }));
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

bool measure(const char *kind, bool chained, double filling)
{
    CampaignData campaign = longCampaign(chained);
    const double opening =
        stopwatch::best(measureMilliseconds, [&] { return openDialog(campaign); });
    std::printf("%s: %.1f ms opened, %.1f ms a plain list filled\n", kind, opening / 1e6,
                filling / 1e6);
    bool met = stopwatch::atMost("  plain lists to open", opening / filling, 5);

    ScenarioInfo dialog(nullptr, &campaign, 24, scenarioCount / 2);
    dialog.show();
    settle();
    for (const char *button : {"addBtn", "upBtn", "downBtn", "deleteBtn"}) {
        const double time = clickTime(dialog, button);
        std::printf("  %s: %.2f ms\n", button, time / 1e6);
        met &= stopwatch::atMost("  plain lists for it", time / filling, 1);
    }
    return met;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "Usage: scenario_dialog_benchmark GAMEFOLDER\n");
        return 1;
    }
    setGameRoot(QString::fromLocal8Bit(argv[1]));
    initEditorResources();
    loadGame();
    const double filling = stopwatch::best(measureMilliseconds, fillPlainList);
    const bool empty = measure("without prerequisites", false, filling);
    const bool chained = measure("a chain", true, filling);
    return empty && chained ? 0 : 1;
}
