// The heads of the files that have one, all numbers little-endian:
//
//   WAV:  0  "RIFF", size (4), "WAVE"
//        12  chunks: name (4), size (4), that many bytes, one more if the size is odd
//            chunk "fmt ": format (2), channels (2), samples a second (4), ...
//
//   OGG:  0  page: "OggS", 22 bytes, number of lengths (1), the lengths
//        28  "\x01vorbis", version (4), channels (1), samples a second (4), ...
#include "shell/tune_file.h"

#include "gamedata/limits.h"
#include "gamedata/readable_file.h"

#include <QFile>
#include <QtEndian>

namespace {

constexpr qint64 headBytes = 44;

constexpr qint64 firstChunk = 12;
constexpr qint64 chunkHeadBytes = 8;

constexpr int oggChannels = 39;
constexpr int oggSampleRate = 40;

template<typename Number>
Number numberAt(const QByteArray &bytes, int offset)
{
    return qFromLittleEndian<Number>(bytes.constData() + offset);
}

bool isSound(unsigned channels, quint32 sampleRate)
{
    return channels > 0 && sampleRate >= lowestSampleRate;
}

bool isSoundFormat(const QByteArray &chunk)
{
    return chunk.size() == 8 && isSound(numberAt<quint16>(chunk, 2), numberAt<quint32>(chunk, 4));
}

// The sound library takes the last format of several.
bool formatsAreSound(QFile &file)
{
    qint64 place = firstChunk;
    for (int i = 0; i <= limits::tuneChunks; ++i) {
        if (!file.seek(place))
            return true;
        const QByteArray head = file.read(chunkHeadBytes);
        if (head.size() < chunkHeadBytes)
            return true;
        if (head.startsWith("fmt ") && !isSoundFormat(file.read(8)))
            return false;
        const qint64 size = numberAt<quint32>(head, 4);
        place += chunkHeadBytes + size + size % 2;
    }
    return false;
}

} // namespace

std::optional<TuneKind> tuneKind(const QString &path)
{
    QFile file(path);
    if (openToRead(file))
        return {};
    const QByteArray head = file.read(headBytes);
    if (head.startsWith("RIFF"))
        return formatsAreSound(file) ? std::optional(TuneKind::Wave) : std::nullopt;
    if (!head.startsWith("OggS"))
        return TuneKind::Mp3;
    const bool sound = head.size() == headBytes &&
                       isSound(quint8(head[oggChannels]), numberAt<quint32>(head, oggSampleRate));
    return sound ? std::optional(TuneKind::Ogg) : std::nullopt;
}
