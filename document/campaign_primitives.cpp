#include "document/campaign_primitives.h"

#include "document/text_bytes.h"
#include "gamedata/limits.h"

#include <algorithm>
#include <climits>

namespace {

constexpr int firstStep = 64 * 1024;
constexpr int mostBytes = INT_MAX - 64; // a QByteArray keeps its own head in the same int

} // namespace

QByteArray readBytes(QDataStream &stream, quint32 count)
{
    QByteArray bytes;
    int step = firstStep;
    while (quint32(bytes.size()) < count && bytes.size() < mostBytes) {
        const int before = bytes.size();
        const qint64 missing = std::min<qint64>(count, mostBytes) - before;
        const int wanted = int(std::min<qint64>(step, missing));
        bytes.resize(before + wanted);
        const int got = std::max(0, stream.readRawData(bytes.data() + before, wanted));
        if (got < wanted) {
            bytes.truncate(before + got);
            break;
        }
        step = bytes.size();
    }
    return bytes;
}

void ReadHString4(QDataStream &stream, QString &text)
{
    text = textFromBytes(readBytes(stream, readNumber<quint32>(stream)));
}

void WriteHString4(QDataStream &stream, QString &text)
{
    if (text.isEmpty()) {
        stream << quint32(0);
        return;
    }
    const QByteArray bytes = bytesFromText(text);
    stream << quint32(bytes.size());
    stream.writeRawData(bytes.constData(), bytes.size());
}

void ReadBitArray(QDataStream &stream, QBitArray &bits, unsigned int count)
{
    const quint64 wanted = std::min<quint64>(count, INT_MAX - 64);
    QByteArray bytes = readBytes(stream, quint32((wanted + 7) / 8));
    const quint64 present = quint64(bytes.size()) * 8;
    const int size = int(std::min(wanted, std::max<quint64>(present, limits::bitsWithoutData)));
    if (present < quint64(size))
        bytes.append((size + 7) / 8 - bytes.size(), '\0');
    bits = QBitArray::fromBits(bytes.constData(), size);
}

void WriteBitArray(QDataStream &stream, QBitArray &bits, unsigned int count)
{
    QByteArray bytes(int((quint64(count) + 7) / 8), '\0');
    const int used = int(std::min<quint64>(count, quint64(bits.size())));
    std::copy_n(bits.bits(), (used + 7) / 8, bytes.begin());
    if (used % 8 != 0)
        bytes[used / 8] = char(uchar(bytes.at(used / 8)) & (0xffu >> (8 - used % 8)));
    stream.writeRawData(bytes.constData(), bytes.size());
}

void ReadPrologueEpilogue(QDataStream &stream, std::shared_ptr<CmpPrologue> &prologue)
{
    if (readNumber<quint8>(stream) != 1)
        return;
    auto read = std::make_shared<CmpPrologue>();
    stream >> read->videoId >> read->musicIndex;
    ReadHString4(stream, read->text);
    prologue = std::move(read);
}

void WritePrologueEpilogue(QDataStream &stream, std::shared_ptr<CmpPrologue> &prologue)
{
    stream << quint8(prologue ? 1 : 0);
    if (!prologue)
        return;
    stream << prologue->videoId << prologue->musicIndex;
    WriteHString4(stream, prologue->text);
}
