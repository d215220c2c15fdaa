// Packing by zlib, in the two framings that the game's files know. The same bytes and level give
// the same result: no times, no names. A fault of zlib ends the program, for it can't happen but
// by want of memory.
#pragma once

#include <QByteArray>

namespace sample {

constexpr int kDefaultLevel = -1;

// One zlib stream, as packed archive entries hold it.
QByteArray zlibStream(const QByteArray &plain);

// One gzip member with a header of 10 bytes and no optional fields.
QByteArray gzipMember(const QByteArray &plain, int level = kDefaultLevel);

} // namespace sample
