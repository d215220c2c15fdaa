#include "document/gzip_member.h"

#include <algorithm>

namespace {

constexpr int gzipOrZlib = 47; // window bits: the largest window, either framing
constexpr int gzipOnly = 31;
constexpr int defaultMemory = 8;

// zlib doesn't write through next_in; only its declaration lacks the const.
Bytef *input(const void *data)
{
    return const_cast<Bytef *>(static_cast<const Bytef *>(data));
}

} // namespace

int zlib_inflate(void const *source, int sourceLength, void *destination, int destinationLength)
{
    if (sourceLength < 0 || destinationLength < 0)
        return Z_BUF_ERROR;
    z_stream stream{};
    stream.next_in = input(source);
    stream.avail_in = uInt(sourceLength);
    stream.next_out = static_cast<Bytef *>(destination);
    stream.avail_out = uInt(destinationLength);
    int result = inflateInit2(&stream, gzipOrZlib);
    if (result != Z_OK)
        return result;
    result = inflate(&stream, Z_FINISH);
    const int produced = int(stream.total_out);
    inflateEnd(&stream);
    return result == Z_STREAM_END ? produced : result;
}

int get_gz_compressed_size(unsigned char *data, int length)
{
    PackedLength packed;
    packed.add(reinterpret_cast<const char *>(data), std::max(0, length));
    return int(packed.finish().value_or(-1));
}

PackedLength::PackedLength()
{
    deflateInit(&m_stream, Z_DEFAULT_COMPRESSION); // without it deflate() answers an error
}

PackedLength::~PackedLength()
{
    deflateEnd(&m_stream);
}

void PackedLength::add(const char *data, int length)
{
    m_stream.next_in = input(data);
    m_stream.avail_in = uInt(length);
    deflateAll(Z_NO_FLUSH);
}

std::optional<qint64> PackedLength::finish()
{
    m_stream.avail_in = 0;
    deflateAll(Z_FINISH);
    return m_ended ? std::optional(m_length) : std::nullopt;
}

void PackedLength::deflateAll(int flush)
{
    std::array<Bytef, 16384> dropped;
    do {
        m_stream.next_out = dropped.data();
        m_stream.avail_out = uInt(dropped.size());
        const int result = deflate(&m_stream, flush);
        m_length += qint64(dropped.size() - m_stream.avail_out);
        m_ended = result == Z_STREAM_END;
        if (result != Z_OK) // the end, or nothing left to do
            break;
    } while (m_stream.avail_out == 0);
}

MemberPacker::MemberPacker()
{
    deflateInit2(&m_stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, gzipOnly, defaultMemory,
                 Z_DEFAULT_STRATEGY);
}

MemberPacker::~MemberPacker()
{
    deflateEnd(&m_stream);
}

int MemberPacker::packSome(int flush)
{
    m_stream.next_out = reinterpret_cast<Bytef *>(m_packed.data());
    m_stream.avail_out = uInt(m_packed.size());
    const int result = deflate(&m_stream, flush);
    const bool well = result == Z_OK || result == Z_STREAM_END;
    const bool nothingToDo = result == Z_BUF_ERROR && flush == Z_NO_FLUSH;
    return well || nothingToDo ? int(m_packed.size() - m_stream.avail_out) : -1;
}

QByteArray packGzipMember(const QByteArray &data)
{
    QByteArray packed;
    const auto append = [&](const char *bytes, int size) {
        packed.append(bytes, size);
        return true;
    };
    MemberPacker packer;
    if (!packer.add(data.constData(), data.size(), append) || !packer.finish(append))
        return {};
    packed.squeeze();
    return packed;
}
