// The commands on the scenario's map: import, export, remove.
#include "document/campaign_data.h"
#include "document/map_file_name.h"
#include "document/prerequisites.h"
#include "gamedata/game_dir.h"
#include "gamedata/readable_file.h"
#include "gamedata/used_folder.h"
#include "scenario/scenario_general.h"
#include "scenario/scenario_host.h"
#include "shell/wait_cursor.h"
#include "shell/warning_box.h"
#include "ui_scenarioGeneral.h"

#include <QFile>
#include <QFileDialog>

namespace {

QString mapFilter()
{
    return ScenarioGeneral::tr("Eldmark Saga map (*.e3m);;All Files (*)");
}

// The scenario's map, and what is left of it when the map is taken away. The text stays.
void releaseMap(ScenarioData &scenario, std::size_t scenarioCount)
{
    scenario.mapFileName.clear();
    scenario.mapHeader.reset();
    scenario.mapSize = 0;
    scenario.compressedMap.clear();
    scenario.prerequisites = QBitArray(int(scenarioCount));
}

} // namespace

// After an import that was cancelled or failed the list of prerequisites ignores clicks until
// another scenario is selected: authors know it so.
void ScenarioGeneral::refreshMap()
{
    guard = false;
    const QString path = QFileDialog::getOpenFileName(this, tr("Open"), startPath(), mapFilter());
    if (path.isEmpty())
        return;
    rememberFolderOf(path);

    const bool hadMap = scenario->mapHeader != nullptr;
    const QByteArray oldMap = scenario->compressedMap;
    const QString oldName = scenario->mapFileName;
    if (!importFrom(path))
        return;
    if (scenario->compressedMap != oldMap || scenario->mapFileName != oldName)
        setChanged();
    updateUI();
    addPrerequisiteUI(); // as stored: a click that was ignored may have left its mark
    if (ScenarioHost *host = hostOf(this)) {
        host->updateScenarioData(scenario);
        host->updateCurrentItem();
        if (!hadMap)
            host->enableUI();
        host->updateScenarioUI();
    }
    guard = true;
}

// False after a message; the scenario then keeps the map it had.
bool ScenarioGeneral::importFrom(const QString &path)
{
    const auto cannotRead = [&](const QString &why) {
        warn(this, tr("Error"), tr("Cannot read file %1:\n%2.").arg(path, why));
    };
    QFile file(path);
    if (const std::optional<QString> failure = openToRead(file)) {
        cannotRead(*failure);
        return false;
    }
    WaitCursor cursor;
    const int result = scenario->ReadMapFromFile(&file);
    cursor.restore();
    if (result == -1)
        warn(this, tr("Error"), tr("Cannot read file %1. Map has errors.").arg(path));
    else if (result == 0)
        cannotRead(file.errorString());
    return result == 1;
}

void ScenarioGeneral::exportMap()
{
    const QString path = QFileDialog::getSaveFileName(this, tr("Save"), startPath(), mapFilter());
    if (path.isEmpty())
        return;
    const SaveResult result = saveFileSafely(path, {scenario->compressedMap});
    if (!result.ok && !result.opened)
        return; // authors know it so
    rememberFolderOf(path);
    if (!result.ok)
        warn(this, tr("Error"), tr("Cannot write file %1:\n%2.").arg(path, result.error));
}

void ScenarioGeneral::removeMap()
{
    passPrerequisitesOn();
    releaseMap(*scenario, campaign->scenarios.size());
    ui->prereqListWidget->clear();
    setChanged();
    if (ScenarioHost *host = hostOf(this)) {
        host->updateCurrentItem();
        host->disableUI();
    }
    updateUI();
}

// Those that require this scenario require what it required, and no longer the scenario itself.
void ScenarioGeneral::passPrerequisitesOn()
{
    for (unsigned int k = 0; k < campaign->scenarios.size(); ++k) {
        ScenarioData &other = campaign->scenarios[k];
        if (k == region || !hasPrerequisite(other, region))
            continue;
        for (unsigned int j = 0; j < unsigned(scenario->prerequisites.size()); ++j) {
            if (j != k && hasPrerequisite(*scenario, j))
                setPrerequisite(other, j, true);
        }
        setPrerequisite(other, region, false);
    }
}

// The folder used last, and in it the name of the scenario's map.
QString ScenarioGeneral::startPath() const
{
    const QString folder = usedFolder(getGameDir(QStringLiteral("Maps")).path());
    const QString name = bareMapFileName(scenario->mapFileName);
    return name.isEmpty() ? folder : folder + '/' + name;
}
