// The name of a scenario's map as a campaign holds it, and as it may become part of a path.
#pragma once

#include <QString>

// The name without any folder before it, whichever kind of slash a foreign campaign has put
// there; empty for a name that would be a folder or nothing.
QString bareMapFileName(const QString &name);
