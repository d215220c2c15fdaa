// Reads the input as a translators' file and takes it over into a campaign. The first byte chooses
// the format, whether changed texts are taken too, and the encoding of the system.
#include "document/campaign_data.h"
#include "document/text_bytes.h"
#include "document/translation/translation_file.h"
#include "document/translation/translation_import.h"
#include "fuzz/quiet_start.h"
#include "fuzz/system_codecs.h"
#include "fuzz/time_limit.h"
#include "gamedata/limits.h"

#include <QTextCodec>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

constexpr std::array<const char *, 3> encodings{"UTF-8", "Windows-1252", "Shift_JIS"};
constexpr unsigned mapOfThreeRegions = 24;
constexpr int longestRegionText = 600;

CampaignData campaignWithTexts()
{
    CampaignData campaign;
    campaign.initDummyCampaign(mapOfThreeRegions, true, 0, 0);
    campaign.scenarios.resize(3);
    campaign.name = QStringLiteral("Ash");
    ScenarioData &scenario = campaign.scenarios[0];
    scenario.mapHeader = std::make_shared<MapHeader>();
    scenario.regionText = QStringLiteral("Fen\r\nMoor");
    scenario.prologues[1] = std::make_shared<CmpPrologue>();
    scenario.prologues[1]->text = QStringLiteral("Once\nupon");
    return campaign;
}

bool sameUnits(const std::vector<TranslationUnit> &a, const std::vector<TranslationUnit> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const TranslationUnit &one, const TranslationUnit &other) {
                          return one.id == other.id && one.source == other.source &&
                                 one.translation == other.translation;
                      });
}

// What any format has read is written in each format so that it reads as the same, unless it holds
// what none can.
void holdAgainstEachFormat(std::vector<TranslationUnit> units)
{
    for (TranslationUnit &unit : units) {
        for (QString *text : {&unit.id, &unit.source, &unit.translation}) {
            *text = withLineFeeds(*text);
            if (faultOfText(*text))
                return;
        }
        if (unit.id.isEmpty())
            return; // without one it isn't told from a file's own head
    }
    for (const QString &name : translationFormatNames()) {
        const TranslationFormat &format = *translationFormat(name);
        const TranslationReading again = format.read(format.write(units));
        if (!again.error.isEmpty() || !sameUnits(again.units, units))
            abort();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    static const auto codecs = systemCodecs(encodings);
    static const QStringList names = translationFormatNames();
    if (size == 0)
        return 0;
    QTextCodec::setCodecForLocale(codecs[data[0] / 8 % codecs.size()]);
    const TranslationFormat &format = *translationFormat(names[data[0] % names.size()]);
    const bool force = data[0] & 4;
    const TranslationReading reading =
        format.read(QByteArray(reinterpret_cast<const char *>(data) + 1, int(size) - 1));
    if (!reading.error.isEmpty() && !reading.units.empty())
        abort();
    holdAgainstEachFormat(reading.units);
    CampaignData campaign = campaignWithTexts();
    const TranslationReport report = takeTranslations(campaign, reading.units, force);
    if (!report.faults.empty() && (report.taken > 0 || campaign.name != QLatin1String("Ash")))
        abort();
    const QString &text = campaign.scenarios[0].regionText;
    if (text.size() > longestRegionText || textFromBytes(bytesFromText(text)) != text)
        abort(); // the editor would cut it, or the file lose it
    return 0;
}
