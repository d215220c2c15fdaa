// The buildings that a starting bonus can hand out, by town and by building number. The game keeps
// no such list: it is put together from three text tables and the table file.
#include "gamedata/editor_data.h"
#include "gamedata/table_text.h"

#include <QDebug>

#include <algorithm>
#include <array>

using table_text::Entry;

namespace {

constexpr int anyTown = -1;
constexpr int lastTown = 10;
constexpr int hordeTown = 8;
constexpr int dwellingTiers = 7;
constexpr int dwellingsPerTown = 2 * dwellingTiers; // the basic ones, then the upgraded ones
constexpr int textTableTowns = 9;                   // towns whose dwellings stand in the text table

// Towns from -1 to 10 as bits 0 to 11.
constexpr unsigned townBit(int town)
{
    return 1U << unsigned(town + 1);
}

constexpr unsigned noTown = 0;
constexpr unsigned allTowns = (1U << unsigned(lastTown + 2)) - 1;
constexpr unsigned onlyAnyTown = townBit(anyTown);
constexpr unsigned townsOf10 =
    townBit(anyTown) | townBit(2) | townBit(5) | townBit(8) | townBit(10);
constexpr unsigned townsOf16 =
    townBit(anyTown) | townBit(0) | townBit(4) | townBit(7) | townBit(8) | townBit(9) | townBit(10);

enum class Table
{
    Neutral,
    Special,
    Dwelling
};

// A name that several towns take from one of the text tables.
struct SharedBuilding
{
    int building;
    Table table;
    int row;
    unsigned towns;
};

constexpr std::array<SharedBuilding, 18> sharedBuildings = {{
    {0, Table::Neutral, 11, allTowns},
    {1, Table::Neutral, 12, allTowns},
    {2, Table::Neutral, 13, allTowns},
    {3, Table::Neutral, 7, allTowns},
    {4, Table::Neutral, 8, allTowns},
    {6, Table::Neutral, 5, allTowns},
    {7, Table::Neutral, 15, allTowns},
    {8, Table::Neutral, 14, allTowns},
    {9, Table::Special, 72, allTowns},
    {10, Table::Special, 73, townsOf10},
    {16, Table::Neutral, 6, townsOf16},
    {24, Table::Special, 74, onlyAnyTown},
    {27, Table::Special, 75, onlyAnyTown},
    {30, Table::Special, 77, onlyAnyTown}, // row 76 is nobody's
    {33, Table::Special, 78, onlyAnyTown},
    {36, Table::Special, 79, onlyAnyTown},
    // Dwellings without a town: the game names seven of each kind, the last one stays.
    {22, Table::Dwelling, 132, onlyAnyTown},
    {23, Table::Dwelling, 139, onlyAnyTown},
}};

constexpr int firstGuild = 11;
constexpr int anyTownGuildLevels = 5;

// Building numbers of the dwellings, tiers 1 to 7 basic and then upgraded. Tiers 1 to 5 have a
// third number between, their horde building.
constexpr std::array<int, dwellingsPerTown> dwellingBuildings = {22, 25, 28, 31, 34, 37, 39,
                                                                 23, 26, 29, 32, 35, 38, 40};

enum class Names
{
    Special,
    Own
};

// A building of one town. Its name is a row of the special table or an element of the town's own
// list in the table file.
struct TownBuilding
{
    int town;
    int building;
    Names names;
    int row;
};

constexpr std::array<TownBuilding, 58> townBuildings = {{
    {anyTown, 17, Names::Special, 80},

    {0, 17, Names::Special, 6},
    {0, 18, Names::Special, 0},
    {0, 19, Names::Special, 5},
    {0, 20, Names::Special, 4},
    {0, 30, Names::Special, 1},

    {1, 17, Names::Special, 15},
    {1, 18, Names::Special, 8},
    {1, 19, Names::Special, 11},
    {1, 20, Names::Special, 12},
    {1, 27, Names::Special, 9},
    {1, 36, Names::Special, 13},

    {2, 17, Names::Special, 23},
    {2, 18, Names::Special, 21},
    {2, 19, Names::Special, 22},
    {2, 20, Names::Special, 20},
    {2, 27, Names::Special, 18},

    {3, 17, Names::Special, 32},
    {3, 18, Names::Special, 27},
    {3, 19, Names::Special, 28},
    {3, 20, Names::Special, 29},
    {3, 30, Names::Special, 30},

    {4, 17, Names::Special, 40},
    {4, 18, Names::Special, 34},
    {4, 19, Names::Special, 38},
    {4, 20, Names::Special, 39},
    {4, 24, Names::Special, 35},

    {5, 17, Names::Special, 48},
    {5, 18, Names::Special, 45},
    {5, 19, Names::Special, 46},
    {5, 20, Names::Special, 47},
    {5, 24, Names::Special, 43},

    {6, 17, Names::Special, 56},
    {6, 18, Names::Special, 50},
    {6, 19, Names::Special, 53},
    {6, 20, Names::Special, 54},
    {6, 21, Names::Special, 55},
    {6, 24, Names::Special, 51},

    {7, 17, Names::Special, 64},
    {7, 18, Names::Special, 58},
    {7, 19, Names::Special, 62},
    {7, 20, Names::Special, 63},
    {7, 24, Names::Special, 59},

    {8, 17, Names::Special, 71},
    {8, 18, Names::Special, 70},
    {8, 19, Names::Own, 0},

    {9, 17, Names::Own, 9},
    {9, 18, Names::Own, 5},
    {9, 19, Names::Own, 6},
    {9, 20, Names::Own, 4},
    {9, 27, Names::Own, 1},
    {9, 33, Names::Own, 7},

    {10, 17, Names::Own, 9},
    {10, 18, Names::Own, 4},
    {10, 19, Names::Own, 5},
    {10, 20, Names::Own, 6},
    {10, 16, Names::Own, 3}, // replaces the shared name
    {10, 30, Names::Own, 1},
}};

// The names as the files give them, before they are dealt out to the towns.
struct Sources
{
    std::map<int, QString> neutral;
    std::map<int, QString> special;
    std::map<int, QString> dwellings;
    std::map<int, QStringList> townDwellings; // by town, in the file's order
    std::map<int, QStringList> townSpecials;  // by town

    const std::map<int, QString> &table(Table which) const
    {
        switch (which) {
        case Table::Neutral:
            return neutral;
        case Table::Special:
            return special;
        case Table::Dwelling:
            break;
        }
        return dwellings;
    }
};

void readTextTables(Sources &sources, QTextCodec *textCodec)
{
    QStringList lines = EditorData::readTxtFile(QStringLiteral("BldgNeut.TXT"), textCodec);
    table_text::dropLast(lines, 1);
    int neutralRow = 0;
    for (const QString &line : qAsConst(lines)) {
        const QStringList columns = table_text::columns(line);
        if (!table_text::isBlank(line) && columns.size() == 2)
            sources.neutral[neutralRow++] = columns.first();
    }

    lines = EditorData::readTxtFile(QStringLiteral("BldgSpec.txt"), textCodec);
    table_text::forEachName(
        lines, 1, [&sources](int row, const QString &name) { sources.special[row] = name; });

    lines = EditorData::readTxtFile(QStringLiteral("Dwelling.txt"), textCodec);
    table_text::forEachName(lines, 1, [&sources](int row, const QString &name) {
        sources.dwellings[row] = name;
        if (row < textTableTowns * dwellingsPerTown)
            sources.townDwellings[row / dwellingsPerTown].append(name);
    });
}

void readTableFile(Sources &sources, QTextCodec *textCodec)
{
    for (const Entry &entry : table_text::entriesOf({"casdwcost"}))
        sources.townDwellings[entry.id()] = entry.lines(7, textCodec);

    // Walked together: what comes first in the file decides what is appended to and what replaced.
    for (const Entry &entry : table_text::entriesOf({"casspcost", "firebrdhorde"})) {
        if (entry.is("casspcost"))
            sources.townSpecials[entry.id()] = entry.lines(7, textCodec);
        else
            sources.townSpecials[hordeTown].append(entry.text(5, textCodec));
    }
}

std::map<int, QString> sharedByTown(int town, const Sources &sources)
{
    std::map<int, QString> buildings;
    for (const SharedBuilding &shared : sharedBuildings) {
        if (shared.towns & townBit(town))
            buildings[shared.building] = nameOf(sources.table(shared.table), shared.row);
    }

    const int guildLevels = town == anyTown ? anyTownGuildLevels : GetMaxGuildLevel(town);
    for (int level = 0; level < guildLevels; ++level)
        buildings[firstGuild + level] = nameOf(sources.neutral, level);

    if (town != anyTown) {
        const auto names = sources.townDwellings.find(town);
        for (std::size_t i = 0; i < dwellingBuildings.size(); ++i)
            buildings[dwellingBuildings[i]] =
                names == sources.townDwellings.end() ? QString() : names->second.value(int(i));
    }
    return buildings;
}

void addTownBuildings(std::map<int, std::map<int, QString>> &buildings, const Sources &sources)
{
    for (const TownBuilding &own : townBuildings) {
        buildings[own.town][own.building] = own.names == Names::Special
                                                ? nameOf(sources.special, own.row)
                                                : textOf(sources.townSpecials, own.town, own.row);
    }
}

// Whether a town has a building: the towns of the set do, or all but these.
struct ValidityRule
{
    unsigned building;
    bool inTheSet;
    unsigned towns;
};

constexpr std::array<ValidityRule, 13> validityRules = {{
    {10, true, townBit(2) | townBit(5) | townBit(8) | townBit(10)},
    {14, false, townBit(6) | townBit(7)},
    {15, false, townBit(0) | townBit(6) | townBit(7) | townBit(9)},
    {16, true, noTown},
    {18, true, noTown},
    {19, true, noTown},
    {20, true, noTown},
    {21, true, noTown},
    {24, true, noTown},
    {27, true, noTown},
    {30, true, noTown},
    {33, true, noTown},
    {36, true, noTown},
}};

} // namespace

void EditorData::readBuildings(QTextCodec *textCodec)
{
    Sources sources;
    readTextTables(sources, textCodec);
    readTableFile(sources, textCodec);
    for (int town = anyTown; town <= lastTown; ++town)
        buildings[town] = sharedByTown(town, sources);
    addTownBuildings(buildings, sources);
}

int GetMaxGuildLevel(int town)
{
    switch (town) {
    case 0:
    case 9:
        return 4;
    case 6:
    case 7:
        return 3;
    default:
        return 5;
    }
}

bool BuildingIsValidForTown(unsigned building, unsigned town)
{
    qDebug() << "IsValid: " << building << town;
    const auto *const rule =
        std::find_if(validityRules.begin(), validityRules.end(),
                     [building](const ValidityRule &each) { return each.building == building; });
    if (rule == validityRules.end())
        return true;
    const bool listed = town <= unsigned(lastTown) && (rule->towns & townBit(int(town))) != 0;
    return listed == rule->inTheSet;
}
