// A sequential, read-only device that unpacks while it is read, so that nothing is unpacked that
// nobody asks for. It owns no source: the file or the bytes must outlive it.
#pragma once

#include <QByteArray>
#include <QIODevice>

#include <zlib.h>

#include <limits>
#include <memory>

class InflatingDevice : public QIODevice
{
public:
    enum class Format
    {
        // As zlib's gzread: gzip, or bytes that don't begin like gzip as they stand. Of a block
        // of 16 KB in which the stream turns out corrupt nothing is delivered.
        GzipMember,  // ends with the first member
        GzipMembers, // goes on into the members behind it

        // One gzip member or zlib stream and nothing else, in smaller steps; what was unpacked
        // before a corrupt place is delivered.
        Embedded,
    };

    // Reads on from where the source stands.
    InflatingDevice(QIODevice *source, Format format);
    InflatingDevice(const QByteArray &packed, Format format);
    ~InflatingDevice() override;

    bool isSequential() const override { return true; }
    bool atEnd() const override;

    // No more than this many bytes are delivered, counted from the start.
    void setLimit(qint64 bytes) { m_limit = bytes; }
    // There is more, but the limit holds it back.
    bool limitReached() const { return hasData() && m_delivered >= m_limit; }
    qint64 delivered() const { return m_delivered; }

    // The source couldn't be read to its end: what is missing isn't missing in the file.
    bool sourceFailed() const { return m_sourceFailed; }

    // The source isn't packed at all.
    bool isPlain() const { return m_wasPlain; }

    // Unpacks the rest of the first member and drops it, until `limit` bytes have been unpacked in
    // all. Answers where in the source the member ended, counted from where the source stood, or
    // -1 if it didn't end well.
    qint64 skipToMemberEnd(qint64 limit);
    // It goes on beyond that limit, as far as anybody knows.
    bool isInMember() const { return m_state == State::Inflating; }

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char *data, qint64 size) override;

private:
    enum class State
    {
        Looking,
        Inflating,
        Copying,
        Ended
    };

    InflatingDevice(QIODevice *source, const QByteArray &packed, Format format);

    bool hasData() const { return m_next < m_have; }
    void fill();
    void lookForMember();
    void inflateBlock();
    void copyBlock();
    bool feed();
    void endMember();

    QIODevice *m_source; // null if all input stands in m_packed
    const QByteArray m_packed;
    const Format m_format;
    const int m_blockSize;
    std::unique_ptr<char[]> m_input; // of the source
    std::unique_ptr<char[]> m_block; // unpacked, of which [m_next, m_have) isn't delivered yet
    int m_next = 0;
    int m_have = 0;

    z_stream m_stream{};
    State m_state = State::Looking;
    bool m_inflaterMade = false;
    bool m_wasPlain = false;
    bool m_sourceFailed = false;
    qint64 m_fed = 0; // bytes of the source given to the inflater
    qint64 m_unpacked = 0;
    qint64 m_delivered = 0;
    qint64 m_limit = std::numeric_limits<qint64>::max();
    qint64 m_memberEnd = -1;
};
