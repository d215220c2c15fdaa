// The game's files that the start-up reads into the runtime's own records.
#pragma once

class _Ini_;

// Reads the game's table file into RADF. A missing one ends the process with a message. The
// settings are not looked at.
void loadRavnDat(_Ini_ *settings);
