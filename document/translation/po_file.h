// Texts for translators as a PO file, which gettext's tools and editors for it know: the id is an
// entry's context (msgctxt), and what the translator is told stands in an extracted comment.
#pragma once

#include "document/translation/translation_unit.h"

#include <QByteArray>

// The file, in UTF-8. Its texts hold no carriage returns, nor anything that is no text.
QByteArray writtenAsPo(const std::vector<TranslationUnit> &units);

// Takes any bytes. Fuzzy entries are unfinished, obsolete ones are passed over. An entry without
// a context has the id that "#. ts-id" names, as Qt's tools write it, or none.
TranslationReading readPo(const QByteArray &bytes);
