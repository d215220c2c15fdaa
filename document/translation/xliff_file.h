// Texts for translators as an XLIFF 1.2 file, which Qt's Linguist and other tools for translators
// know: a trans-unit for each text, and in its note what the translator is told.
#pragma once

#include "document/translation/translation_unit.h"

#include <QByteArray>

// The file, in UTF-8. Its texts hold no carriage returns, nor anything that XML can't hold.
QByteArray writtenAsXliff(const std::vector<TranslationUnit> &units);

// Takes any bytes. A target whose state begins with "needs-", or is "new", is unfinished. A
// document type is refused, since with it come entities; and elements inside a text that aren't
// text, apart from marks around it.
TranslationReading readXliff(const QByteArray &bytes);
