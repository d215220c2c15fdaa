// An icon file, little-endian:
//   0   2  zero
//   2   2  1, an icon
//   4   2  count of entries
//   6   16 an entry: width, height (0 means 256), colours, zero (a byte each), planes, bits
//          (2 bytes each), size, offset of the picture (4 bytes each)
// and then the pictures, here whole PNG files.
#include "tools/sample_game/art/icon_file.h"

#include <QBuffer>
#include <QDataStream>
#include <QSaveFile>

namespace art {

namespace {

constexpr quint32 kHeaderSize = 6;
constexpr quint32 kEntrySize = 16;

} // namespace

bool writeIcon(const QVector<QImage> &pictures, const QString &path)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out << quint16{0} << quint16{1} << static_cast<quint16>(pictures.size());
    quint32 offset = kHeaderSize + kEntrySize * static_cast<quint32>(pictures.size());
    QByteArray body;
    for (const QImage &picture : pictures) {
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        picture.save(&buffer, "PNG", 0);
        const auto side = static_cast<quint8>(picture.width() & 0xFF);
        out << side << side << quint8{0} << quint8{0} << quint16{1} << quint16{32}
            << static_cast<quint32>(png.size()) << offset;
        offset += static_cast<quint32>(png.size());
        body += png;
    }
    out.writeRawData(body.constData(), body.size());
    return out.status() == QDataStream::Ok && file.commit();
}

} // namespace art
