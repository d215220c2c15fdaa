// The game's own pictures: a record as it stands in an archive becomes a QImage.
//
// All numbers are little-endian and 32 bits wide. The plain record, with a palette or with 24 bits
// a pixel; it doesn't say which of the two it is, its user has to know:
//
//   offset  size                field
//        0  4                   size, never looked at; anything but "P32F"
//        4  4                   width in pixels
//        8  4                   height in pixels
//       12  width * height      palette form: palette indexes, top row first
//        -  256 * 3             palette form: red, green, blue
//       12  3 * width * height  24-bit form: blue, green, red, top row first
//
// The 32-bit record:
//
//        0  4                   magic, "P32F"
//        4  20                  never looked at
//       24  4                   width in pixels
//       28  4                   height in pixels
//       32  4 * width * height  blue, green, red and a byte never looked at, bottom row first
//
// A null image stands for every failure: a record shorter than its header promises, a side beyond
// limits::pictureSide, no pixels at all, no record. The record stays with the caller.
#pragma once

#include <QColor>
#include <QImage>
#include <QString>

// In the place of a record's size: the caller answers for the record being whole.
constexpr qint64 uncheckedRecordSize = -1;

// A 24-bit record, Format_RGB32; or a 32-bit one, by its magic, as ReadFromArray_P32 reads it.
QImage ReadFromArray(char *record, qint64 size = uncheckedRecordSize);

// A 32-bit record, Format_ARGB32, opaque.
QImage ReadFromArray_P32(char *record, qint64 size = uncheckedRecordSize);

// A 24-bit record, Format_RGB16.
QImage ReadFromArray_16bit(char *record, qint64 size = uncheckedRecordSize);

// A palette record, Format_ARGB32. Pixels of exactly the key colour become transparent black, all
// others are opaque.
QImage ReadFromArrayPalette(char *record, QColor key, qint64 size = uncheckedRecordSize);

// The same result pixel by pixel through QColor: the yardstick of tests and benchmarks.
QImage ReadFromArrayPalette_Slow(char *record, QColor key, qint64 size = uncheckedRecordSize);

// A palette record, Format_RGB16, without a key colour.
QImage ReadFromArrayPalette_16bit(char *record, qint64 size = uncheckedRecordSize);

// The palette picture of this name from the archives, with cyan as the key colour. A name that no
// archive has gives a null image.
QImage OpenPcx8Image(const QString &name);

// The same in Format_RGB16; cyan stays a colour.
QImage OpenPcx8Image_16bit(const QString &name);
