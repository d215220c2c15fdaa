// The files that translators work on, by their formats, and what of a campaign goes into them.
#pragma once

#include "document/translation/translation_unit.h"

#include <QByteArray>
#include <QStringList>

#include <optional>

class CampaignData;

struct TranslationFormat
{
    const char *name;
    const char *endings; // of files, parted by blanks, without their dots
    QByteArray (*write)(const std::vector<TranslationUnit> &units);
    TranslationReading (*read)(const QByteArray &bytes);
};

// The format of this name; null if there is none.
const TranslationFormat *translationFormat(const QString &name);
// The one that a file's name tells by its ending; null if it tells none.
const TranslationFormat *translationFormatOfFile(const QString &path);
QStringList translationFormatNames();

struct TranslationExport
{
    std::vector<TranslationUnit> units;
    QString error; // with the id of a text that no file can hold; empty if all is well
};

// A campaign's texts without their translations. Empty ones are left out; lines end with a line
// feed, whatever the campaign has.
TranslationExport unitsOf(const CampaignData &campaign);

// The text with line feeds alone as line ends.
QString withLineFeeds(const QString &text);

// What in a text can't stand in a translators' file, or nothing if it can: bytes that are no text
// in the campaign's encoding, and control characters.
std::optional<QString> faultOfText(const QString &text);
