// The scenario dialog with as many scenarios as the editor takes, against filling a plain list
// widget of that length: opening it, and adding, moving and deleting one until the list is painted
// again.
#include "benchmarks/groups.h"
#include "benchmarks/peak_memory.h"
#include "benchmarks/rows.h"
#include "benchmarks/scenario_chain.h"
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "scenario/scenario_info.h"

#include <QCoreApplication>
#include <QFile>
#include <QListWidget>
#include <QPushButton>

#include <array>
#include <memory>
#include <stdexcept>

namespace {

constexpr unsigned scenarioCount = 30000;
constexpr int changes = 21;
constexpr int roomForChanges = 2 * (changes + 1);

struct Kind
{
    const char *name;
    bool chained; // every eighth scenario requires the one before it, or no scenario any other
};

constexpr std::array<Kind, 2> kinds = {{{"", false}, {", in a chain", true}}};

struct Change
{
    const char *name;
    const char *button;
};

constexpr std::array<Change, 4> changesOfTheList = {{
    {"add one", "addBtn"},
    {"move one up", "upBtn"},
    {"move one down", "downBtn"},
    {"delete one", "deleteBtn"},
}};

CampaignData longCampaign(bool chained)
{
    return scenarioChain(scenarioCount - roomForChanges, chained);
}

void fillPlainList()
{
    QListWidget list;
    for (unsigned i = 0; i < scenarioCount; ++i) {
        auto *item = new QListWidgetItem(QString::number(i + 1) + ". Empty");
        item->setData(Qt::UserRole, i);
        list.addItem(item);
    }
}

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

rows::Pair opening(bool chained)
{
    const auto campaign = std::make_shared<CampaignData>(longCampaign(chained));
    return {rows::timed([campaign] {
                ScenarioInfo dialog(nullptr, campaign.get(), 24, scenarioCount / 2);
                dialog.show();
                settle();
            }),
            rows::timed(fillPlainList)};
}

// A dialog that is shown, with the campaign that it looks at.
struct Shown
{
    explicit Shown(bool chained) : campaign(longCampaign(chained))
    {
        dialog.show();
        settle();
    }

    CampaignData campaign;
    ScenarioInfo dialog{nullptr, &campaign, 24, scenarioCount / 2};
};

rows::Pair clicking(bool chained, const char *name)
{
    const auto shown = std::make_shared<Shown>(chained);
    auto *button = shown->dialog.findChild<QPushButton *>(name);
    if (button == nullptr || !button->isEnabled())
        throw std::runtime_error("there is no button to click");
    return {rows::timed([shown, button] {
                button->click();
                settle();
            }),
            rows::timed(fillPlainList)};
}

void openDialog(CampaignData &campaign)
{
    ScenarioInfo dialog(nullptr, &campaign, EditorData::info.campaign, 0);
    dialog.show();
    settle();
    dialog.grab(); // painted, wherever it is shown
}

} // namespace

// What windows need once, fonts and the like, is there before.
qint64 peakOfScenarioDialog(const QString &campaign)
{
    CampaignData small = scenarioChain(1, false);
    EditorData::info.campaign = small.mapId;
    openDialog(small);
    return peak_memory::riseDuring([&] {
        QFile file(campaign);
        CampaignData read;
        if (read.readCampaign(&file))
            return false;
        openDialog(read);
        return true;
    });
}

void addScenarioDialogRows()
{
    rows::Row row;
    row.reference = "filling a plain list widget of that length";
    row.turns = changes;
    for (const Kind &kind : kinds) {
        const std::string dialog =
            std::string("scenario dialog with 30,000 scenarios") + kind.name + ": ";
        row.work = dialog + "open";
        row.goal = 5;
        row.prepare = [&kind] { return opening(kind.chained); };
        rows::add(row);
        row.goal = 1;
        for (const Change &change : changesOfTheList) {
            row.work = dialog + change.name;
            row.prepare = [&kind, &change] { return clicking(kind.chained, change.button); };
            rows::add(row);
        }
    }
}
