// The encodings that a system may have, for inputs that choose one.
#pragma once

#include "gamedata/locale_codec.h"

#include <QTextCodec>

#include <array>
#include <cstddef>
#include <cstdlib>

// Their codecs as the program's start sets them. One that it refuses would leave nothing to try.
template<size_t count>
std::array<QTextCodec *, count> systemCodecs(const std::array<const char *, count> &encodings)
{
    std::array<QTextCodec *, count> codecs;
    for (size_t i = 0; i < count; ++i) {
        if (!setLocaleCodec(QLatin1String(encodings[i])))
            abort();
        codecs[i] = QTextCodec::codecForLocale();
    }
    return codecs;
}
