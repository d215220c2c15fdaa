// Commands on the game's archives.
#pragma once

#include "cli/command.h"

ExitStatus runList(const QStringList &arguments);
ExitStatus runExtract(const QStringList &arguments);
