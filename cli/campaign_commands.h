// Commands on a campaign file.
#pragma once

#include "cli/command.h"

class CampaignData;
struct SaveResult;

// Reads a campaign, telling a failure as the editor's Open does. The game is loaded before.
ExitStatus readCampaignFile(const QString &path, CampaignData &campaign);

// How writing a file went, told if it didn't go well.
ExitStatus saved(const QString &path, const SaveResult &result);

ExitStatus runDump(const QStringList &arguments);
ExitStatus runResave(const QStringList &arguments);
