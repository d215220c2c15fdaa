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
        return cannotRead(path, *failure);
    const std::optional<QString> error = campaign.readCampaign(&file);
    return error ? failed(*error) : exitDone;
}

ExitStatus saved(const QString &path, const SaveResult &result)
{
    return result.ok ? exitDone : cannotWrite(path, result.error);
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
    return saved(arguments[1], campaign.saveTo(arguments[1]));
}
