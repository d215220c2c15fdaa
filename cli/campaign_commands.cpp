#include "cli/campaign_commands.h"

#include "cli/campaign_json.h"
#include "cli/json_writer.h"
#include "cli/standard_output.h"
#include "document/campaign_data.h"
#include "gamedata/game_loading.h"
#include "gamedata/readable_file.h"
#include "gamedata/report.h"

#include <QFile>

ExitStatus readCampaignFile(const QString &path, CampaignData &campaign)
{
    QFile file(path);
    if (const std::optional<QString> failure = openToRead(file))
        return failed(mainWindowText("Cannot read file %1:\n%2.").arg(path, *failure));
    const std::optional<QString> error = campaign.readCampaign(&file);
    return error ? failed(*error) : exitDone;
}

ExitStatus runDump(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    StandardOutput output;
    JsonWriter json(output);
    writeCampaign(json, campaign);
    return output.finish();
}

ExitStatus runResave(const QStringList &arguments)
{
    loadGame();
    CampaignData campaign;
    if (const ExitStatus status = readCampaignFile(arguments[0], campaign))
        return status;
    const SaveResult result = campaign.saveTo(arguments[1]);
    return result.ok ? exitDone : cannotWrite(arguments[1], result.error);
}
