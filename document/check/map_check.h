// A map's bytes, packed as they are, searched for damage. Its body is unpacked whole, up to the
// limits of gamedata/limits.h.
#pragma once

#include "document/check/findings.h"

#include <QByteArray>

class QFile;

// Unpacks no more than `allowance` bytes, and takes what it has unpacked from it.
void checkMap(const QByteArray &map, const QString &where, qint64 &allowance, Findings &findings);

// The same for a map file that is open for reading. False if it can't be read, or isn't a map
// that the editor would hold.
bool checkMapFile(QFile &file, Findings &findings);
