// Texts for translators as a table with the columns id, context, source and translation, for
// spreadsheets: comma-separated values (RFC 4180) with line ends CR LF, in UTF-8 behind a byte
// order mark, by which spreadsheets know it.
#pragma once

#include "document/translation/translation_unit.h"

#include <QByteArray>

QByteArray writtenAsCsv(const std::vector<TranslationUnit> &units);

// Takes any bytes, and tables as spreadsheets of all countries write them: parted by commas,
// semicolons or tabulators, with any line ends, the columns in any order and with others among
// them, in UTF-8 or behind another byte order mark.
TranslationReading readCsv(const QByteArray &bytes);
