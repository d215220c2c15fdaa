// What the sample game's table file (ravn.dat) says, apart from the campaign maps: additions to
// the text tables, lists of pictures and tracks, and entries that only the game itself uses.
#pragma once

#include "tools/sample_game/campaign_writer.h"
#include "tools/sample_game/table_file_writer.h"

#include <QStringList>

#include <vector>

namespace sample {

// Additions to creatures, artifacts, heroes, skills and buildings.
std::vector<TableEntry> nameEntries();

// Movies and tracks, and the lists of pictures: one picture for each number of a movie, and the
// backgrounds of campaigns without a map.
std::vector<TableEntry> mediaEntries(const QStringList &moviePictures,
                                     const QStringList &backgrounds);

// Kinds that no editor reads, with blobs, integers and names without a number.
std::vector<TableEntry> gameOnlyEntries();

// How wide the bit arrays are that these tables lead to.
TableSizes tableSizes();

} // namespace sample
