// Reads the input as a picture record of each form, by itself and as a file of an archive.
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"
#include "gamedata/pcx_image.h"
#include "tests/support/byte_writer.h"

#include <QFile>

#include <cstdlib>
#include <cstring>
#include <memory>

namespace {

constexpr int headerSize = 92;
constexpr int entrySize = 32;

QImage fromArchive(const QByteArray &record, QImage (*open)(const QString &))
{
    static MemoryFile memory;
    ByteWriter archive;
    archive.raw(QByteArray("LOD\0", 4)).u32(200).u32(1).zeros(80).name16("fuzz.pcx");
    archive.u32(headerSize + entrySize).u32(quint32(record.size())).u32(0).u32(0).raw(record);
    memory.set(archive.bytes());
    QFile file(memory.path());
    LodArchive index;
    if (!file.open(QIODevice::ReadOnly))
        abort();
    index.Read(file, memory.path());
    EditorData::lod_archives = {index};
    return open(QStringLiteral("fuzz.pcx"));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    // Exactly the record's bytes, so that a step past its end is seen.
    const std::unique_ptr<char[]> record(new char[size]);
    if (size > 0)
        std::memcpy(record.get(), data, size);
    const auto length = qint64(size);
    ReadFromArray(record.get(), length);
    ReadFromArray_P32(record.get(), length);
    ReadFromArray_16bit(record.get(), length);
    const QImage small = ReadFromArrayPalette_16bit(record.get(), length);
    const QImage image = ReadFromArrayPalette(record.get(), Qt::cyan, length);
    if (image != ReadFromArrayPalette_Slow(record.get(), Qt::cyan, length))
        abort(); // the quick way and the plain one disagree
    const auto bytes = QByteArray::fromRawData(record.get(), int(size));
    if (fromArchive(bytes, OpenPcx8Image) != image ||
        fromArchive(bytes, OpenPcx8Image_16bit) != small)
        abort();
    return 0;
}
