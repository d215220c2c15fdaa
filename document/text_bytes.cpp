#include "document/text_bytes.h"

#include "gamedata/escaped_utf8.h"

#include <QTextCodec>

#include <array>

namespace {

using Meanings = std::array<QChar, 256>;

// Each byte by itself, as text where the codec knows it and it comes back the same.
Meanings meaningsIn(const QTextCodec &codec)
{
    Meanings meanings;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, char(value));
        const QString text = codec.toUnicode(byte);
        const bool comesBack = text.size() == 1 && withoutEscapes(text, codec) == byte;
        meanings[size_t(value)] = comesBack ? text.at(0) : escapedByte(char(value));
    }
    return meanings;
}

// The codec is asked for them once: five hundred conversions for each text would keep the author
// of a campaign in another encoding waiting for minutes.
QString decodeByBytes(const QTextCodec &codec, const QByteArray &bytes)
{
    thread_local const QTextCodec *known = nullptr;
    thread_local Meanings meanings;
    if (known != &codec) {
        meanings = meaningsIn(codec);
        known = &codec;
    }
    QString text;
    text.reserve(bytes.size());
    for (const char byte : bytes)
        text += meanings[uchar(byte)];
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
