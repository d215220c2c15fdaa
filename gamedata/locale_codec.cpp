#include "gamedata/locale_codec.h"

#include "gamedata/escaped_utf8.h"

#include <QTextCodec>

#include <algorithm>
#include <array>
#include <clocale>
#include <langinfo.h>
#include <string_view>

namespace {

// What C libraries call plain ASCII: the locale of a system that was never told one.
constexpr std::array<std::string_view, 4> asciiNames{"ANSI_X3.4-1968", "US-ASCII", "ASCII", "646"};

// ASCII without the zero byte, which ends a text, and without three control characters that change
// places in old code pages, Shift_JIS among them: no text has those, and they come back the same.
QByteArray asciiOfTexts()
{
    QByteArray letters;
    for (char letter = 1; letter < '\x7f'; ++letter) {
        if (letter != '\x1a' && letter != '\x1c')
            letters += letter;
    }
    return letters;
}

// File names and numbers in texts go through the codec as well, so it must keep ASCII as it is,
// both ways, behind an escape, too: there some codecs take letters for something else, and what
// they have read they don't write the same again.
bool keepsAscii(const QTextCodec &codec)
{
    const QByteArray letters = "\x1b$B letters \x1b(B " + asciiOfTexts();
    const QString text = QString::fromLatin1(letters);
    return codec.toUnicode(letters) == text && codec.fromUnicode(text) == letters;
}

QTextCodec *codecOfSystem()
{
    std::setlocale(LC_ALL, "");
    const char *name = nl_langinfo(CODESET);
    const bool ascii = std::find(asciiNames.begin(), asciiNames.end(), name) != asciiNames.end();
    QTextCodec *codec = ascii ? nullptr : QTextCodec::codecForName(name);
    return codec && keepsAscii(*codec) ? codec : QTextCodec::codecForName("UTF-8");
}

} // namespace

bool setLocaleCodec(const QString &name)
{
    QTextCodec *codec =
        name.isEmpty() ? codecOfSystem() : QTextCodec::codecForName(name.toLatin1());
    if (!codec || !keepsAscii(*codec))
        return false;
    QTextCodec::setCodecForLocale(isUtf8(*codec) ? escapedUtf8Codec() : codec);
    return true;
}
