// The encoding in which strings of campaigns, maps and text exchange files are read and written,
// and in which the system's file names stand: Qt's codec for the locale.
//
// Qt may be built so that it takes UTF-8 whatever the locale says, while files made with the game
// are often in a Windows code page. So each program sets the codec once, before anything is read.
// UTF-8 is set as gamedata/escaped_utf8.h has it: a file whose name is no UTF-8 is still that file.
#pragma once

#include <QString>

// Sets the codec of this name. An empty name takes what the system's locale says (LC_ALL,
// LC_CTYPE, LANG), where plain ASCII counts as UTF-8 and an encoding that can't be set does too.
// False if no codec has the name given, or one that doesn't read and write ASCII as it stands, so
// that no file could be named by it; nothing is changed then. Two bytes a letter are such a codec,
// and so is ISO-2022-JP, whose letters mean something else behind an escape. Shift_JIS isn't.
bool setLocaleCodec(const QString &name);
