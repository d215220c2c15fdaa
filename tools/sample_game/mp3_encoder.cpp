#include "tools/sample_game/mp3_encoder.h"

#include <lame/lame.h>

#include <memory>

namespace sample {

namespace {

constexpr int kKilobitsPerSecond = 64;
constexpr int kQuality = 5;
constexpr int kFlushRoom = 7200; // what the encoder asks for besides its input

struct CloseEncoder
{
    void operator()(lame_t encoder) const { lame_close(encoder); }
};

} // namespace

QByteArray mp3File(const QVector<qint16> &sound, int sampleRate)
{
    const std::unique_ptr<lame_global_struct, CloseEncoder> encoder(lame_init());
    lame_set_num_channels(encoder.get(), 1);
    lame_set_in_samplerate(encoder.get(), sampleRate);
    lame_set_out_samplerate(encoder.get(), sampleRate);
    lame_set_mode(encoder.get(), MONO);
    lame_set_brate(encoder.get(), kKilobitsPerSecond);
    lame_set_quality(encoder.get(), kQuality);
    lame_set_bWriteVbrTag(encoder.get(), 0);
    if (lame_init_params(encoder.get()) < 0)
        qFatal("the MP3 encoder can't be set up");

    QByteArray file(sound.size() * 5 / 4 + 2 * kFlushRoom, Qt::Uninitialized);
    auto *out = reinterpret_cast<unsigned char *>(file.data());
    const int body = lame_encode_buffer(encoder.get(), sound.constData(), nullptr, sound.size(),
                                        out, file.size() - kFlushRoom);
    if (body < 0)
        qFatal("the MP3 encoder failed");
    const int tail = lame_encode_flush(encoder.get(), out + body, kFlushRoom);
    file.truncate(body + qMax(0, tail));
    return file;
}

} // namespace sample
