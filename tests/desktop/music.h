// Listening to the editor.
#pragma once

class Workplace;

// Lets the window that is in front play its music, hears it, stops it, hears that.
void hearMusic(Workplace &place);
