// Creatures, artifacts, heroes, skills, spells and resources. Most of these tables have two
// layers: a text table of the archives, and entries of the table file that add to it or replace
// a name under their number.
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"
#include "gamedata/table_text.h"

#include <algorithm>
#include <array>

using table_text::Entry;

namespace {

// Rows of the tables of creatures and artifacts that have fewer columns are no rows of theirs.
constexpr int traitColumns = 12;

// Creatures that are never named and that no list offers.
constexpr std::array<unsigned, 11> leftOutCreatures = {122, 124, 126, 128, 145, 146,
                                                       147, 148, 149, 150, 152};

// The narrower list of creatures that don't cross over.
constexpr std::array<unsigned, 9> notCrossingCreatures = {122, 124, 126, 128, 145,
                                                          146, 147, 148, 149};

constexpr unsigned baseCreatures = 150;
constexpr unsigned baseArtifacts = 147;

constexpr int unnamedSpell = 57;
constexpr int spellCount = 70;
constexpr int resourceCount = 7;

struct Range
{
    unsigned first;
    unsigned last;
};

// Display order: by town, within it by level.
constexpr std::array<Range, 33> creatureOrder = {{
    {0, 101},   {104, 107}, {102, 103}, {108, 111}, {118, 119}, {112, 112}, {127, 127},
    {115, 115}, {123, 123}, {114, 114}, {129, 129}, {113, 113}, {125, 125}, {120, 121},
    {130, 131}, {153, 158}, {151, 151}, {159, 166}, {138, 138}, {171, 185}, {139, 140},
    {143, 143}, {169, 169}, {141, 142}, {137, 137}, {167, 167}, {170, 170}, {116, 116},
    {144, 144}, {168, 168}, {117, 117}, {136, 136}, {132, 135},
}};

template<std::size_t Size>
bool contains(const std::array<unsigned, Size> &numbers, unsigned number)
{
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

void addEntryNames(std::map<int, QString> &target, const char *kind, int string,
                   QTextCodec *textCodec)
{
    for (const Entry &entry : table_text::entriesOf({kind})) {
        if (entry.hasTableId())
            target[entry.id()] = entry.text(string, textCodec);
    }
}

} // namespace

unsigned getCreatureCount(QStringList &lines)
{
    table_text::dropFirst(lines, 2);
    unsigned count = 0;
    table_text::forEachName(lines, traitColumns, [&count](int, const QString &) { ++count; });
    return count + unsigned(table_text::entriesOf({"monst"}).size());
}

bool monsterIsGoodForCrossoverList(unsigned creature)
{
    return !contains(notCrossingCreatures, creature);
}

void EditorData::initCreatures(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("CRTRAITS.TXT"), textCodec);

    table_text::dropFirst(lines, 2);
    const auto isLeftOut = [](int number) { return contains(leftOutCreatures, unsigned(number)); };

    table_text::forEachName(lines, traitColumns, [&](int row, const QString &name) {
        if (!isLeftOut(row))
            creatures[row] = name;
    });

    nCreatures = baseCreatures;
    for (const Entry &entry : table_text::entriesOf({"monst"})) {
        nCreatures = std::min(nCreatures + 1, unsigned(limits::tableId) + 1);
        if (entry.hasTableId() && !isLeftOut(entry.id()))
            creatures[entry.id()] = entry.text(3, textCodec);
    }

    creature_ordering.clear();
    for (const Range &range : creatureOrder) {
        for (unsigned number = range.first; number <= range.last; ++number)
            creature_ordering.push_back(number);
    }
}

void EditorData::initArtifacts(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("artraits.txt"), textCodec);
    table_text::dropFirst(lines, 2);
    table_text::dropLast(lines, 2);
    table_text::forEachName(lines, traitColumns,
                            [](int row, const QString &name) { artifacts[row] = name; });

    // The last entry decides the width of an artifact array, even if it isn't the highest: kept,
    // campaign files depend on it. An entry without a sane number decides nothing.
    nArtifacts = baseArtifacts;
    for (const Entry &entry : table_text::entriesOf({"art"})) {
        if (!entry.hasTableId())
            continue;
        artifacts[entry.id()] = entry.text(1, textCodec);
        nArtifacts = unsigned(entry.id()) + 1;
    }
}

void EditorData::initHeroes(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("HOTRAITS.TXT"), textCodec);
    table_text::dropFirst(lines, 2);
    table_text::dropLast(lines, 1);
    table_text::forEachName(lines, 1, [](int row, const QString &name) { heroes[row] = name; });
    addEntryNames(heroes, "hero", 6, textCodec);
}

void EditorData::initResourceInfo(QTextCodec *textCodec)
{
    const QStringList lines = readTxtFile(QStringLiteral("RESTYPES.txt"), textCodec);
    table_text::forEachRow(lines, [](int row, const QString &line) {
        if (row < resourceCount)
            resources[row] = line;
    });
}

void EditorData::readSkills(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("SSTRAITS.txt"), textCodec);
    table_text::dropFirst(lines, 2);
    table_text::dropLast(lines, 1);
    table_text::forEachName(lines, 1,
                            [](int row, const QString &name) { secondarySkills[row] = name; });
    addEntryNames(secondarySkills, "secskill", 1, textCodec);
}

void EditorData::readSpells(QTextCodec *textCodec)
{
    QStringList lines = readTxtFile(QStringLiteral("SPTRAITS.txt"), textCodec);
    table_text::dropFirst(lines, 4);
    table_text::dropLast(lines, 1);

    int spell = 0;
    for (const QString &line : qAsConst(lines)) {
        if (spell >= spellCount)
            break;
        if (table_text::isBlank(line) ||
            line.startsWith(QLatin1String("Combat Spells"), Qt::CaseSensitive))
            continue;
        if (spell != unnamedSpell)
            spells[spell] = table_text::columns(line).constFirst();
        ++spell;
    }
}
