// Reading the game's data at the start of a command: what the editor does before its window.
#pragma once

// Reads settings, table file and archives of the game's folder. A file the editor can't do
// without ends the process with its message.
void loadGame();
