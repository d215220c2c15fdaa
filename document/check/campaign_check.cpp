#include "document/check/campaign_check.h"

#include "document/campaign_data.h"
#include "document/check/map_check.h"
#include "document/check/option_check.h"
#include "document/check/record_check.h"
#include "document/map_file_name.h"
#include "document/one_line.h"
#include "document/prerequisites.h"
#include "document/text_catalogue.h"
#include "gamedata/editor_data.h"
#include "gamedata/escaped_utf8.h"
#include "gamedata/limits.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <map>

namespace {

constexpr quint8 difficulties = 5;

void checkNumbers(const CampaignData &campaign, Findings &findings)
{
    const auto find = [&](const char *where, const QString &what) {
        findings.push_back({QLatin1String(where), what});
    };
    if (campaign.hasMap && EditorData::campaignInfo.count(campaign.mapId) == 0)
        find("campaign.map", QStringLiteral("the game has no campaign map %1: no scenario is read, "
                                            "and nothing can be saved")
                                 .arg(campaign.mapId));
    if (!campaign.hasMap && EditorData::backgrounds.count(campaign.customValue) == 0)
        find("campaign.background",
             QStringLiteral("the game has no background %1").arg(campaign.customValue));
    if (EditorData::musicNames.count(campaign.musicId) == 0)
        find("campaign.music", QStringLiteral("the game has no music %1").arg(campaign.musicId));
}

bool isText(const QString &text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (isHalfCharacter(text, i))
            return false;
    }
    return true;
}

void checkTexts(const CampaignData &campaign, Findings &findings)
{
    for (const TextPlace &place : textPlaces(campaign)) {
        const QString text = textAt(campaign, place);
        const int longest = longestText(place.kind);
        if (longest > 0 && text.size() > longest) {
            findings.push_back(
                {idOf(place),
                 QStringLiteral("%1 letters, the editor keeps %2").arg(text.size()).arg(longest)});
        }
        if (!isText(text))
            findings.push_back({idOf(place), QStringLiteral("holds bytes that are no text in this "
                                                            "encoding")});
    }
}

// Maps that export would write over each other, and names that it would change or pass over.
void checkMapNames(const CampaignData &campaign, Findings &findings)
{
    std::map<QString, unsigned int>
        first; // apart from case, since the game's system doesn't see it
    for (unsigned int i = 0; i < campaign.scenarios.size(); ++i) {
        const ScenarioData &scenario = campaign.scenarios[i];
        const QString name = bareMapFileName(scenario.mapFileName);
        const auto find = [&](const QString &what) {
            findings.push_back({placeOf(i, "map"), what});
        };
        if (scenario.compressedMap.isEmpty()) {
            if (!scenario.mapFileName.isEmpty() && scenario.mapSize == 0)
                find(QStringLiteral("\"%1\" is named, but there is no map")
                         .arg(oneLine(scenario.mapFileName)));
            continue;
        }
        if (name.isEmpty()) {
            find(QStringLiteral("has no name that export could write it under"));
            continue;
        }
        if (name != scenario.mapFileName)
            find(QStringLiteral("\"%1\" is no bare name, export writes \"%2\"")
                     .arg(oneLine(scenario.mapFileName), oneLine(name)));
        const auto [other, isNew] = first.emplace(name.toLower(), i);
        if (!isNew && campaign.scenarios[other->second].compressedMap != scenario.compressedMap)
            find(QStringLiteral("export writes \"%1\" over that of scenario %2")
                     .arg(oneLine(name), QString::number(other->second + 1)));
    }
}

// Only direct ones are told, and a circle at each scenario on it.
void checkPrerequisites(const CampaignData &campaign, Findings &findings)
{
    if (!campaign.hasMap)
        return; // saving makes them
    for (unsigned int i = 0; i < campaign.scenarios.size(); ++i) {
        const auto find = [&](const QString &what) {
            findings.push_back({placeOf(i, "prerequisites"), what});
        };
        if (hasPrerequisite(campaign.scenarios[i], i))
            find(QStringLiteral("it requires itself"));
        else if (requiredBy(campaign, i).testBit(int(i)))
            find(QStringLiteral("it stands on a circle of scenarios that require each other"));
        for (unsigned int j = 0; j < campaign.scenarios.size(); ++j) {
            if (j != i && hasPrerequisite(campaign.scenarios[i], j) &&
                !campaign.scenarios[j].mapHeader)
                find(QStringLiteral("it requires scenario %1, which has no map").arg(j + 1));
        }
    }
}

void checkStories(const ScenarioData::Prologues &stories, const char *name, unsigned int scenario,
                  unsigned int choices, bool hasMap, Findings &findings)
{
    for (unsigned int i = 0; i < stories.size(); ++i) {
        if (!stories[i])
            continue;
        const QString where = placeOf(scenario, name) + QStringLiteral(".%1").arg(i + 1);
        if (!hasMap)
            findings.push_back({where, QStringLiteral("belongs to a scenario without a map")});
        else if (i >= std::max(choices, 1u))
            findings.push_back({where, QStringLiteral("belongs to no start option, the scenario "
                                                      "dialog drops it")});
        if (EditorData::videoNames.count(stories[i]->videoId) == 0)
            findings.push_back(
                {where, QStringLiteral("the game has no video %1").arg(stories[i]->videoId)});
        if (EditorData::musicNames.count(stories[i]->musicIndex) == 0)
            findings.push_back(
                {where, QStringLiteral("the game has no music %1").arg(stories[i]->musicIndex)});
    }
}

void checkScenarios(const CampaignData &campaign, Findings &findings)
{
    for (unsigned int i = 0; i < campaign.scenarios.size(); ++i) {
        const ScenarioData &scenario = campaign.scenarios[i];
        if (campaign.hasMap && scenario.regionColor >= EditorData::colors.size())
            findings.push_back(
                {placeOf(i, "region"),
                 QStringLiteral("the game has no colour %1").arg(scenario.regionColor)});
        if (scenario.defaultDifficulty >= difficulties)
            findings.push_back(
                {placeOf(i),
                 QStringLiteral("the game has no difficulty %1").arg(scenario.defaultDifficulty)});
        const unsigned int choices = optionCount(campaign, i);
        const bool hasMap = scenario.mapHeader != nullptr;
        checkStories(scenario.prologues, "prologue", i, choices, hasMap, findings);
        checkStories(scenario.epilogues, "epilogue", i, choices, hasMap, findings);
        checkOptions(campaign, i, findings);
    }
}

void checkMaps(const CampaignData &campaign, Findings &findings)
{
    qint64 allowance = limits::checkedCampaignBytes;
    for (unsigned int i = 0; i < campaign.scenarios.size(); ++i) {
        const QByteArray &map = campaign.scenarios[i].compressedMap;
        if (!map.isEmpty())
            checkMap(map, placeOf(i, "map"), allowance, findings);
    }
}

using Check = void (*)(const CampaignData &campaign, Findings &findings);

// What is looked at behind the records' own bytes, in the order in which it is told.
constexpr std::array<Check, 6> checks{checkNumbers,       checkTexts,     checkMapNames,
                                      checkPrerequisites, checkScenarios, checkMaps};

} // namespace

std::optional<QString> checkCampaign(QFile &file, Findings &findings)
{
    CampaignData campaign;
    if (std::optional<QString> failure = campaign.readCampaign(&file))
        return failure;
    checkRecords(file, campaign, findings);
    for (const Check check : checks)
        check(campaign, findings);
    return {};
}
