// The text tables of creatures, artifacts, heroes, skills and spells, and old ones that they hide.
#include "tools/sample_game/game_encoding.h"
#include "tools/sample_game/game_texts.h"
#include "tools/sample_game/names.h"
#include "tools/sample_game/noise.h"

namespace sample {

namespace {

constexpr int kTownCreatures = 14;
constexpr int kCreatureNumbers = 24; // columns of numbers behind a creature's two names
constexpr int kSlots = 18;           // places where an artifact can be worn

QString cells(const QStringList &columns)
{
    return columns.join(QLatin1Char('\t'));
}

QString numbers(Noise &noise, int count, int below)
{
    QStringList columns;
    for (int i = 0; i < count; ++i)
        columns += QString::number(noise.below(below));
    return cells(columns);
}

QByteArray creatureTable()
{
    Noise noise(1);
    QStringList rows = {QStringLiteral("Creature traits\t\tCost\t\t\t\t\t\t\tValue"),
                        QStringLiteral("Singular\tPlural\tPrice per resource\tFight value")};
    const QStringList names = names::creatures();
    const QStringList towns = names::towns();
    for (int i = 0; i < names.size(); ++i) {
        // Headings have too few columns to be taken for a creature.
        if (i % kTownCreatures == 0 && i / kTownCreatures < 8)
            rows += {QString(), towns.at(i / kTownCreatures)};
        rows += cells({names.at(i), names.at(i) + QStringLiteral(" (many)"),
                       numbers(noise, kCreatureNumbers, 60)});
    }
    return textTable(rows);
}

QByteArray artifactTable()
{
    const QStringList artifacts = names::artifacts();
    Noise noise(2);
    QStringList rows = {QStringLiteral("Artifact traits\t\tSlots"),
                        QStringLiteral("Name\tPrice\tOne column per slot\tClass\tDescription")};
    for (const QString &name : artifacts) {
        const int worn = noise.below(kSlots);
        QStringList columns = {name, QString::number(500 + 250 * noise.below(60))};
        for (int slot = 0; slot < kSlots; ++slot)
            columns += slot == worn ? QStringLiteral("x") : QString();
        columns += {QStringLiteral("T"), QStringLiteral("Nobody knows what it does until worn.")};
        rows += cells(columns);
    }
    rows += QString(); // two lines at the end are none of the artifacts'
    return textTable(rows);
}

QByteArray heroTable(const QStringList &heroes)
{
    Noise noise(3);
    QStringList rows = {QStringLiteral("Hero traits\tArmy"),
                        QStringLiteral("Name\tLow\tHigh\tLow\tHigh\tLow\tHigh")};
    for (const QString &hero : heroes)
        rows += cells({hero, numbers(noise, 6, 30)});
    return textTable(rows);
}

QByteArray skillTable()
{
    const QStringList skills = names::skills();
    QStringList rows = {QStringLiteral("Secondary skills\tText"),
                        QStringLiteral("Name\tBasic\tAdvanced\tExpert")};
    for (const QString &skill : skills) {
        rows += cells({skill, skill + QStringLiteral(" helps a little."),
                       skill + QStringLiteral(" helps a good deal."),
                       skill + QStringLiteral(" decides the day.")});
    }
    return textTable(rows);
}

QStringList spellRows(const QStringList &spells, Noise &noise)
{
    QStringList rows;
    for (const QString &spell : spells)
        rows += cells({spell, spell.left(8), numbers(noise, 9, 25)});
    return rows;
}

QByteArray spellTable()
{
    Noise noise(4);
    QStringList rows = {QStringLiteral("Spell traits"), QStringLiteral("Name\tShort\tLevel\tCost"),
                        QString(), QStringLiteral("Adventure Spells\tName")};
    rows += spellRows(names::adventureSpells(), noise);
    rows += {QString(), QStringLiteral("Combat Spells\tName\tLevel\tCost")};
    rows += spellRows(names::combatSpells(), noise);
    rows += {QString(), QStringLiteral("Creature Abilities\tName")};
    rows += spellRows(names::creatureSpells(), noise);
    return textTable(rows);
}

// Rows 27 and 28 name two kinds of resource bonus; the rest is small talk of the game.
QByteArray smallTalkTable()
{
    QStringList rows = names::lines(R"(
Monday
Tuesday
Wednesday
Thursday
Friday
Saturday
Sunday
Month of the Heron
Month of the Newt
Month of the Yak
Month of the Gull
Month of the Owl
Week of the Reed
Week of the Kiln
Week of the Moth
Week of the Drum
Good morning, your lordship
The granaries are full
The granaries are empty
The ferries are late
Taxes came in early
A rider came in the night
Nothing happened, and all were glad
Rain is coming
Snow is coming
Guests are coming
The café on the square has reopened
Timber and Bog Iron
Amber, Moonglass and Dyes
All resources
)");
    return textTable(rows);
}

} // namespace

QByteArray textTable(const QStringList &rows)
{
    return gameEncoded(rows.join(QStringLiteral("\r\n")) + QStringLiteral("\r\n"));
}

QVector<NamedFile> traitTexts()
{
    const QStringList primarySkills = {QStringLiteral("Attack"), QStringLiteral("Defense"),
                                       QStringLiteral("Spell Power"), QStringLiteral("Knowledge")};
    // The row behind the seven resources isn't one of them.
    const QStringList resources = names::resources() << QStringLiteral("Nothing");
    return {{"CRTRAITS.TXT", creatureTable()},
            {"HOTRAITS.TXT", heroTable(names::heroes())},
            {"artraits.txt", artifactTable()},
            {"SPTRAITS.txt", spellTable()},
            {"SSTRAITS.txt", skillTable()},
            {"RESTYPES.txt", textTable(resources)},
            {"PriSkill.txt", textTable(primarySkills)},
            {"JKTEXT.txt", smallTalkTable()}};
}

QVector<NamedFile> outdatedTexts()
{
    QStringList heroes = names::heroes();
    for (QString &hero : heroes)
        hero += QStringLiteral(" (old)");
    QStringList dwellings = names::dwellings();
    dwellings.replaceInStrings(QStringLiteral(" "), QStringLiteral(" old "));
    QStringList skills;
    for (int i = 0; i < 4; ++i)
        skills += QStringLiteral("Primary Skill (old)");
    return {{"hotraits.txt", heroTable(heroes)},
            {"PRISKILL.TXT", textTable(skills)},
            {"dwelling.txt", textTable(dwellings)}};
}

} // namespace sample
