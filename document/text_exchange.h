// The texts of a campaign's scenarios as a file of lines, for translators. The grammar stands in
// text_exchange.cpp.
//
// The file is in the locale's codec, and a campaign's bytes that are no text in it stay as they
// are. A file that begins with a byte order mark is read in the encoding that the mark tells.
#pragma once

#include <QByteArray>
#include <QString>

class CampaignData;
class QFile;
class QTextStream;

// A text as it was before it became one line: every tabulator is a line feed again.
QString ReadText(const QString &text);
// Writes a text as one line, with tabulators in the place of line feeds.
void WriteText(QTextStream &stream, QString &text);

// What the file of this campaign's texts holds.
QByteArray exportedTexts(CampaignData &campaign);

// Takes the texts of a file that is open for reading over into the campaign. Answers false if it
// isn't a file of this campaign's texts, or can't be read to its end. Then only those prologues
// and epilogues are new that stood before the fault: the campaign gets new records for them, so
// that nobody else who holds the old ones sees a change.
bool importTextsFrom(QFile &file, CampaignData &campaign);
