// Saving a campaign, against writing the same bytes in the same safe way; and what memory opening
// and saving take.
#include "benchmarks/child.h"
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "document/campaign_data.h"
#include "gamedata/safe_save.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

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

rows::Measure peakOf(const Inputs &inputs, const char *what)
{
    const std::vector<std::string> arguments = {
        what, QFile::encodeName(inputs.game()).toStdString(),
        QFile::encodeName(inputs.campaign(8)).toStdString()};
    return [=] { return std::stod(outputOf("memory_probe", arguments)); };
}

void addMemoryRow(const Inputs &inputs, const char *work, const char *what)
{
    rows::Row row;
    row.work = work;
    row.reference = "the file's size";
    row.goal = 1.5;
    row.turns = 5;
    row.unit = rows::Unit::Bytes;
    row.prepare = [inputs, what] {
        const auto size = double(QFileInfo(inputs.campaign(8)).size());
        return rows::Pair{peakOf(inputs, what), [size] { return size; }};
    };
    rows::add(row);
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
    addMemoryRow(inputs, "memory while opening it", "open");
    addMemoryRow(inputs, "memory while opening and saving it", "save");
}
