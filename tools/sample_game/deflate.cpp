#include "tools/sample_game/deflate.h"

#include <zlib.h>

namespace sample {

namespace {

constexpr int kZlibWindowBits = 15;
constexpr int kGzipWindowBits = 31;
constexpr int kDefaultMemoryLevel = 8;

QByteArray deflated(const QByteArray &plain, int level, int windowBits)
{
    z_stream stream = {};
    if (deflateInit2(&stream, level, Z_DEFLATED, windowBits, kDefaultMemoryLevel,
                     Z_DEFAULT_STRATEGY) != Z_OK)
        qFatal("zlib can't be started");
    QByteArray packed(int(deflateBound(&stream, uLong(plain.size()))), Qt::Uninitialized);
    // zlib's interface isn't const, but it only reads its input.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(plain.constData()));
    stream.avail_in = uInt(plain.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = uInt(packed.size());
    if (deflate(&stream, Z_FINISH) != Z_STREAM_END)
        qFatal("zlib didn't reach its end");
    packed.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

} // namespace

QByteArray zlibStream(const QByteArray &plain)
{
    return deflated(plain, kDefaultLevel, kZlibWindowBits);
}

QByteArray gzipMember(const QByteArray &plain, int level)
{
    return deflated(plain, level, kGzipWindowBits);
}

} // namespace sample
