// The text tables of the towns' buildings.
#include "tools/sample_game/game_texts.h"
#include "tools/sample_game/names.h"

namespace sample {

namespace {

QStringList withText(const QStringList &names, const QString &text)
{
    QStringList rows;
    for (const QString &name : names)
        rows += name + QLatin1Char('\t') + text.arg(name);
    return rows;
}

// A row counts if it has exactly two columns; the headings have one or three.
QByteArray neutralTable()
{
    QStringList rows = {QStringLiteral("Buildings of every town")};
    rows += withText(names::neutralBuildings(), QStringLiteral("Every town can build the %1."));
    rows.insert(6, QStringLiteral("Name\tText\tRemark"));
    return textTable(rows);
}

QByteArray specialTable()
{
    constexpr int kRowsPerTown = 8;
    const QStringList named =
        withText(names::specialBuildings(), QStringLiteral("The town is proud of its %1."));
    QStringList rows;
    for (int i = 0; i < named.size(); ++i) {
        if (i > 0 && i % kRowsPerTown == 0)
            rows += QString(); // blank lines don't count
        rows += named.at(i);
    }
    return textTable(rows);
}

} // namespace

QVector<NamedFile> buildingTexts()
{
    return {{"BldgNeut.TXT", neutralTable()},
            {"BldgSpec.txt", specialTable()},
            {"Dwelling.txt", textTable(withText(names::dwellings(),
                                                QStringLiteral("Creatures gather at the %1.")))}};
}

} // namespace sample
