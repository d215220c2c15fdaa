#include "document/text_bytes.h"

#include "gamedata/escaped_utf8.h"

#include <QTextCodec>

#include <array>

namespace {

// Each byte by itself, as text where the codec knows it and it comes back the same.
QString decodeByBytes(const QTextCodec &codec, const QByteArray &bytes)
{
    std::array<QChar, 256> meaning;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, char(value));
        const QString text = codec.toUnicode(byte);
        const bool comesBack = text.size() == 1 && withoutEscapes(text, codec) == byte;
        meaning[size_t(value)] = comesBack ? text.at(0) : escapedByte(char(value));
    }
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += meaning[uchar(byte)];
    return text;
}

QString decodeAscii(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += uchar(byte) < 0x80 ? QChar(uchar(byte)) : escapedByte(byte);
    return text;
}

} // namespace

QString textFromBytes(const QByteArray &bytes)
{
    const QTextCodec &codec = *QTextCodec::codecForLocale();
    if (isUtf8(codec))
        return textFromUtf8(bytes);
    QString text = codec.toUnicode(bytes.constData(), bytes.size());
    if (withoutEscapes(text, codec) == bytes)
        return text;
    text = decodeByBytes(codec, bytes);
    // A codec of many bytes a character can still make something else of neighbours.
    return withoutEscapes(text, codec) == bytes ? text : decodeAscii(bytes);
}

QByteArray bytesFromText(const QString &text)
{
    return withoutEscapes(text, *QTextCodec::codecForLocale());
}
