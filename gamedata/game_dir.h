// Where the game stands on the disk.
#pragma once

#include <QDir>
#include <QString>

// The game's root folder: the one named by setGameRoot, else the environment variable
// CMPED_GAME_DIR, else the application's own folder.
QString gameRoot();

// Names the root folder for programs that are not installed in it. An empty path takes it back.
void setGameRoot(const QString &path);

// A folder below the root; a folder that doesn't exist answers the root itself.
QDir getGameDir(const QString &subfolder);

// True if the path exists and is a file; a folder is none.
bool fileExists(const QString &path);
