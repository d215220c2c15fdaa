// Where translations of the programs' texts stand.
#pragma once

#include <QString>

class QTranslator;

// Loads a translation by its file's name: out of Ravn_Data in the game's folder, else out of what
// the programs share where they were installed for the whole system. False if there is none.
bool loadTranslation(QTranslator &translator, const QString &file);
