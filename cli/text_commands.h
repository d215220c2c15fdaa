// Commands that carry a campaign's texts to translators and back.
#pragma once

#include "cli/command.h"

ExitStatus runExportTexts(const QStringList &arguments, const CommandOptions &options);
ExitStatus runImportTexts(const QStringList &arguments, const CommandOptions &options);
