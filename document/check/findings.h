// What a search for damage finds.
#pragma once

#include <QString>

#include <vector>

struct Finding
{
    QString where; // "file", "header", "campaign...", "scenario.3..."; numbers count from 1
    QString what;  // in English, one line
};

using Findings = std::vector<Finding>;

// "scenario.3", and ".map" behind it if that is the part.
inline QString placeOf(unsigned int scenario, const char *part = nullptr)
{
    const QString place = QStringLiteral("scenario.%1").arg(scenario + 1);
    return part ? place + QLatin1Char('.') + QLatin1String(part) : place;
}
