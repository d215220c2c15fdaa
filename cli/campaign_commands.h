// Commands on a campaign file.
#pragma once

#include "cli/command.h"

class CampaignData;

// Reads a campaign, telling a failure as the editor's Open does. The game is loaded before.
ExitStatus readCampaignFile(const QString &path, CampaignData &campaign);

ExitStatus runDump(const QStringList &arguments);
ExitStatus runResave(const QStringList &arguments);
