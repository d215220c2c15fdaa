// Packing and unpacking by zlib, and lengths of packed data.
#pragma once

#include <QByteArray>

#include <zlib.h>

#include <array>
#include <optional>
#include <vector>

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

// Length of the zlib stream that these bytes become at zlib's default level; -1 if there isn't the
// memory to tell.
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
    // Closes the stream. Nothing if there wasn't the memory to pack. Call it once, last.
    std::optional<qint64> finish();

private:
    void deflateAll(int flush);

    z_stream m_stream{};
    bool m_ended = false;
    qint64 m_length = 0;
};

// Packs one gzip member as zlib's gz functions pack by default: the bytes in front of the maps in
// every campaign that we write. In whatever portions the data comes, the member is the same.
//
// All memory is taken when it is made, none afterwards. Without it nothing can be packed.
class MemberPacker
{
public:
    MemberPacker();
    ~MemberPacker();
    MemberPacker(const MemberPacker &) = delete;
    MemberPacker &operator=(const MemberPacker &) = delete;

    // `take(const char *bytes, int size)` gets what is packed, in order, and answers whether to go
    // on. False if it didn't, or if nothing can be packed.
    template<typename Take>
    bool add(const char *data, int length, Take take)
    {
        m_stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data)); // never written
        m_stream.avail_in = uInt(length);
        return packAll(Z_NO_FLUSH, take);
    }
    // The end of the member. Call it once, last.
    template<typename Take>
    bool finish(Take take)
    {
        return packAll(Z_FINISH, take);
    }

private:
    template<typename Take>
    bool packAll(int flush, Take &take)
    {
        do {
            const int size = packSome(flush);
            if (size < 0 || (size > 0 && !take(m_packed.data(), size)))
                return false;
        } while (m_stream.avail_out == 0);
        return true;
    }
    // Answers how many bytes stand packed, or -1.
    int packSome(int flush);

    z_stream m_stream{};
    std::array<char, 16384> m_packed;
};

// The member of these bytes; empty if there isn't the memory for it.
QByteArray packGzipMember(const QByteArray &data);

// What a file shall hold, of which the head is still to be packed.
struct UnpackedFile
{
    QByteArray head; // becomes a gzip member; if it is empty there is none
    std::vector<QByteArray> rest;
};
