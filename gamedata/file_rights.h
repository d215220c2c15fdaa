// Whom a file is open to: its owner, group, mode and access list.
#pragma once

#include "gamedata/disk_file.h"

// Gives a new file the rights of the one that it shall replace, as far as the user may give them.
// Whom the old file was closed to the new one stays closed to. Answers 0, or the system's error
// number.
int copyRights(const DiskFile &file, const std::filesystem::path &oldPath, const struct stat &old);
