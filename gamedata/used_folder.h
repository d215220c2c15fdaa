// The folder that the author used last in a file dialog, kept in the settings as "Path" of
// "Campaign Editor", in UTF-8.
#pragma once

#include <QString>

// The one given if none was used yet.
QString usedFolder(const QString &otherwise = {});

// Keeps the folder of a file that was chosen. In memory only, until the settings are written.
void rememberFolderOf(const QString &file);
