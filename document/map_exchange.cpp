#include "document/map_exchange.h"

#include "document/campaign_data.h"
#include "document/map_file_name.h"
#include "document/map_place.h"
#include "gamedata/file_name.h"
#include "gamedata/readable_file.h"
#include "gamedata/report.h"
#include "gamedata/safe_saves.h"

#include <QDebug>
#include <QFile>

#include <cerrno>

#include <sys/stat.h>

namespace {

constexpr int mapRefused = -1;
constexpr int mapUnreadable = 0;

QString pathOf(const QString &folder, const QString &name)
{
    return QStringLiteral("%1/%2").arg(folder, name);
}

// By the system's word and not by the paths: links and names of other case lead to the same file.
bool isSameFile(const QString &path, const QString &other)
{
    struct stat one = {};
    struct stat two = {};
    return stat(QFile::encodeName(path).constData(), &one) == 0 &&
           stat(QFile::encodeName(other).constData(), &two) == 0 && one.st_dev == two.st_dev &&
           one.st_ino == two.st_ino;
}

} // namespace

// A scenario that names a map and has none of its bytes, as one read from a torn file, leaves
// alone what the author has under that name.
void exportMapsTo(const QString &folder, const CampaignData &campaign, const QString &campaignFile,
                  const TellMapFailure &tell, Unopened unopened)
{
    SafeSaves saves;
    for (const ScenarioData &scenario : campaign.scenarios) {
        const QString name = bareMapFileName(scenario.mapFileName);
        if (name.isEmpty() || scenario.compressedMap.isEmpty())
            continue;
        MapPlace place = placeToWriteMap(folder, name, scenario.compressedMap);
        if (place.refusal == 0 && isSameFile(place.path, campaignFile))
            place.refusal = EEXIST;
        const SaveResult result = place.refusal != 0
                                      ? SaveResult{false, qt_error_string(place.refusal)}
                                      : saves.save(place.path, {scenario.compressedMap});
        const bool isPassedOver =
            place.refusal == 0 && !result.opened && unopened == Unopened::PassedOver;
        if (!result.ok && !isPassedOver) {
            tell(mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Cannot write file %1:\n%2."))
                     .arg(pathOf(folder, name), result.error));
        }
    }
}

MapRefresh refreshMapsFrom(const QString &folder, CampaignData &campaign,
                           const TellMapFailure &tell)
{
    for (ScenarioData &scenario : campaign.scenarios) {
        const QString name = bareMapFileName(scenario.mapFileName);
        if (name.isEmpty())
            continue;
        QFile file(pathOf(folder, name));
        qDebug() << file.fileName();
        const MapPlace place = placeOfMap(folder, name);
        const std::optional<QString> failure =
            place.refusal == 0 ? openToRead(file) : qt_error_string(place.refusal);
        const bool exists = namesOneFile(file.fileName()) && QFile::exists(file.fileName());
        if (failure && place.refusal == 0 && !exists)
            return {false, name};
        const int result = failure ? mapUnreadable : scenario.ReadMapFromFile(&file);
        if (result == mapRefused) {
            tell(mainWindowText(
                     QT_TRANSLATE_NOOP("MainWindow", "Cannot read file %1. Map has errors."))
                     .arg(name));
        } else if (result == mapUnreadable) {
            tell(mainWindowText(QT_TRANSLATE_NOOP("MainWindow", "Cannot read file %1:\n%2."))
                     .arg(name, failure.value_or(file.errorString())));
            return {};
        }
    }
    return {true, {}};
}
