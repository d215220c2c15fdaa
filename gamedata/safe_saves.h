// Saving many files by one command, each in the way of gamedata/safe_save.
//
// What killed processes left in a folder is looked for before the first file only, however many
// follow: to list the folder for each would take longer with every file in it.
#pragma once

#include "gamedata/safe_save.h"
#include "gamedata/second_file.h"

class SafeSaves
{
public:
    SaveResult save(const QString &path, const std::vector<QByteArray> &pieces);

private:
    SweptFolders m_swept;
};
