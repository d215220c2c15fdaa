// Reads the input as a scenario's record and writes it again. The first byte chooses the format of
// the record and whether its campaign has a map.
#include "document/campaign_data.h"
#include "document/campaign_records.h"
#include "fuzz/quiet_start.h"
#include "fuzz/scenario_bytes.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"

#include <QDataStream>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr unsigned mapOfThreeRegions = 24;
constexpr std::array<quint32, 3> versions{10, 6, 5};
constexpr quint32 newestVersion = 10;

CampaignData campaignOf(unsigned choice)
{
    CampaignData campaign;
    campaign.initDummyCampaign(mapOfThreeRegions, choice % 2 == 0, 0, 3);
    campaign.version = versions[choice / 2 % versions.size()];
    EditorData::info.campaign = mapOfThreeRegions;
    return campaign;
}

ScenarioData readRecord(const QByteArray &bytes, CampaignData &campaign)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData scenario;
    scenario.ReadFromStream(stream, &campaign);
    return scenario;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    if (size == 0)
        return 0;
    CampaignData campaign = campaignOf(data[0]);
    const auto record =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    ScenarioData scenario = readRecord(record, campaign);
    const QByteArray written = bytesOfRecord(scenario, campaign);
    if (bonusMemory(scenario) < 0 || chainPrerequisites(scenario, 1, 3).size() != 3)
        abort();
    campaign.version = newestVersion; // as everything is written
    ScenarioData again = readRecord(written, campaign);
    if (bytesOfRecord(again, campaign) != written)
        abort(); // something was lost, or a length doesn't fit what follows it
    return 0;
}
