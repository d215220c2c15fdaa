// The game's picture records (.pcx by name, but a format of its own), from Qt's images.
//
//   plain record                          32-bit record
//   0   4   size of the pixels            0   4   "P32F"
//   4   4   width                         4   20  unknown to readers
//   8   4   height                        24  4   width
//   12      pixels, top row first         28  4   height
//                                         32      blue, green, red, spare; bottom row first
//
// The pixels of a plain record are either blue, green, red groups, or palette numbers with the
// palette (256 times red, green, blue) behind them.
#pragma once

#include <QByteArray>

class QImage;

namespace sample {

QByteArray record24Bit(const QImage &picture);
QByteArray record32Bit(const QImage &picture);

// Pixels of alpha 0 get the key colour cyan, which readers take for transparent. There is room for
// 255 other colours; any more are replaced by the nearest of these.
QByteArray recordPalette(const QImage &picture);

} // namespace sample
