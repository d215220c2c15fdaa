#include "tests/support/packing.h"

#include "tests/support/byte_writer.h"

#include <zlib.h>

#include <cstdlib>

namespace packing {

namespace {

constexpr int rawBits = -15;
constexpr int blockSize = 16 << 20;

const Bytef *bytesOf(const QByteArray &data)
{
    return reinterpret_cast<const Bytef *>(data.constData());
}

QByteArray deflated(const QByteArray &data, int level, int windowBits, int flush)
{
    constexpr int memoryLevel = 8;
    constexpr int roomForFlush = 16;
    z_stream stream{};
    if (deflateInit2(&stream, level, Z_DEFLATED, windowBits, memoryLevel, Z_DEFAULT_STRATEGY) !=
        Z_OK)
        std::abort();
    QByteArray packed(int(deflateBound(&stream, uLong(data.size()))) + roomForFlush, '\0');
    stream.next_in = const_cast<Bytef *>(bytesOf(data));
    stream.avail_in = uInt(data.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = uInt(packed.size());
    const int expected = flush == Z_FINISH ? Z_STREAM_END : Z_OK;
    if (deflate(&stream, flush) != expected)
        std::abort();
    packed.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

// Part of a deflate stream that needs nothing in front of it and leaves room for more behind it.
struct Block
{
    QByteArray packed;
    uLong check = 0;
    qint64 size = 0; // unpacked
};

Block blockOf(const QByteArray &data)
{
    return {deflated(data, usualLevel, rawBits, Z_FULL_FLUSH),
            crc32(0, bytesOf(data), uInt(data.size())), data.size()};
}

class Member
{
public:
    void add(const Block &block)
    {
        m_packed += block.packed;
        m_check = crc32_combine(m_check, block.check, z_off_t(block.size));
        m_size += block.size;
    }
    QByteArray bytes() const
    {
        constexpr int methodDeflate = 8;
        constexpr int unixSystem = 3;
        ByteWriter member;
        member.u8(0x1f).u8(0x8b).u8(methodDeflate).zeros(6).u8(unixSystem).raw(m_packed);
        member.raw(deflated({}, usualLevel, rawBits, Z_FINISH));
        return member.u32(quint32(m_check)).u32(quint32(m_size)).bytes();
    }

private:
    QByteArray m_packed;
    uLong m_check = 0;
    qint64 m_size = 0;
};

} // namespace

QByteArray pack(const QByteArray &data, int level, int windowBits)
{
    return deflated(data, level, windowBits, Z_FINISH);
}

QByteArray gzip(const QByteArray &data)
{
    return pack(data);
}

QByteArray zlibStream(const QByteArray &data)
{
    return pack(data, usualLevel, zlibBits);
}

QByteArray gzipWithZeros(const QByteArray &head, qint64 count)
{
    static const Block zeros = blockOf(QByteArray(blockSize, '\0'));
    Member member;
    member.add(blockOf(head));
    for (; count >= zeros.size; count -= zeros.size)
        member.add(zeros);
    member.add(blockOf(QByteArray(int(count), '\0')));
    return member.bytes();
}

} // namespace packing
