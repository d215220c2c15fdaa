// The text of a translators' file.
#pragma once

#include <QByteArray>
#include <QString>

// In UTF-8, or in the encoding whose byte order mark stands in front. Null if the bytes are no text
// in it.
QString textOfFile(const QByteArray &bytes);
