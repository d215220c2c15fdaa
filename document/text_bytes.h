// Texts of campaigns and maps between their bytes and QString, in the locale's codec, without
// losing a byte.
//
// A campaign doesn't say in which encoding its texts stand, so bytes come that are no text in the
// codec at hand, and the author who looks at them must still be able to save them. Each such byte
// becomes the code point U+DC00 + byte, a low surrogate by itself, which no text has otherwise. It
// shows as a missing character and is written as the byte that it was.
#pragma once

#include <QByteArray>
#include <QString>

// bytesFromText(textFromBytes(bytes)) == bytes, in every codec that leaves ASCII alone.
QString textFromBytes(const QByteArray &bytes);
QByteArray bytesFromText(const QString &text);
