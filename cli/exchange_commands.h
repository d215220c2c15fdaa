// Commands that carry maps between a campaign and files of their own.
#pragma once

#include "cli/command.h"

ExitStatus runExportMaps(const QStringList &arguments);
ExitStatus runRefreshMaps(const QStringList &arguments);
