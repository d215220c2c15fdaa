// A bit array as a text of "0" and "1", index 0 first.
#pragma once

#include <QBitArray>
#include <QString>

inline QString bitText(const QBitArray &bits)
{
    QString text(bits.size(), QLatin1Char('0'));
    for (int i = 0; i < bits.size(); ++i) {
        if (bits.testBit(i))
            text[i] = QLatin1Char('1');
    }
    return text;
}
