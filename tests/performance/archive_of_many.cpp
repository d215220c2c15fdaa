#include "tests/performance/archive_of_many.h"

#include "tests/support/game_bytes.h"

#include <QFile>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr int headerBytes = 92;
constexpr int entryBytes = 32;
constexpr int differentPictures = 16;

struct Picture
{
    QByteArray plain;
    QByteArray packed;
};

// A square picture with a palette, as large as it takes to fill the bytes; half noise, so that it
// shrinks to something between.
Picture picture(int bytes, quint32 seed)
{
    constexpr int frame = 12 + 3 * 256;
    const int side = std::max(1, int(std::sqrt(std::max(1, bytes - frame))));
    ByteWriter out;
    out.u32(quint32(side * side)).u32(quint32(side)).u32(quint32(side));
    quint32 state = seed;
    for (int i = 0; i < side * side; ++i) {
        state = state * 1664525u + 1013904223u;
        out.u8(i / 8 % 2 == 0 ? state >> 24 : 7);
    }
    for (unsigned colour = 0; colour < 256; ++colour)
        out.u8(colour).u8(255 - colour).u8(colour / 2);
    return {out.bytes(), game_files::packed(out.bytes())};
}

QByteArray nameOf(int entry)
{
    const char *ending = entry % 2 == 0 ? ".pcx" : ".def";
    return QByteArray("many") + QByteArray::number(entry) + ending;
}

} // namespace

bool writeArchiveOfMany(const QString &path, int entries, qint64 bytes)
{
    // Every second one is packed, so the average is less than a picture's size.
    const qint64 each = bytes / entries;
    const Picture trial = picture(int(each), 0);
    const qint64 both = trial.plain.size() + trial.packed.size();
    std::array<Picture, differentPictures> pictures;
    for (int i = 0; i < differentPictures; ++i)
        pictures[std::size_t(i)] = picture(int(2 * each * each / both), quint32(i + 1));
    const auto isPacked = [](int entry) { return entry / 2 % 2 == 0; };
    const auto pictureOf = [&](int entry) -> const Picture & {
        return pictures[std::size_t(entry % differentPictures)];
    };

    QByteArray index = game_files::archiveHeader(entries);
    auto offset = quint32(headerBytes + entryBytes * entries);
    for (int entry = 0; entry < entries; ++entry) {
        const Picture &used = pictureOf(entry);
        const int packed = isPacked(entry) ? used.packed.size() : 0;
        index += game_files::indexEntry(nameOf(entry), offset, used.plain.size(), packed);
        offset += quint32(packed != 0 ? packed : used.plain.size());
    }

    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(index) != index.size())
        return false;
    for (int entry = 0; entry < entries; ++entry) {
        const Picture &used = pictureOf(entry);
        const QByteArray &body = isPacked(entry) ? used.packed : used.plain;
        if (file.write(body) != body.size())
            return false;
    }
    return file.flush();
}
