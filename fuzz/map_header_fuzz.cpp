// Reads the input as the header of a map, and imports it as a map file.
#include "document/campaign_data.h"
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"

#include <QDataStream>
#include <QFile>

#include <cstdlib>

namespace {

void readHeader(const QByteArray &bytes, bool check)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData scenario;
    scenario.ReadMapHeader(stream, check);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    static MemoryFile input;
    static QFile missing(QStringLiteral("/proc/self/fd/none"));
    const auto bytes =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size));
    readHeader(bytes, true);
    readHeader(bytes, false);
    input.set(data, size);
    QFile file(input.path());
    ScenarioData scenario;
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const int answer = scenario.ReadMapFromFile(&file);
    if (answer != 1 && scenario.mapHeader)
        abort(); // a map that is refused changes nothing
    if (size % 32 == 0 && !(file.seek(file.size()) && scenario.ReadMapFromFile(&file) == answer))
        abort(); // the file is read from its start, wherever the handle stands
    if (scenario.ReadMapFromFile(&missing) == 1)
        abort();
    return 0;
}
