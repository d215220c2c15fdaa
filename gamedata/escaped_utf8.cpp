#include "gamedata/escaped_utf8.h"

#include <QTextCodec>

#include <array>

namespace {

constexpr int utf8Mib = 106;
// Nobody's. As UTF-8's the codec would be taken for one that drops byte order marks.
constexpr int escapedUtf8Mib = -7106;
constexpr ushort byteEscape = 0xDC00;

// Qt's codec of TSCII looks at two letters behind each, and behind the last one's text.
constexpr int lettersLookedAhead = 2;

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

// The same, at once for ASCII, as most of most texts is.
int lengthAt(const QByteArray &bytes, int place)
{
    return uchar(bytes.at(place)) < 0x80 ? 1 : utf8SequenceAt(bytes, place);
}

// ASCII is never escaped, so its escapes are somebody's own surrogates.
bool isEscape(const QString &text, int place)
{
    const ushort unit = text.at(place).unicode();
    const bool inRange = unit >= byteEscape + 0x80 && unit <= byteEscape + 0xFF;
    return inRange && isHalfCharacter(text, place);
}

bool isWellFormed(const QByteArray &bytes)
{
    int place = 0;
    while (place < bytes.size()) {
        const int length = lengthAt(bytes, place);
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

// Writes a code point, of which there is room for both halves, and answers the place behind it.
QChar *put(QChar *to, uint point)
{
    if (QChar::requiresSurrogates(point)) {
        *to++ = QChar(QChar::highSurrogate(point));
        *to++ = QChar(QChar::lowSurrogate(point));
    } else {
        *to++ = QChar(point);
    }
    return to;
}

// Well-formed sequences as text, every other byte escaped; no sequence is shorter than its text.
// Not by the codec: rubbish of megabytes would be a million little calls.
QString decodeDamagedUtf8(const QByteArray &bytes)
{
    QString text(bytes.size(), Qt::Uninitialized);
    QChar *to = text.data();
    int place = 0;
    while (place < bytes.size()) {
        const int length = lengthAt(bytes, place);
        if (length == 0)
            *to++ = escapedByte(bytes.at(place));
        else
            to = put(to, codePointOf(bytes.constData() + place, length));
        place += qMax(1, length);
    }
    text.truncate(int(to - text.constData()));
    return text;
}

class EscapedUtf8Codec : public QTextCodec
{
public:
    QByteArray name() const override { return QByteArrayLiteral("UTF-8"); }
    int mibEnum() const override { return escapedUtf8Mib; }

protected:
    QString convertToUnicode(const char *bytes, int size, ConverterState *) const override
    {
        return textFromUtf8(QByteArray::fromRawData(bytes, size));
    }

    QByteArray convertFromUnicode(const QChar *text, int size, ConverterState *) const override
    {
        return utf8FromText(QString::fromRawData(text, size));
    }
};

} // namespace

// Qt takes a byte order mark in front for a signature and drops it.
QString textFromUtf8(const QByteArray &bytes)
{
    if (!isWellFormed(bytes))
        return decodeDamagedUtf8(bytes);
    QString text = QString::fromUtf8(bytes.constData(), bytes.size());
    if (bytes.startsWith(utf8Mark))
        text.prepend(QChar(QChar::ByteOrderMark));
    return text;
}

QByteArray utf8FromText(const QString &text)
{
    static const QTextCodec *const utf8 = QTextCodec::codecForMib(utf8Mib);
    return withoutEscapes(text, *utf8);
}

QChar escapedByte(char byte)
{
    return QChar(byteEscape + uchar(byte));
}

bool isHalfCharacter(const QString &text, int place)
{
    const QChar letter = text.at(place);
    if (letter.isHighSurrogate())
        return place + 1 == text.size() || !text.at(place + 1).isLowSurrogate();
    return letter.isLowSurrogate() && (place == 0 || !text.at(place - 1).isHighSurrogate());
}

QByteArray withoutEscapes(const QString &text, const QTextCodec &codec)
{
    const QString padded = text + QString(lettersLookedAhead, QChar(QChar::Null));
    QByteArray bytes;
    int begin = 0;
    for (int i = 0; i <= text.size(); ++i) {
        const bool atEnd = i == text.size();
        if (!atEnd && !isEscape(text, i))
            continue;
        if (i > begin)
            bytes += codec.fromUnicode(padded.constData() + begin, i - begin);
        if (!atEnd)
            bytes += char(text.at(i).unicode() - byteEscape);
        begin = i + 1;
    }
    return bytes;
}

QTextCodec *escapedUtf8Codec()
{
    static QTextCodec *const codec = new EscapedUtf8Codec;
    return codec;
}

bool isUtf8(const QTextCodec &codec)
{
    return codec.mibEnum() == utf8Mib || codec.mibEnum() == escapedUtf8Mib;
}
