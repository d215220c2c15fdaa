// Reads the input as an archive and unpacks all its files.
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/lod_archive.h"

#include <QFile>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <vector>

namespace {

// Reads every byte of the answer and the zero behind it. What isn't in the index has no bytes.
void readAll(const LodArchive &archive, const QString &name)
{
    int size = 0;
    const std::unique_ptr<char[]> bytes(archive.getFileData(name, &size));
    if (bytes && !archive.hasFile(name))
        abort();
    if (bytes && (size < 0 || QByteArray(bytes.get(), size + 1).back() != '\0'))
        abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start;
    const TimeLimit limit;
    static MemoryFile input;
    input.set(data, size);
    QFile file(input.path());
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    LodArchive archive;
    archive.Read(file, input.path());
    for (auto entry = archive.files.begin(); entry != archive.files.end(); ++entry)
        readAll(archive, entry.key());
    // Behind one that goes first, whatever is in it.
    std::vector<LodArchive> archives{archive, LodArchive()};
    archives.back().path = QStringLiteral("Data/Ravn.lod");
    std::stable_sort(archives.begin(), archives.end(), CompLods());
    if (archives.front().path == archive.path)
        abort();
    return 0;
}
