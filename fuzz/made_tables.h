// The game's tables as the input would have them: whatever is asked for, the text is the same.
#pragma once

#include "fuzz/memory_file.h"
#include "gamedata/runtime/dat_file.h"

#include <QByteArray>

#include <memory>
#include <vector>

// An entry of the table file, and which of its strings the readers look at.
struct MadeEntry
{
    const char *name;
    std::vector<int> strings;
};

// While it lives, the game has one archive with every text table that the editor reads, all in the
// same place of a file in memory, and a table file with these entries. Made once for all inputs:
// each changes the text alone.
class MadeTables
{
public:
    explicit MadeTables(std::vector<MadeEntry> entries);
    ~MadeTables();
    MadeTables(const MadeTables &) = delete;
    MadeTables &operator=(const MadeTables &) = delete;

    // Makes this the text of every table, and of the strings that somebody looks at.
    void fill(const QByteArray &text);

private:
    void addEntries();
    void addArchive();

    const std::vector<MadeEntry> m_entries;
    const std::unique_ptr<TDatFile> m_tableFile;
    MemoryFile m_texts;
};
