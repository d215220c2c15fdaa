// The maps behind a campaign's header: their bytes, and the headers inside them.
#pragma once

#include "document/campaign_data.h"

#include <QFile>

// Reads the map of every scenario whose mapSize isn't 0, one behind the other from `offset` on.
// compressedMap gets what the file still holds of it, and mapSize follows; mapHeader is set for
// every map of which anything is there, with zeros where it can't be unpacked. False if the maps
// are too large to be held, or if the file is a pipe or can't be read there.
bool readEmbeddedMaps(QFile &file, qint64 offset, std::vector<ScenarioData> &scenarios);

// Whether maps of these sizes, one behind the other, are none too large to be held
// (limits::mapBytes) nor all together (limits::campaignMapBytes). Of them `there` bytes are there.
bool canBeHeld(const std::vector<ScenarioData> &scenarios, qint64 there);
