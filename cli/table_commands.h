// The command that shows the game's tables.
#pragma once

#include "cli/command.h"

ExitStatus runTables(const QStringList &arguments);
