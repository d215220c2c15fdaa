#include "fuzz/corpus.h"

#include <zlib.h>

#include <algorithm>
#include <cstdlib>

namespace corpus {

namespace {

constexpr int gzipBits = 31;
constexpr int zlibBits = 15;
constexpr int pieceSize = 1 << 20;

class Deflater
{
public:
    Deflater(int windowBits, int level)
    {
        if (deflateInit2(&m_stream, level, Z_DEFLATED, windowBits, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            std::abort();
    }
    ~Deflater() { deflateEnd(&m_stream); }
    Deflater(const Deflater &) = delete;
    Deflater &operator=(const Deflater &) = delete;

    void add(const QByteArray &bytes) { run(bytes, Z_NO_FLUSH); }
    QByteArray finish()
    {
        run({}, Z_FINISH);
        return m_result;
    }

private:
    void run(const QByteArray &bytes, int flush)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.constData()));
        m_stream.avail_in = uInt(bytes.size());
        QByteArray piece(64 * 1024, '\0');
        do {
            m_stream.next_out = reinterpret_cast<Bytef *>(piece.data());
            m_stream.avail_out = uInt(piece.size());
            deflate(&m_stream, flush);
            m_result += piece.left(piece.size() - int(m_stream.avail_out));
        } while (m_stream.avail_out == 0);
    }

    z_stream m_stream{};
    QByteArray m_result;
};

QByteArray packed(const QByteArray &bytes, int windowBits)
{
    Deflater deflater(windowBits, Z_DEFAULT_COMPRESSION);
    deflater.add(bytes);
    return deflater.finish();
}

} // namespace

QByteArray gzip(const QByteArray &bytes)
{
    return packed(bytes, gzipBits);
}

QByteArray gzipWithZeros(const QByteArray &bytes, qint64 zeros)
{
    Deflater deflater(gzipBits, Z_DEFAULT_COMPRESSION);
    deflater.add(bytes);
    const QByteArray piece(pieceSize, '\0');
    for (qint64 left = zeros; left > 0; left -= pieceSize)
        deflater.add(piece.left(int(std::min<qint64>(left, pieceSize))));
    return deflater.finish();
}

QByteArray zlibStream(const QByteArray &bytes)
{
    return packed(bytes, zlibBits);
}

} // namespace corpus
