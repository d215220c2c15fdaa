// Reading the game's data without a window: what the editor does before its first one.
#pragma once

// Reads settings, table file and archives of the game's folder. A file the editor can't do
// without ends the process with its message.
void loadGame();
