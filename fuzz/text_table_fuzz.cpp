// Takes the input as every text table of the archives and as every string of the table file, and
// makes the game's tables of it.
#include "fuzz/made_tables.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"
#include "gamedata/limits.h"

#include <QTextCodec>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

// With numbers that no table has room for, and an entry without one.
const std::vector<const char *> entryNames{
    "monst150", "monst99999", "art200",     "art99999",   "hero170",      "hero99999",
    "secskill", "secskill30", "casdwcost9", "casspcost9", "firebrdhorde", "casspcost8"};

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
    const QByteArray text(reinterpret_cast<const char *>(data), int(size));
    makeTextTables(text);
    const MadeTableFile table(entryNames, text);
    clearTables();
    EditorData::initCreatures(codec);
    EditorData::initArtifacts(codec);
    EditorData::initHeroes(codec);
    EditorData::initResourceInfo(codec);
    EditorData::parseTextSimple(EditorData::primarySkills, QStringLiteral("PriSkill.txt"), codec,
                                false);
    EditorData::parseTextSimple(EditorData::jktext, QStringLiteral("JKTEXT.txt"), codec, true);
    EditorData::readSkills(codec);
    EditorData::readSpells(codec);
    EditorData::readBuildings(codec);
    // The widths of a campaign's bit arrays follow from these names alone, whatever the texts.
    if (EditorData::nArtifacts != 201 || EditorData::nCreatures != 152)
        abort();
    return 0;
}
