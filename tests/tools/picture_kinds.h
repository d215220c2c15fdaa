// The kinds of pictures that the sample game's archives hold, told apart by their records.
#pragma once

#include "tests/tools/made_game.h"

#include <QByteArray>
#include <QSize>

inline bool isPicture24(const QByteArray &record)
{
    const qint64 pixels = qint64(numberAt(record, 4)) * numberAt(record, 8);
    return pixels > 0 && record.size() == 12 + 3 * pixels;
}

inline bool isPicture32(const QByteArray &record)
{
    const qint64 pixels = qint64(numberAt(record, 24)) * numberAt(record, 28);
    return record.startsWith("P32F") && pixels > 0 && record.size() == 32 + 4 * pixels;
}

inline bool isPalettePicture(const QByteArray &record)
{
    const qint64 pixels = qint64(numberAt(record, 4)) * numberAt(record, 8);
    return pixels > 0 && record.size() == 12 + pixels + 768;
}

inline QSize sizeOf(const QByteArray &record)
{
    const int at = isPicture32(record) ? 24 : 4;
    return {numberAt(record, at), numberAt(record, at + 4)};
}
