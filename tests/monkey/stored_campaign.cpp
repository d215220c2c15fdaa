#include "tests/monkey/stored_campaign.h"

#include "cli/campaign_json.h"
#include "cli/json_writer.h"
#include "cli/standard_output.h"
#include "gamedata/editor_data.h"
#include "scenario/option_page.h"
#include "tests/monkey/recorded_output.h"

#include <QFile>

#include <zlib.h>

#include <algorithm>
#include <array>

namespace {

constexpr unsigned int playerCount = 8;

// A map that is one gzip member to its last byte, of a size that no limit touches. Authors may
// import others, a map that isn't packed for one, and the file doesn't give their headers back.
bool isSoundMember(const QByteArray &map)
{
    constexpr int gzipWindow = 31;
    constexpr uLong largest = 4UL * 1024 * 1024;
    z_stream stream = {};
    if (inflateInit2(&stream, gzipWindow) != Z_OK)
        return false;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(map.constData()));
    stream.avail_in = uInt(map.size());
    std::array<Bytef, 65536> scratch;
    int result = Z_OK;
    while (result == Z_OK && stream.total_out <= largest) {
        stream.next_out = scratch.data();
        stream.avail_out = uInt(scratch.size());
        result = inflate(&stream, Z_NO_FLUSH);
    }
    inflateEnd(&stream);
    return result == Z_STREAM_END && stream.avail_in == 0;
}

// Without a map the scenarios are one chain through those that have a map.
void chainScenarios(std::vector<ScenarioData> &scenarios)
{
    int previous = -1;
    for (std::size_t i = 0; i < scenarios.size(); ++i) {
        scenarios[i].prerequisites = QBitArray(int(scenarios.size()));
        if (!scenarios[i].mapHeader)
            continue;
        if (previous >= 0)
            scenarios[i].prerequisites.setBit(previous);
        previous = int(i);
    }
}

// No hero to start with is written as no bonus, for the first player who could have had one.
void storeEmptyHeroList(ScenarioData &scenario)
{
    const CmpScenarioStartOptions *options = scenario.startOptions.get();
    if (!options || options->optionType != HeroOption ||
        !options->optionData.value<StartingHeroSet>().entries.empty())
        return;
    StartingBonusSet set;
    for (unsigned int player = 0; player < playerCount; ++player) {
        if (!playerCanTakeHero(scenario, {}, player))
            continue;
        set.player = quint8(player);
        break;
    }
    scenario.startOptions = std::make_shared<CmpScenarioStartOptions>(
        CmpScenarioStartOptions{BonusOption, QVariant::fromValue(set)});
}

// What isn't stored, or is stored in one shape whatever it was before.
void shapeAsStored(CampaignData &campaign)
{
    campaign.version = newestCampaignVersion;
    campaign.spareFlag = false;
    campaign.spareCounter = 0;
    campaign.scenarioCount = 0; // follows from the map or from the scenarios themselves
    campaign.scenarios.resize(campaign.hasMap
                                  ? std::size_t(EditorData::campaignMap(campaign.mapId).regionCount)
                                  : campaign.scenarios.size());
    if (!campaign.hasMap)
        chainScenarios(campaign.scenarios);
    for (ScenarioData &scenario : campaign.scenarios) {
        scenario.prerequisites.resize(int(campaign.scenarios.size()));
        storeEmptyHeroList(scenario);
        if (!isSoundMember(scenario.compressedMap))
            scenario.mapHeader.reset();
        if (scenario.startOptions && scenario.startOptions->optionType == 0)
            scenario.startOptions.reset();
    }
}

} // namespace

QByteArray storedWords(CampaignData campaign)
{
    shapeAsStored(campaign);
    const LoadingInfo info = EditorData::info;
    EditorData::info = {}; // isn't part of the campaign
    const RecordedOutput recorded;
    StandardOutput output;
    JsonWriter json(output);
    writeCampaign(json, campaign);
    EditorData::info = info;
    return recorded.bytes();
}

QByteArray storedWordsOfFile(const QString &path)
{
    const LoadingInfo info = EditorData::info;
    QFile file(path);
    CampaignData campaign;
    const bool read = file.open(QIODevice::ReadOnly) && !campaign.readCampaign(&file);
    EditorData::info = info;
    return read ? storedWords(std::move(campaign)) : QByteArray();
}

QString firstDifference(const QByteArray &one, const QByteArray &other)
{
    const auto lines = one.split('\n');
    const auto others = other.split('\n');
    QByteArray around;
    int scenario = -1;
    for (int i = 0; i < std::min(lines.size(), others.size()); ++i) {
        if (lines[i] != others[i]) {
            return QString::fromUtf8("scenario " + QByteArray::number(scenario) + ", behind " +
                                     around + ": " + lines[i].trimmed() + " against " +
                                     others[i].trimmed());
        }
        scenario += lines[i].contains("\"mapFileName\"") ? 1 : 0;
        if (lines[i].endsWith('{') || lines[i].endsWith('['))
            around = lines[i].trimmed();
    }
    return lines.size() == others.size() ? QString() : QStringLiteral("one ends before the other");
}
