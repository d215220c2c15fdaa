// Every reader of a picture, each with a record of its kind.
#pragma once

#include "gamedata/pcx_image.h"
#include "tests/support/picture_records.h"

#include <QTest>

#include <functional>

using namespace picture_records;

using Reader = std::function<QImage(char *record, qint64 size)>;

struct NamedReader
{
    const char *name;
    Reader read;
    QByteArray record; // a whole one of its kind, 3 by 2 pixels
};

inline const QColor cyan(0, 255, 255);

inline QVector<QColor> sixColors()
{
    return {QColor(1, 2, 3),    QColor(4, 5, 6),    QColor(7, 8, 9),
            QColor(10, 20, 30), QColor(40, 50, 60), QColor(70, 80, 90)};
}

inline QByteArray smallPaletteRecord()
{
    return paletteRecord(3, 2, QByteArray("\x00\x01\x02\xff\x01\x00", 6),
                         {{0, QColor(11, 12, 13)}, {1, cyan}, {255, QColor(21, 22, 23)}});
}

inline QVector<NamedReader> readers()
{
    const QByteArray plain = plainRecord(3, 2, sixColors());
    const QByteArray p32 = p32Record(3, 2, sixColors());
    const QByteArray indexed = smallPaletteRecord();
    const auto keyed = [](char *record, qint64 size) {
        return ReadFromArrayPalette(record, cyan, size);
    };
    const auto slow = [](char *record, qint64 size) {
        return ReadFromArrayPalette_Slow(record, cyan, size);
    };
    return {{"24 bits", ReadFromArray, plain},
            {"32 bits by its magic", ReadFromArray, p32},
            {"32 bits", ReadFromArray_P32, p32},
            {"24 bits to 16", ReadFromArray_16bit, plain},
            {"palette", keyed, indexed},
            {"palette, slow", slow, indexed},
            {"palette to 16", ReadFromArrayPalette_16bit, indexed}};
}

inline void addReaderRows()
{
    QTest::addColumn<int>("reader");
    const QVector<NamedReader> all = readers();
    for (int i = 0; i < all.size(); ++i)
        QTest::newRow(all[i].name) << i;
}

inline QImage readExactly(const Reader &read, const QByteArray &record)
{
    const ExactBuffer buffer(record);
    return read(buffer.data(), record.size());
}
