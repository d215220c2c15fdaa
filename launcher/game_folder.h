// Where the launcher takes the game's folder from.
#pragma once

#include "launcher/launcher_options.h"

// Settles the game's folder: the one of the options, else the one that can be found, else the one
// that the user answers when asked, which is remembered. The library finds it in the environment
// then. False if there is none: a wrong folder is told on standard error, and whoever doesn't
// answer knows.
bool settleGameFolder(const LauncherOptions &options);
