#include "cli/exchange_commands.h"

#include "cli/campaign_commands.h"
#include "document/campaign_data.h"
#include "document/map_exchange.h"
#include "document/text_exchange.h"
#include "gamedata/game_loading.h"
#include "gamedata/report.h"

#include <QFile>

#include <cerrno>

namespace {

ExitStatus cannotRead(const QString &path, const QString &reason)
{
    return failed(mainWindowText("Cannot read file %1:\n%2.").arg(path, reason));
}

ExitStatus finished(const QString &path, const SaveResult &result)
{
    return result.ok ? exitDone : cannotWrite(path, result.error);
}

// "" is the current folder, and not the root of the disk.
QString folderOf(const QString &argument)
{
    return argument.isEmpty() ? QStringLiteral(".") : argument;
}

} // namespace

ExitStatus runExportTexts(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    return finished(arguments[1], saveFileSafely(arguments[1], {exportedTexts(campaign)}));
}

ExitStatus runImportTexts(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    const QString &path = arguments[1];
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) // a pipe is welcome: texts may come from another program
        return cannotRead(path, file.errorString());
    if (!importTextsFrom(file, campaign)) {
        return failed(mainWindowText("Cannot read file %1 - incorrect campaign text:\n%2.")
                          .arg(path, file.errorString()));
    }
    return finished(arguments[2], campaign.saveTo(arguments[2]));
}

ExitStatus runExportMaps(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    ExitStatus status = exitDone;
    exportMapsTo(folderOf(arguments[1]), campaign, arguments[0],
                 [&](const QString &text) { status = failed(text); });
    return status;
}

// A script can't look at its maps and decide, so nothing is written unless all of them were read.
ExitStatus runRefreshMaps(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    ExitStatus status = exitDone;
    const MapRefresh result = refreshMapsFrom(folderOf(arguments[1]), campaign,
                                              [&](const QString &text) { status = failed(text); });
    if (!result.missing.isEmpty())
        status = cannotRead(result.missing, qt_error_string(ENOENT));
    return status == exitDone ? finished(arguments[2], campaign.saveTo(arguments[2])) : status;
}
