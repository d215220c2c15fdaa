#include "tests/support/heard_sound.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <algorithm>

namespace {

constexpr int frameBytes = 4; // two channels of 16 bits

bool isSound(const HeardFrame &frame)
{
    return !frame.isSilent();
}

} // namespace

HeardSound::HeardSound(int chunkMilliseconds) : m_path(m_dir.filePath("heard.raw"))
{
    qputenv("SDL_AUDIODRIVER", "disk");
    qputenv("SDL_DISKAUDIOFILE", QFile::encodeName(m_path));
    qputenv("SDL_DISKAUDIODELAY", QByteArray::number(chunkMilliseconds));
}

void HeardSound::clear()
{
    m_start = QFileInfo(m_path).size() / frameBytes * frameBytes;
}

QByteArray HeardSound::bytes(qint64 from) const
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly) || !file.seek(from))
        return {};
    return file.readAll();
}

QVector<HeardFrame> HeardSound::frames() const
{
    const QByteArray heard = bytes(m_start);
    QVector<HeardFrame> frames;
    frames.reserve(heard.size() / frameBytes);
    for (int at = 0; at + frameBytes <= heard.size(); at += frameBytes) {
        frames.append({qFromLittleEndian<qint16>(heard.constData() + at),
                       qFromLittleEndian<qint16>(heard.constData() + at + 2)});
    }
    return frames;
}

QVector<HeardFrame> HeardSound::sound() const
{
    const QVector<HeardFrame> all = frames();
    const auto first = std::find_if(all.begin(), all.end(), isSound);
    const auto last = std::find_if(all.rbegin(), all.rend(), isSound).base();
    QVector<HeardFrame> between;
    for (auto frame = first; frame < last; ++frame)
        between.append(*frame);
    return between;
}

int HeardSound::count() const
{
    return int((QFileInfo(m_path).size() - m_start) / frameBytes);
}

bool HeardSound::endsSilent(int frameCount) const
{
    if (count() < frameCount)
        return false;
    const QByteArray end = bytes(QFileInfo(m_path).size() - qint64(frameCount) * frameBytes);
    return std::all_of(end.begin(), end.end(), [](char byte) { return byte == 0; });
}
