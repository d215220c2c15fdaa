#include "document/inflating_device.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr int gzipOnly = 31; // window bits
constexpr int gzipOrZlib = 47;
constexpr int inputSize = 16 * 1024;
// gzread unpacks in blocks of this size, and loses one in which it meets an error.
constexpr int gzreadBlock = 16 * 1024;
// A map's header is seldom longer.
constexpr int embeddedBlock = 2 * 1024;

bool beginsLikeGzip(const z_stream &stream)
{
    return stream.avail_in >= 2 && stream.next_in[0] == 0x1f && stream.next_in[1] == 0x8b;
}

} // namespace

InflatingDevice::InflatingDevice(QIODevice *source, Format format)
    : InflatingDevice(source, QByteArray(), format)
{
}

InflatingDevice::InflatingDevice(const QByteArray &packed, Format format)
    : InflatingDevice(nullptr, packed, format)
{
}

InflatingDevice::InflatingDevice(QIODevice *source, const QByteArray &packed, Format format)
    : m_source(source), m_packed(packed), m_format(format),
      m_blockSize(format == Format::Embedded ? embeddedBlock : gzreadBlock),
      m_input(source ? new char[inputSize] : nullptr), m_block(new char[size_t(m_blockSize)])
{
    if (!source) {
        m_stream.next_in =
            reinterpret_cast<Bytef *>(const_cast<char *>(m_packed.constData())); // never written
        m_stream.avail_in = uInt(m_packed.size());
        m_fed = m_packed.size();
    }
    setOpenMode(QIODevice::ReadOnly | QIODevice::Unbuffered);
    fill();
}

InflatingDevice::~InflatingDevice()
{
    if (m_inflaterMade)
        inflateEnd(&m_stream);
}

bool InflatingDevice::atEnd() const
{
    return !hasData() || m_delivered >= m_limit;
}

qint64 InflatingDevice::readData(char *data, qint64 maxSize)
{
    qint64 done = 0;
    while (done < maxSize && !atEnd()) {
        const qint64 part =
            std::min({qint64(m_have - m_next), maxSize - done, m_limit - m_delivered});
        std::memcpy(data + done, m_block.get() + m_next, size_t(part));
        m_next += int(part);
        m_delivered += part;
        done += part;
        if (!hasData())
            fill();
    }
    return done == 0 && maxSize > 0 ? -1 : done;
}

qint64 InflatingDevice::writeData(const char *, qint64)
{
    return -1;
}

qint64 InflatingDevice::skipToMemberEnd(qint64 limit)
{
    while (m_memberEnd < 0 && m_state == State::Inflating && m_unpacked < limit)
        inflateBlock();
    m_next = m_have = 0;
    return m_memberEnd;
}

// Makes the next block, unless there is none.
void InflatingDevice::fill()
{
    m_next = m_have = 0;
    while (!hasData() && m_state != State::Ended) {
        if (m_state == State::Looking)
            lookForMember();
        else if (m_state == State::Inflating)
            inflateBlock();
        else
            copyBlock();
    }
}

// Gives the inflater more input, keeping what it has not used yet.
bool InflatingDevice::feed()
{
    if (!m_source)
        return false;
    const uInt kept = m_stream.avail_in;
    if (kept > 0)
        std::memmove(m_input.get(), m_stream.next_in, kept);
    const qint64 got = m_source->read(m_input.get() + kept, inputSize - qint64(kept));
    m_sourceFailed = m_sourceFailed || got < 0;
    if (got <= 0)
        return false;
    m_stream.next_in = reinterpret_cast<Bytef *>(m_input.get());
    m_stream.avail_in = kept + uInt(got);
    m_fed += got;
    return true;
}

void InflatingDevice::lookForMember()
{
    while (m_stream.avail_in < 2 && feed()) {
    }
    const bool first = !m_inflaterMade;
    if (beginsLikeGzip(m_stream) || m_format == Format::Embedded) {
        const int bits = m_format == Format::Embedded ? gzipOrZlib : gzipOnly;
        const int result = first ? inflateInit2(&m_stream, bits) : inflateReset(&m_stream);
        m_inflaterMade = m_inflaterMade || result == Z_OK;
        m_state = result == Z_OK ? State::Inflating : State::Ended;
    } else if (first && m_stream.avail_in > 0) {
        m_state = State::Copying;
        m_wasPlain = true;
    } else {
        m_state = State::Ended; // empty, or rubbish behind the last member
    }
}

void InflatingDevice::inflateBlock()
{
    m_next = m_have = 0;
    m_stream.next_out = reinterpret_cast<Bytef *>(m_block.get());
    m_stream.avail_out = uInt(m_blockSize);
    int result = Z_OK;
    while (m_stream.avail_out > 0 && result == Z_OK) {
        if (m_stream.avail_in == 0 && !feed()) {
            m_state = State::Ended; // the member is cut short
            break;
        }
        result = inflate(&m_stream, Z_NO_FLUSH);
    }
    m_have = m_blockSize - int(m_stream.avail_out);
    if (result == Z_STREAM_END) {
        endMember();
    } else if (result != Z_OK) {
        m_state = State::Ended;
        if (m_format != Format::Embedded)
            m_have = 0;
    }
    m_unpacked += m_have;
}

void InflatingDevice::copyBlock()
{
    m_next = m_have = 0;
    if (m_stream.avail_in == 0 && !feed()) {
        m_state = State::Ended;
        return;
    }
    m_have = int(std::min(m_stream.avail_in, uInt(m_blockSize)));
    std::memcpy(m_block.get(), m_stream.next_in, size_t(m_have));
    m_stream.next_in += m_have;
    m_stream.avail_in -= uInt(m_have);
}

void InflatingDevice::endMember()
{
    if (m_memberEnd < 0)
        m_memberEnd = m_fed - qint64(m_stream.avail_in);
    m_state = m_format == Format::GzipMembers ? State::Looking : State::Ended;
}
