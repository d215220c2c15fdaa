// A campaign file searched for what the editor would drop or change without a word, and for what
// is damaged. Nothing is changed.
#pragma once

#include "document/check/findings.h"

#include <optional>

class QFile;

// Reads a campaign from a file that is open for reading. Answers the message of the editor's Open
// if it can't be read, else nothing; what was found stands in `findings` then, always in the same
// order.
std::optional<QString> checkCampaign(QFile &file, Findings &findings);
