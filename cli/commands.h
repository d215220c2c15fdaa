// The commands of cmped-cli.
#pragma once

#include "cli/command.h"

#include <QString>

// The command of this name; null if there is none.
const Command *findCommand(const QString &name);

// What --help prints: the way to call the program, its options and every command.
QString helpText(const QString &options);
