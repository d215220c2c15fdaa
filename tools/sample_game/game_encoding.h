// The encoding of the sample game's own texts: Windows-1252, as its settings (Language=0) say.
#pragma once

#include <QByteArray>
#include <QString>

namespace sample {

// A character that the encoding lacks ends the program.
QByteArray gameEncoded(const QString &text);

} // namespace sample
