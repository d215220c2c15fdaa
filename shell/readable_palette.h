// Dark desktops write what can't be used in a colour that is hardly seen.
#pragma once

class QPalette;

// Makes the disabled texts of a dark palette lighter where they stand out too little from what may
// be behind them. A light palette stays as it is.
void makeDisabledTextsReadable(QPalette &palette);
