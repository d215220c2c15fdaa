#include "cli/record_picture.h"

#include "gamedata/limits.h"
#include "gamedata/pcx_image.h"

#include <QtEndian>

#include <cstring>

namespace {

constexpr int plainHeaderBytes = 12;
constexpr int paletteBytes = 256 * 3;
constexpr char wideMagic[] = {'P', '3', '2', 'F'};

} // namespace

QImage pictureOfRecord(char *record, int size)
{
    if (size < plainHeaderBytes)
        return {};
    if (std::memcmp(record, wideMagic, sizeof wideMagic) == 0)
        return ReadFromArray(record, size);
    const quint32 width = qFromLittleEndian<quint32>(record + 4);
    const quint32 height = qFromLittleEndian<quint32>(record + 8);
    if (width > limits::pictureSide || height > limits::pictureSide)
        return {};
    const qint64 pixels = qint64(width) * height;
    if (plainHeaderBytes + pixels + paletteBytes == size)
        return ReadFromArrayPalette(record, Qt::cyan, size);
    if (plainHeaderBytes + 3 * pixels == size)
        return ReadFromArray(record, size);
    return {};
}
