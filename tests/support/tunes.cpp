#include "tests/support/tunes.h"

#include "tests/support/byte_writer.h"

#include <vorbis/vorbisenc.h>

#include <cmath>

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr float loudness = 0.5F;
constexpr float quality = 0.4F;

// The Ogg stream around the packets of an encoder.
class OggWriter
{
public:
    OggWriter() { ogg_stream_init(&m_stream, 1); }
    ~OggWriter() { ogg_stream_clear(&m_stream); }
    OggWriter(const OggWriter &) = delete;
    OggWriter &operator=(const OggWriter &) = delete;

    void add(ogg_packet *packet) { ogg_stream_packetin(&m_stream, packet); }
    void flush()
    {
        ogg_page page;
        while (ogg_stream_flush(&m_stream, &page)) {
            bytes.append(reinterpret_cast<const char *>(page.header), int(page.header_len));
            bytes.append(reinterpret_cast<const char *>(page.body), int(page.body_len));
        }
    }

    QByteArray bytes;

private:
    ogg_stream_state m_stream = {};
};

// One channel of sound, encoded.
class Encoder
{
public:
    Encoder()
    {
        vorbis_info_init(&m_info);
        if (vorbis_encode_init_vbr(&m_info, 1, tunes::sampleRate, quality) != 0)
            qFatal("no encoder for OGG");
        vorbis_comment_init(&m_comment);
        vorbis_analysis_init(&m_state, &m_info);
        vorbis_block_init(&m_state, &m_block);
        ogg_packet packets[3];
        vorbis_analysis_headerout(&m_state, &m_comment, &packets[0], &packets[1], &packets[2]);
        for (ogg_packet &packet : packets)
            m_out.add(&packet);
        m_out.flush();
    }
    ~Encoder()
    {
        vorbis_block_clear(&m_block);
        vorbis_dsp_clear(&m_state);
        vorbis_comment_clear(&m_comment);
        vorbis_info_clear(&m_info);
    }
    Encoder(const Encoder &) = delete;
    Encoder &operator=(const Encoder &) = delete;

    float *room(int samples) { return vorbis_analysis_buffer(&m_state, samples)[0]; }

    // Takes the samples just filled in; none at all ends the sound.
    void take(int samples)
    {
        vorbis_analysis_wrote(&m_state, samples);
        while (vorbis_analysis_blockout(&m_state, &m_block) == 1) {
            vorbis_analysis(&m_block, nullptr);
            vorbis_bitrate_addblock(&m_block);
            ogg_packet packet;
            while (vorbis_bitrate_flushpacket(&m_state, &packet))
                m_out.add(&packet);
        }
        m_out.flush();
    }

    QByteArray bytes() const { return m_out.bytes; }

private:
    vorbis_info m_info = {};
    vorbis_comment m_comment = {};
    vorbis_dsp_state m_state = {};
    vorbis_block m_block = {};
    OggWriter m_out;
};

} // namespace

QByteArray tunes::wave(const Wave &wave)
{
    constexpr unsigned bits = 16;
    constexpr unsigned pcm = 1;
    const unsigned frameSize = 4;
    ByteWriter sound;
    for (int i = 0; i < wave.frames; ++i)
        sound.u16(unsigned(i + 1)).u16(unsigned(wave.mark));
    ByteWriter out;
    out.raw("RIFF").u32(quint32(36 + sound.size())).raw("WAVE");
    out.raw("fmt ").u32(16).u16(pcm).u16(wave.channels).u32(wave.rate);
    out.u32(wave.rate * frameSize).u16(frameSize).u16(bits);
    out.raw("data").u32(quint32(sound.size())).raw(sound.bytes());
    return out.bytes();
}

QByteArray tunes::ogg(int milliseconds, double hertz)
{
    const int count = sampleRate * milliseconds / 1000;
    Encoder encoder;
    float *samples = encoder.room(count);
    for (int i = 0; i < count; ++i)
        samples[i] = loudness * float(std::sin(2 * pi * hertz * i / sampleRate));
    encoder.take(count);
    encoder.take(0);
    return encoder.bytes();
}
