// Takes the input as the text tables of the archives and the strings of the table file, and makes
// one of the game's tables of it. The first byte chooses which.
#include "fuzz/made_tables.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"

#include <QTextCodec>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// With numbers that no table has room for, and an entry without one.
std::vector<MadeEntry> entries()
{
    return {{"monst150", {3}},   {"monst99999", {3}}, {"art200", {1}},       {"art99999", {1}},
            {"hero170", {6}},    {"hero99999", {6}},  {"secskill", {1}},     {"secskill30", {1}},
            {"casdwcost9", {7}}, {"casspcost9", {7}}, {"firebrdhorde", {5}}, {"casspcost8", {7}}};
}

using Reader = void (*)(QTextCodec *);

// The widths of a campaign's bit arrays follow from the entries' names alone, whatever the texts.
constexpr std::array<Reader, 9> readers{
    [](QTextCodec *codec) {
        EditorData::initCreatures(codec);
        const bool crossing = monsterIsGoodForCrossoverList(122);
        if (EditorData::nCreatures != 152 || crossing)
            abort();
    },
    [](QTextCodec *codec) {
        EditorData::initArtifacts(codec);
        if (EditorData::nArtifacts != 201)
            abort();
    },
    [](QTextCodec *codec) { EditorData::initHeroes(codec); },
    [](QTextCodec *codec) { EditorData::initResourceInfo(codec); },
    [](QTextCodec *codec) {
        EditorData::parseTextSimple(EditorData::primarySkills, QStringLiteral("PriSkill.txt"),
                                    codec, false);
    },
    [](QTextCodec *codec) {
        EditorData::parseTextSimple(EditorData::jktext, QStringLiteral("JKTEXT.txt"), codec, true);
    },
    [](QTextCodec *codec) { EditorData::readSkills(codec); },
    [](QTextCodec *codec) { EditorData::readSpells(codec); },
    [](QTextCodec *codec) {
        EditorData::readBuildings(codec);
        if (!BuildingIsValidForTown(10, 2) || !BuildingIsValidForTown(0, 0))
            abort();
    },
};

void clearTables()
{
    for (auto *names : {&EditorData::artifacts, &EditorData::creatures, &EditorData::heroes,
                        &EditorData::secondarySkills, &EditorData::primarySkills,
                        &EditorData::spells, &EditorData::resources, &EditorData::jktext})
        names->clear();
    EditorData::buildings.clear();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    static QTextCodec *const codec = QTextCodec::codecForName("Windows-1251");
    static MadeTables tables(entries());
    if (size == 0)
        return 0;
    tables.fill(QByteArray::fromRawData(reinterpret_cast<const char *>(data) + 1, int(size) - 1));
    readers[data[0] % readers.size()](codec);
    clearTables(); // what stayed would look like a leak
    return 0;
}
