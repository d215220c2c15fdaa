// Finding the game where the programs don't stand in its folder: what a folder lacks of it, and the
// one that the user has chosen.
#pragma once

#include <QString>
#include <QStringList>

// What the editor needs of the game's folder and this one lacks, by name. Empty for the game's own.
QStringList missingGameFiles(const QString &folder);

// The folder that the user chose last, as it was when it was chosen; empty if there is none. It
// stands in the user's own settings, else in the system's, as "game/folder" of "cmped".
QString chosenGame();

// Remembers a folder. False if the settings can't be written.
bool rememberChosenGame(const QString &folder);

// Where the game is, in this order: the folder that the environment variable CMPED_GAME_DIR names;
// the program's own, which is given, if anything of the game stands there; the one chosen last, if
// it still lacks nothing. Empty if it is nowhere of these.
QString findGame(const QString &ownFolder);
