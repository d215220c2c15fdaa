// Commands that draw a campaign map or a part of it.
#pragma once

#include "cli/command.h"

// The option "size" makes the picture smaller: no side is longer than so many pixels then.
ExitStatus runRender(const QStringList &arguments, const CommandOptions &options);
ExitStatus runRegion(const QStringList &arguments);
