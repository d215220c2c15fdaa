// The folder that the author used last in a file dialog, kept in the settings as "Path" of
// "Campaign Editor", in UTF-8.
#pragma once

#include <QString>

// The one given if none was used yet.
QString usedFolder(const QString &otherwise = {});

// Keeps the folder of a file that was chosen. In memory only, until the settings are written.
void rememberFolderOf(const QString &file);

// In a game that the user may not write to, an administrator's perhaps, the settings file keeps
// nothing. There the folder stands in the user's own settings: kept once the game's have been
// written, recalled into them once they have been read.
void keepUsedFolder();
void recallUsedFolder();
