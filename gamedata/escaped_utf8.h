// Bytes that ought to be UTF-8, as text and back without losing one: a byte that is no part of a
// character becomes the code point U+DC00 + byte, a low surrogate by itself, which no text has
// otherwise. It shows as a missing character and is written as the byte that it was.
#pragma once

#include <QByteArray>
#include <QString>

class QTextCodec;

// The byte order mark of a text in UTF-8.
constexpr char utf8Mark[] = "\xEF\xBB\xBF";

// utf8FromText(textFromUtf8(bytes)) == bytes. A byte order mark in front is text like any other.
QString textFromUtf8(const QByteArray &bytes);
QByteArray utf8FromText(const QString &text);

// For other encodings, whose codecs lose bytes of their own.
QChar escapedByte(char byte);
// Whether the letter at a place is half of a surrogate pair without its other half: an escape, or
// what is no text in any encoding.
bool isHalfCharacter(const QString &text, int place);
// In that codec but for the escapes, which become their bytes.
QByteArray withoutEscapes(const QString &text, const QTextCodec &codec);

// The same as a codec, for what goes through Qt's: names of files, above all. Made once; Qt owns
// it. To convert a text piece by piece it is no use.
QTextCodec *escapedUtf8Codec();

// Whether it is UTF-8, Qt's own codec or this one.
bool isUtf8(const QTextCodec &codec);
