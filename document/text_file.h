// A file of texts that somebody else has written, as a whole.
#pragma once

#include <QByteArray>

class QFile;

// The bytes of a file that is open for reading, which may be a pipe. Null if it can't be read to
// its end, or is larger than any file of a campaign's texts (limits::textFileBytes).
QByteArray readTextFile(QFile &file);
