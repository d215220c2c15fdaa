#include "document/text_catalogue.h"

#include "document/campaign_data.h"
#include "document/one_line.h"
#include "gamedata/editor_data.h"

namespace {

constexpr int longestName = 60;
constexpr int longestDescription = 300;
constexpr int longestRegionText = 600;

void addStories(const ScenarioData::Prologues &stories, TextPlace place,
                std::vector<TextPlace> &places)
{
    for (place.story = 0; place.story < stories.size(); ++place.story) {
        if (stories[place.story])
            places.push_back(place);
    }
}

const ScenarioData::Prologues &storiesAt(const ScenarioData &scenario, TextKind kind)
{
    return kind == TextKind::Prologue ? scenario.prologues : scenario.epilogues;
}

QString idOfKind(const TextPlace &place)
{
    if (place.kind == TextKind::RegionText)
        return QStringLiteral("region.text");
    const char *kind = place.kind == TextKind::Prologue ? "prologue" : "epilogue";
    return QStringLiteral("%1.%2").arg(QLatin1String(kind)).arg(place.story + 1);
}

QString nameOfKind(const TextPlace &place)
{
    if (place.kind == TextKind::RegionText)
        return QStringLiteral("right-click text");
    const char *kind = place.kind == TextKind::Prologue ? "prologue" : "epilogue";
    return QStringLiteral("%1 %2").arg(QLatin1String(kind)).arg(place.story + 1);
}

// "Scenario 3 (The Long Thaw, Grey Coast)".
QString nameOfScenario(const CampaignData &campaign, unsigned int index)
{
    QStringList names;
    if (const auto header = campaign.scenarios[index].mapHeader)
        names << oneLine(header->mapName);
    const QVector<CampaignRegion> &regions = EditorData::campaignMap(campaign.mapId).regions;
    if (campaign.hasMap && index < unsigned(regions.size()))
        names << oneLine(regions[int(index)].name);
    names.removeAll(QString());
    QString number = QStringLiteral("Scenario %1").arg(index + 1);
    if (names.isEmpty())
        return number;
    return number + QStringLiteral(" (") + names.join(QStringLiteral(", ")) + QLatin1Char(')');
}

QString withoutLength(const CampaignData &campaign, const TextPlace &place)
{
    switch (place.kind) {
    case TextKind::CampaignName:
        return QStringLiteral("The campaign's name");
    case TextKind::CampaignDescription:
        return QStringLiteral("The campaign's description");
    default:
        return nameOfScenario(campaign, place.scenario) + QStringLiteral(": ") + nameOfKind(place);
    }
}

} // namespace

std::vector<TextPlace> textPlaces(const CampaignData &campaign)
{
    std::vector<TextPlace> places{{TextKind::CampaignName}, {TextKind::CampaignDescription}};
    for (unsigned int i = 0; i < campaign.scenarios.size(); ++i) {
        const ScenarioData &scenario = campaign.scenarios[i];
        if (!scenario.mapHeader)
            continue;
        places.push_back({TextKind::RegionText, i});
        addStories(scenario.prologues, {TextKind::Prologue, i}, places);
        addStories(scenario.epilogues, {TextKind::Epilogue, i}, places);
    }
    return places;
}

QString textAt(const CampaignData &campaign, const TextPlace &place)
{
    switch (place.kind) {
    case TextKind::CampaignName:
        return campaign.name;
    case TextKind::CampaignDescription:
        return campaign.description;
    case TextKind::RegionText:
        return campaign.scenarios[place.scenario].regionText;
    default:
        return storiesAt(campaign.scenarios[place.scenario], place.kind)[place.story]->text;
    }
}

void setTextAt(CampaignData &campaign, const TextPlace &place, const QString &text)
{
    if (place.kind == TextKind::CampaignName) {
        campaign.name = text;
    } else if (place.kind == TextKind::CampaignDescription) {
        campaign.description = text;
    } else if (place.kind == TextKind::RegionText) {
        campaign.scenarios[place.scenario].regionText = text;
    } else {
        ScenarioData &scenario = campaign.scenarios[place.scenario];
        auto &stories = place.kind == TextKind::Prologue ? scenario.prologues : scenario.epilogues;
        const auto story = std::make_shared<CmpPrologue>(*stories[place.story]);
        story->text = text;
        stories[place.story] = story;
    }
}

QString idOf(const TextPlace &place)
{
    switch (place.kind) {
    case TextKind::CampaignName:
        return QStringLiteral("campaign.name");
    case TextKind::CampaignDescription:
        return QStringLiteral("campaign.description");
    default:
        return QStringLiteral("scenario.%1.").arg(place.scenario + 1) + idOfKind(place);
    }
}

QString contextOf(const CampaignData &campaign, const TextPlace &place)
{
    const QString context = withoutLength(campaign, place);
    const int longest = longestText(place.kind);
    return longest == 0 ? context : context + QStringLiteral(", at most %1 letters").arg(longest);
}

int longestText(TextKind kind)
{
    switch (kind) {
    case TextKind::CampaignName:
        return longestName;
    case TextKind::CampaignDescription:
        return longestDescription;
    case TextKind::RegionText:
        return longestRegionText;
    default:
        return 0;
    }
}
