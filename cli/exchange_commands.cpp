#include "cli/exchange_commands.h"

#include "cli/campaign_commands.h"
#include "document/campaign_data.h"
#include "document/map_exchange.h"
#include "gamedata/game_loading.h"
#include "gamedata/report.h"

#include <cerrno>

namespace {

// "" is the current folder, and not the root of the disk.
QString folderOf(const QString &argument)
{
    return argument.isEmpty() ? QStringLiteral(".") : argument;
}

} // namespace

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
    return status == exitDone ? saved(arguments[2], campaign.saveTo(arguments[2])) : status;
}
