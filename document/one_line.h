// A text from a file as it may stand in a line that tells people of it.
#pragma once

#include <QString>

// Its first letters, with a question mark for each that would break the line or is no text.
QString oneLine(const QString &text);
