// Opens the input as a campaign and packs it again.
#include "document/campaign_data.h"
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/scenario_bytes.h"
#include "fuzz/time_limit.h"

#include <QFile>

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    static MemoryFile input;
    static QFile missing(QStringLiteral("/proc/self/fd/none"));
    input.set(data, size);
    QFile file(input.path());
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    CampaignData campaign;
    if (campaign.ReadFromFile(&missing))
        abort();
    if (!campaign.ReadFromFile(&file))
        return 0;
    campaign.toPieces();
    if (!campaign.scenarios.empty() && bytesOfRecord(campaign.scenarios.back(), campaign).isEmpty())
        abort();
    for (const ScenarioData &scenario : campaign.scenarios) {
        const bool sound = scenario.mapSize == quint32(scenario.compressedMap.size());
        if (!sound)
            abort(); // the next save would shift every map behind this one
    }
    return 0;
}
