// A campaign file's own bytes against what the editor makes of them: its packing, what stands
// behind the records and the maps, and values of the records that saving would change.
#pragma once

#include "document/check/findings.h"

class CampaignData;
class QFile;

// The file is open for reading, and the campaign was read from it.
void checkRecords(QFile &file, const CampaignData &campaign, Findings &findings);
