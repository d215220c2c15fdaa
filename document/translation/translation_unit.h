// One text in a file for translators.
#pragma once

#include <QString>

#include <vector>

struct TranslationUnit
{
    QString id;              // document/text_catalogue's; may be anything in a file that was read
    QString context;         // for the translator's eyes; a reader leaves it empty
    QString source;          // its lines end with a line feed
    QString translation;     // empty: there is none
    bool unfinished = false; // its translator isn't sure of it
};

// What a reader answers: all units in their order, or in English what is wrong and in which line.
struct TranslationReading
{
    std::vector<TranslationUnit> units;
    QString error; // empty if all is well
};

// "line 12: " and what is wrong there.
inline TranslationReading unreadable(qint64 line, const QString &what)
{
    return {{}, QStringLiteral("line %1: %2").arg(QString::number(line), what)};
}
