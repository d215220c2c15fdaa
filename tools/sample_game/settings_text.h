// The sample game's settings file (Ravn_settings.ini), laid out as the editor itself would save it,
// so that the first start changes nothing.
#pragma once

#include <QByteArray>

namespace sample {

QByteArray settingsFile();

} // namespace sample
