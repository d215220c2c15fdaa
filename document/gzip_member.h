// Packing and unpacking of whole pieces by zlib, and lengths of packed data.
#pragma once

#include <QByteArray>

#include <zlib.h>

// Closes a gz handle: std::unique_ptr<gzFile_s, gz_deleter>.
struct gz_deleter
{
    void operator()(gzFile handle) const
    {
        if (handle)
            gzclose(handle);
    }
};

// Unpacks a gzip member or a zlib stream in one go. Answers the number of bytes made, or zlib's
// error code (negative) if the stream doesn't end well within the destination.
int zlib_inflate(void const *source, int sourceLength, void *destination, int destinationLength);

// Length of the zlib stream that these bytes become at zlib's default level.
int get_gz_compressed_size(unsigned char *data, int length);

// The same for data that comes in portions and needn't be held.
class PackedLength
{
public:
    PackedLength();
    ~PackedLength();
    PackedLength(const PackedLength &) = delete;
    PackedLength &operator=(const PackedLength &) = delete;

    void add(const char *data, int length);
    // Closes the stream. Call it once, last.
    qint64 finish();

private:
    void deflateAll(int flush);

    z_stream m_stream{};
    qint64 m_length = 0;
};

// One gzip member of these bytes, packed as zlib's gz functions pack by default: the bytes in
// front of the maps in every campaign that we write.
QByteArray packGzipMember(const QByteArray &data);
