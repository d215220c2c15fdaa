// The pictures that belong to no campaign map, as records for the archives.
#pragma once

#include "tools/sample_game/game_texts.h"

#include <QVector>

namespace sample {

QVector<NamedFile> moviePictures(int count);
QVector<NamedFile> backgroundPictures(); // one of them a 32-bit record
NamedFile dashPattern();

// An earlier one, for an archive of lower precedence: light where the true one is dark.
NamedFile outdatedDashPattern();

// Files of the game that an editor passes over: a sprite, a mask, a sound.
QVector<NamedFile> otherFiles();

} // namespace sample
