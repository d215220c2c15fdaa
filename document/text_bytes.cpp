#include "document/text_bytes.h"

#include <QTextCodec>

#include <array>

namespace {

constexpr int utf8Mib = 106;
constexpr ushort byteEscape = 0xDC00;
constexpr char byteOrderMark[] = "\xEF\xBB\xBF";

// The well-formed sequences of UTF-8 by their first byte. Bytes behind the second are 80 to BF.
struct Utf8Sequence
{
    uchar first;
    uchar last;
    int length;
    uchar secondFrom;
    uchar secondTo;
};

constexpr std::array<Utf8Sequence, 9> utf8Sequences{{
    {0x00, 0x7F, 1, 0x00, 0x00},
    {0xC2, 0xDF, 2, 0x80, 0xBF},
    {0xE0, 0xE0, 3, 0xA0, 0xBF},
    {0xE1, 0xEC, 3, 0x80, 0xBF},
    {0xED, 0xED, 3, 0x80, 0x9F},
    {0xEE, 0xEF, 3, 0x80, 0xBF},
    {0xF0, 0xF0, 4, 0x90, 0xBF},
    {0xF1, 0xF3, 4, 0x80, 0xBF},
    {0xF4, 0xF4, 4, 0x80, 0x8F},
}};

bool isBetween(char byte, uchar from, uchar to)
{
    return uchar(byte) >= from && uchar(byte) <= to;
}

// The length of the sequence that begins at a place, 0 if none does.
int utf8SequenceAt(const QByteArray &bytes, int place)
{
    for (const Utf8Sequence &sequence : utf8Sequences) {
        if (!isBetween(bytes.at(place), sequence.first, sequence.last))
            continue;
        if (sequence.length > bytes.size() - place)
            return 0;
        for (int i = 1; i < sequence.length; ++i) {
            const uchar from = i == 1 ? sequence.secondFrom : 0x80;
            const uchar to = i == 1 ? sequence.secondTo : 0xBF;
            if (!isBetween(bytes.at(place + i), from, to))
                return 0;
        }
        return sequence.length;
    }
    return 0;
}

QChar escaped(char byte)
{
    return QChar(byteEscape + uchar(byte));
}

// ASCII is never escaped, so its escapes are somebody's own surrogates.
bool isEscape(const QString &text, int place)
{
    const ushort unit = text.at(place).unicode();
    const bool inRange = unit >= byteEscape + 0x80 && unit <= byteEscape + 0xFF;
    return inRange && !(place > 0 && text.at(place - 1).isHighSurrogate());
}

// The codec takes a byte order mark in front for a signature and drops it. Texts have none, so
// those bytes are text, and must be there when it is written again.
QString decode(const QTextCodec &codec, const QByteArray &bytes)
{
    QString text = codec.toUnicode(bytes.constData(), bytes.size());
    if (codec.mibEnum() == utf8Mib && bytes.startsWith(byteOrderMark))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

QByteArray encode(const QTextCodec &codec, const QString &text)
{
    QByteArray bytes;
    int begin = 0;
    for (int i = 0; i <= text.size(); ++i) {
        const bool atEnd = i == text.size();
        if (!atEnd && !isEscape(text, i))
            continue;
        if (i > begin)
            bytes += codec.fromUnicode(text.constData() + begin, i - begin);
        if (!atEnd)
            bytes += char(text.at(i).unicode() - byteEscape);
        begin = i + 1;
    }
    return bytes;
}

bool isUtf8(const QByteArray &bytes)
{
    int place = 0;
    while (place < bytes.size()) {
        const int length = utf8SequenceAt(bytes, place);
        if (length == 0)
            return false;
        place += length;
    }
    return true;
}

// The code point of a well-formed sequence: six bits of every byte behind the first.
uint codePointOf(const char *sequence, int length)
{
    uint point = uchar(sequence[0]) & (length == 1 ? 0x7Fu : 0x7Fu >> length);
    for (int i = 1; i < length; ++i)
        point = point << 6 | (uchar(sequence[i]) & 0x3Fu);
    return point;
}

void append(QString &text, uint point)
{
    if (QChar::requiresSurrogates(point))
        text += QChar(QChar::highSurrogate(point));
    text += QChar::requiresSurrogates(point) ? QChar(QChar::lowSurrogate(point)) : QChar(point);
}

// Well-formed sequences as text, every other byte escaped. Not by the codec: rubbish of megabytes
// would be a million little calls.
QString decodeDamagedUtf8(const QByteArray &bytes)
{
    QString text;
    text.reserve(bytes.size());
    int place = 0;
    while (place < bytes.size()) {
        const int length = utf8SequenceAt(bytes, place);
        if (length == 0)
            text += escaped(bytes.at(place));
        else
            append(text, codePointOf(bytes.constData() + place, length));
        place += qMax(1, length);
    }
    return text;
}

// Each byte by itself, as text where the codec knows it and it comes back the same.
QString decodeByBytes(const QTextCodec &codec, const QByteArray &bytes)
{
    std::array<QChar, 256> meaning;
    for (int value = 0; value < 256; ++value) {
        const QByteArray byte(1, char(value));
        const QString text = decode(codec, byte);
        const bool comesBack = text.size() == 1 && encode(codec, text) == byte;
        meaning[size_t(value)] = comesBack ? text.at(0) : escaped(char(value));
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
        text += uchar(byte) < 0x80 ? QChar(uchar(byte)) : escaped(byte);
    return text;
}

} // namespace

QString textFromBytes(const QByteArray &bytes)
{
    const QTextCodec &codec = *QTextCodec::codecForLocale();
    if (codec.mibEnum() == utf8Mib)
        return isUtf8(bytes) ? decode(codec, bytes) : decodeDamagedUtf8(bytes);
    QString text = decode(codec, bytes);
    if (encode(codec, text) == bytes)
        return text;
    text = decodeByBytes(codec, bytes);
    // A codec of many bytes a character can still make something else of neighbours.
    return encode(codec, text) == bytes ? text : decodeAscii(bytes);
}

QByteArray bytesFromText(const QString &text)
{
    return encode(*QTextCodec::codecForLocale(), text);
}
