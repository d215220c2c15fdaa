// Units of translators' files in the tests of their formats.
#pragma once

#include "document/translation/translation_unit.h"

#include <QByteArray>
#include <QStringList>

namespace translation_samples {

// Each unit as "id|source|translation", with a "?" behind it if it is unfinished.
inline QStringList lines(const std::vector<TranslationUnit> &units)
{
    QStringList list;
    for (const TranslationUnit &unit : units) {
        list << unit.id + '|' + unit.source + '|' + unit.translation + (unit.unfinished ? "?" : "");
    }
    return list;
}

inline const std::vector<TranslationUnit> someUnits{
    {"campaign.name", "The campaign's name", "Ember Road", "", false},
    {"scenario.3.region.text", "Scenario 3 (Fen): right-click text",
     QString::fromUtf8("\"Beware\"\n\tof <wolves> & \\owls\\, ёж; 🏰\n"), "Gib <acht>\nWölfe",
     false},
    {"scenario.3.prologue.1", "Scenario 3 (Fen): prologue 1", "\n\nonce ", "\n", false},
};

constexpr char po[] = "po";
constexpr char xliff[] = "xliff";
constexpr char csv[] = "csv";

inline QByteArray inXliff(const QByteArray &units)
{
    return "<xliff version=\"1.2\"><file><body>" + units + "</body></file></xliff>";
}

inline QByteArray inUnit(const QByteArray &source, const QByteArray &rest = "")
{
    return inXliff("<trans-unit id=\"a\"><source>" + source + "</source>" + rest + "</trans-unit>");
}

} // namespace translation_samples
