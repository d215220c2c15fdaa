// Saving a campaign, against writing the same bytes in the same safe way; and what memory opening,
// saving and other commands take.
#include "benchmarks/child.h"
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "document/campaign_data.h"
#include "gamedata/safe_save.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <array>
#include <memory>
#include <stdexcept>

namespace {

void demand(const SaveResult &result)
{
    if (!result.ok)
        throw std::runtime_error("a file can't be written");
}

rows::Pair saving(const Inputs &inputs)
{
    const auto folder = std::make_shared<QTemporaryDir>(inputs.folder + "/saved-XXXXXX");
    const auto campaign = std::make_shared<CampaignData>();
    QFile file(inputs.campaign(8));
    if (campaign->readCampaign(&file))
        throw std::runtime_error("a campaign can't be opened");
    const std::vector<QByteArray> pieces = campaign->toPieces();
    return {rows::timed([=] { demand(campaign->saveTo(folder->filePath("campaign.e3c"))); }),
            rows::timed([=] { demand(saveFileSafely(folder->filePath("plain.e3c"), pieces)); })};
}

struct MemoryRow
{
    const char *work;
    unsigned maps;
    const char *program;
    const char *argument;
};

constexpr std::array<MemoryRow, 6> memoryRows = {{
    {"memory while opening it", 8, "memory_probe", "open"},
    {"memory while opening and saving it", 8, "memory_probe", "save"},
    {"memory while opening a campaign of 64 maps and refreshing them", 64, "memory_probe",
     "refresh"},
    {"memory while opening it, exporting texts and importing them", 64, "memory_probe", "texts"},
    {"memory while opening it and converting it twice", 64, "memory_probe", "convert"},
    {"memory while opening it and its scenario dialog", 64, "cmped-bench", scenarioDialogPeak},
}};

// Measured in processes of their own, on a copy with its maps beside it.
rows::Pair peakOf(const MemoryRow &row, const Inputs &inputs)
{
    const auto folder = std::make_shared<QTemporaryDir>(inputs.folder + "/memory-XXXXXX");
    const QString campaign = folder->filePath("campaign.e3c");
    if (!QFile::copy(inputs.campaign(row.maps), campaign))
        throw std::runtime_error("a campaign can't be copied");
    const auto rise = [=, game = inputs.game()](const char *program, const char *argument) {
        return std::stod(outputOf(program, {argument, QFile::encodeName(game).toStdString(),
                                            QFile::encodeName(campaign).toStdString()}));
    };
    rise("memory_probe", "export");
    const auto size = double(QFileInfo(campaign).size());
    return {[=] { return folder ? rise(row.program, row.argument) : 0; }, [size] { return size; }};
}

} // namespace

void addSavingRows(const Inputs &inputs)
{
    rows::Row row;
    row.work = "save a campaign of eight 550 KB maps";
    row.reference = "writing the same bytes the same safe way";
    row.goal = 1.3;
    row.turns = 101;
    row.memory = rows::Memory::Fresh;
    row.prepare = [inputs] { return saving(inputs); };
    rows::add(row);
}

void addMemoryRows(const Inputs &inputs)
{
    rows::Row row;
    row.reference = "the file's size";
    row.goal = 1.5;
    row.turns = 5;
    row.unit = rows::Unit::Bytes;
    for (const MemoryRow &memory : memoryRows) {
        row.work = memory.work;
        row.prepare = [&memory, inputs] { return peakOf(memory, inputs); };
        rows::add(row);
    }
}
