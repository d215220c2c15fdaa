// The command that searches campaigns and maps for damage.
#pragma once

#include "cli/command.h"

ExitStatus runCheck(const QStringList &arguments);
