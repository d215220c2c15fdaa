#include "gamedata/lod_archive.h"

#include "gamedata/limits.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace {

constexpr qint64 headerBytes = 92;
constexpr qint64 entryBytes = sizeof(LodFile);

// The index is taken in pieces of this many entries. The game's own archives fit into one.
constexpr qint64 entriesPerRead = 16384;

// Packed data is taken in pieces, since its size is the file's word and the result may need little
// of it.
constexpr qint64 packedPiece = qint64(256) * 1024;

struct ArchivePriority
{
    const char *baseName;
    int priority;
};

constexpr std::array<ArchivePriority, 6> archivePriorities = {{
    {"E3bitmap", 0},
    {"E3sprite", 1},
    {"Ravn", 2},
    {"Ravn_ext", 3},
    {"Ravn_lng", 4},
    {"Ravn_l_ext", 5},
}};

int priorityOf(const LodArchive &archive)
{
    const QString baseName = QFileInfo(archive.path).baseName();
    for (const ArchivePriority &known : archivePriorities) {
        if (baseName == QLatin1String(known.baseName))
            return known.priority;
    }
    return 0;
}

// A name of the index in lower case, filled up with zeros: sorts as the map's keys do.
using LowerName = std::array<unsigned char, sizeof(LodFile::name)>;

struct KeptEntry
{
    LowerName key;
    LodFile file;
};

char lowerAscii(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? char(letter - 'A' + 'a') : letter;
}

// A name may fill its 16 bytes without a zero behind it.
uint nameLength(const LodFile &file)
{
    return qstrnlen(file.name, sizeof(file.name));
}

bool isKept(const LodFile &file)
{
    const uint length = nameLength(file);
    if (length < 3)
        return false;
    const char *ending = file.name + length - 3;
    return qstrnicmp(ending, "pcx", 3) == 0 || qstrnicmp(ending, "txt", 3) == 0;
}

LodFile parseEntry(const char *bytes)
{
    LodFile file;
    std::memcpy(file.name, bytes, sizeof(file.name));
    file.offset = qFromLittleEndian<quint32>(bytes + 16);
    file.size = qFromLittleEndian<qint32>(bytes + 20);
    file.type = qFromLittleEndian<quint32>(bytes + 24);
    file.compressedSize = qFromLittleEndian<qint32>(bytes + 28);
    return file;
}

// A count that lies makes no room for more entries than the file has.
std::vector<KeptEntry> readIndex(QFile &file, qint64 count)
{
    count = std::min(count, (file.size() - file.pos()) / entryBytes + 1);
    std::vector<KeptEntry> kept;
    QByteArray piece;
    while (count > 0) {
        piece = file.read(std::min(count, entriesPerRead) * entryBytes);
        const qint64 complete = piece.size() / entryBytes;
        for (qint64 i = 0; i < complete; ++i) {
            KeptEntry entry{{}, parseEntry(piece.constData() + i * entryBytes)};
            if (!isKept(entry.file))
                continue;
            const uint length = nameLength(entry.file);
            for (uint letter = 0; letter < length; ++letter)
                entry.key[letter] = static_cast<unsigned char>(lowerAscii(entry.file.name[letter]));
            kept.push_back(entry);
        }
        if (complete < std::min(count, entriesPerRead))
            break;
        count -= complete;
    }
    return kept;
}

QString textOfKey(const LowerName &key)
{
    const char *bytes = reinterpret_cast<const char *>(key.data());
    const uint length = qstrnlen(bytes, uint(key.size()));
    return QString::fromLatin1(bytes, int(length));
}

// True if the file has `length` bytes from `offset` on.
bool holds(const QFile &file, qint64 offset, qint64 length)
{
    const qint64 size = file.size();
    return offset >= 0 && length >= 0 && offset <= size && length <= size - offset;
}

char *newBuffer(int size)
{
    char *buffer = new char[size_t(size) + 1];
    buffer[size] = '\0';
    return buffer;
}

// Inflates at most `compressedSize` bytes of the file until `size` bytes are there or the stream
// ends in whatever way. Answers the number of bytes made.
int inflateInto(char *target, int size, QFile &file, qint64 compressedSize)
{
    z_stream stream = {};
    if (inflateInit(&stream) != Z_OK)
        return 0;
    stream.next_out = reinterpret_cast<Bytef *>(target);
    stream.avail_out = uInt(size);

    std::vector<char> piece(size_t(std::min(compressedSize, packedPiece)));
    int status = Z_OK;
    while (status == Z_OK && stream.avail_out > 0 && compressedSize > 0) {
        const qint64 got =
            file.read(piece.data(), std::min<qint64>(compressedSize, qint64(piece.size())));
        if (got <= 0)
            break;
        compressedSize -= got;
        stream.next_in = reinterpret_cast<Bytef *>(piece.data());
        stream.avail_in = uInt(got);
        status = inflate(&stream, Z_NO_FLUSH);
    }
    inflateEnd(&stream);
    return size - int(stream.avail_out);
}

} // namespace

void LodArchive::Read(QFile &file, const QString &archivePath)
{
    path = archivePath;
    if (file.read(magic, sizeof(magic)) < 0 || std::strncmp(magic, "LOD", sizeof(magic)) != 0)
        return;

    const QByteArray header = file.read(headerBytes - qint64(sizeof(magic)));
    if (header.size() < headerBytes - qint64(sizeof(magic)))
        return;
    version = qFromLittleEndian<quint32>(header.constData());
    fileCount = qFromLittleEndian<qint32>(header.constData() + 4);
    std::memcpy(reserved, header.constData() + 8, sizeof(reserved));

    // Sorted first, every insertion goes to the map's end and needs no search. The order among
    // equal names stays, so that the later entry replaces the earlier one.
    std::vector<KeptEntry> kept = readIndex(file, fileCount);
    std::stable_sort(kept.begin(), kept.end(),
                     [](const KeptEntry &a, const KeptEntry &b) { return a.key < b.key; });
    for (const KeptEntry &entry : kept)
        files.insert(files.cend(), textOfKey(entry.key), entry.file);
}

bool LodArchive::hasFile(const QString &name) const
{
    return files.contains(name.toLower());
}

char *LodArchive::getFileData(const QString &name, int *size) const
{
    const auto found = files.constFind(name.toLower());
    if (found == files.cend())
        return nullptr;
    const LodFile &entry = *found;
    const QString storedName = QString::fromLatin1(entry.name, int(nameLength(entry)));
    if (name.compare(storedName, Qt::CaseInsensitive) != 0)
        return nullptr;

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return nullptr;
    const bool packed = entry.compressedSize != 0;
    if (!holds(file, entry.offset, packed ? entry.compressedSize : entry.size) || entry.size < 0 ||
        entry.size > limits::archiveEntryBytes || !file.seek(entry.offset))
        return nullptr;

    char *data = nullptr;
    if (packed) {
        data = zlib_decompress(file, entry.compressedSize, entry.size);
    } else {
        data = newBuffer(entry.size);
        const qint64 got = std::max<qint64>(file.read(data, entry.size), 0);
        std::memset(data + got, 0, size_t(entry.size - got));
    }
    if (data && size)
        *size = entry.size;
    return data;
}

bool CompLods::operator()(const LodArchive &a, const LodArchive &b) const
{
    return priorityOf(a) > priorityOf(b);
}

char *zlib_decompress(QFile &file, int compressedSize, int size)
{
    if (compressedSize < 0 || size < 0 || size > limits::archiveEntryBytes ||
        size > compressedSize * limits::deflateRatio || !holds(file, file.pos(), compressedSize))
        return nullptr;
    char *data = newBuffer(size);
    const int made = inflateInto(data, size, file, compressedSize);
    std::memset(data + made, 0, size_t(size - made));
    return data;
}
