// Imports the input as a campaign's texts, and what is exported then. The first byte chooses the
// encoding of the system.
#include "document/campaign_data.h"
#include "document/text_bytes.h"
#include "document/text_exchange.h"
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/system_codecs.h"
#include "fuzz/time_limit.h"

#include <QFile>
#include <QTextCodec>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// In the last one neighbours mean something else than they do by themselves.
constexpr std::array<const char *, 8> encodings{"UTF-8",  "Windows-1251", "Windows-1252", "GB18030",
                                                "EUC-KR", "Big5",         "Shift_JIS",    "TSCII"};
constexpr unsigned mapOfThreeRegions = 24;

// Two scenarios with maps and one without, with prologues and epilogues here and there.
CampaignData campaignWithTexts()
{
    CampaignData campaign;
    campaign.initDummyCampaign(mapOfThreeRegions, true, 0, 0);
    campaign.scenarios.resize(3);
    for (const size_t index : {size_t(0), size_t(2)}) {
        ScenarioData &scenario = campaign.scenarios[index];
        scenario.mapHeader = std::make_shared<MapHeader>();
        scenario.mapHeader->mapName = index == 0 ? QStringLiteral("Ash") : QStringLiteral("Fen");
        scenario.prologues[0] = std::make_shared<CmpPrologue>();
        scenario.epilogues[index] = std::make_shared<CmpPrologue>();
    }
    return campaign;
}

bool importFrom(MemoryFile &memory, CampaignData &campaign)
{
    QFile file(memory.path());
    return file.open(QIODevice::ReadOnly) && importTextsFrom(file, campaign);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    static MemoryFile memory;
    static const auto codecs = systemCodecs(encodings);
    if (size == 0)
        return 0;
    QTextCodec::setCodecForLocale(codecs[data[0] % codecs.size()]);
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1);
    if (bytesFromText(textFromBytes(bytes)) != bytes)
        abort(); // the next save of a campaign would change its texts
    CampaignData campaign = campaignWithTexts();
    memory.set(bytes);
    if (!importFrom(memory, campaign))
        return 0;
    const QByteArray exported = exportedTexts(campaign);
    memory.set(exported);
    if (!importFrom(memory, campaign) || exportedTexts(campaign) != exported)
        abort();
    return 0;
}
