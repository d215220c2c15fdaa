// Puts the sample game into a folder:
//
//   ravn.dat, Ravn_settings.ini
//   Data/    six archives, the later ones of the list hiding the earlier ones' entries
//   MP3/     the tunes
//   Maps/    scenario maps and campaigns
//
// Files of the same names are replaced, others stay. Translations (Ravn_Data) aren't made here:
// the build compiles them.
#pragma once

#include <QString>

namespace sample {

// Empty if all went well, otherwise what didn't.
QString makeGameFolder(const QString &folder);

} // namespace sample
