#include "fuzz/quiet_start.h"

#include "gamedata/editor_data.h"
#include "gamedata/report.h"

#include <QLoggingCategory>

#include <cstdlib>

namespace {

constexpr unsigned artifactCount = 160;
constexpr unsigned creatureCount = 186;
constexpr int heroCount = 163;

void addMap(int number, int regionCount)
{
    CampaignInfo &map = EditorData::campaignInfo[number];
    map.regionCount = regionCount;
    map.regions.resize(regionCount);
}

} // namespace

QuietStart::QuietStart(void (*fillTables)())
{
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false"));
    setReporter({[](const QString &, const QString &) {}, [](int) { std::abort(); }});
    if (fillTables)
        fillTables();
}

void fillSmallTables()
{
    EditorData::nArtifacts = artifactCount;
    EditorData::nCreatures = creatureCount;
    addMap(0, 8);
    addMap(5, 12);
    addMap(24, 3);
    for (int hero = 0; hero < heroCount; ++hero)
        EditorData::heroes[hero] = QStringLiteral("Hero");
}
