// Packs bytes as the files of the game are packed, by zlib alone.
#pragma once

#include <QByteArray>

namespace packing {

constexpr int gzipBits = 31;
constexpr int zlibBits = 15;
constexpr int usualLevel = -1; // zlib's own choice

// With a level and window bits of choice.
QByteArray pack(const QByteArray &data, int level = usualLevel, int windowBits = gzipBits);

// As campaigns and maps are packed.
QByteArray gzip(const QByteArray &data);
// As files in archives are packed.
QByteArray zlibStream(const QByteArray &data);

// One gzip member of `head` and so many zeros behind it. Takes next to no time and memory however
// many they are: the zeros are one packed block, repeated.
QByteArray gzipWithZeros(const QByteArray &head, qint64 count);

} // namespace packing
