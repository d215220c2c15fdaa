// Commands that carry texts and maps between a campaign and files of their own.
#pragma once

#include "cli/command.h"

ExitStatus runExportTexts(const QStringList &arguments);
ExitStatus runImportTexts(const QStringList &arguments);
ExitStatus runExportMaps(const QStringList &arguments);
ExitStatus runRefreshMaps(const QStringList &arguments);
