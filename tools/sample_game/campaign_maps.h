// The sample game's campaign maps: painted, stored as pictures, and told in the table file.
//
// The layout text of a map, lines ended by CR LF, those with "#" in front left out by readers:
//   kind (0 ready-made pictures, 1 computed ones, 2 for the game alone)
//   count of regions
//   x y, a line for each region
//   for each region its name and, by kind,
//     0: three lines (unselected, selected, unused) of eight picture names, one a colour
//     1: the names of the glow, the border and the fill mask, a line each
#pragma once

#include "tools/sample_game/game_texts.h"
#include "tools/sample_game/table_file_writer.h"

#include <QVector>

namespace sample {

struct CampaignMap
{
    TableEntry entry;
    QVector<NamedFile> pictures;
    int regionCount = 0;
    bool readyMade = false; // its regions' looks are pictures, many of them
};

constexpr int kDefaultMap = 24;
constexpr int kReadyMadeMap = 3;

// In the order of the table file, which isn't that of their numbers.
std::vector<CampaignMap> campaignMaps();

} // namespace sample
