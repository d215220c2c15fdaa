// The game's tables as the input would have them: whatever is asked for, the text is the same.
#pragma once

#include "gamedata/runtime/dat_file.h"

#include <QByteArray>

#include <memory>
#include <vector>

// Makes an archive with every text table that the editor reads the game's only one. The tables
// stand in memory, all at the same place.
void makeTextTables(const QByteArray &text);

// The game's table file while it lives: an entry of each name, with as many strings as any reader
// asks for, all of which are the text.
class MadeTableFile
{
public:
    MadeTableFile(const std::vector<const char *> &names, const QByteArray &text);
    ~MadeTableFile();
    MadeTableFile(const MadeTableFile &) = delete;
    MadeTableFile &operator=(const MadeTableFile &) = delete;

private:
    const std::unique_ptr<TDatFile> m_table;
};
