// Invented names of places.
#pragma once

#include "tools/sample_game/art/art.h"

namespace art {

// So many different names in the mood of the theme; the last one is a lighthouse's.
QStringList inventNames(Theme theme, int count, quint32 seed);

} // namespace art
