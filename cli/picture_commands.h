// Commands that draw a campaign map or a part of it.
#pragma once

#include "cli/command.h"

ExitStatus runRender(const QStringList &arguments);
ExitStatus runRegion(const QStringList &arguments);
