#include "document/embedded_map.h"

#include "document/inflating_device.h"
#include "gamedata/limits.h"

#include <QDataStream>
#include <QtEndian>

#include <algorithm>

#include <sys/mman.h>
#include <unistd.h>

namespace {

constexpr int trailerSize = 4; // a gzip member's last bytes: the unpacked size

// How much of a map may be unpacked at most. A size that deflate can't have made is damage, and
// so is everything that follows from it. Of a map that was cut short the last bytes tell nothing.
qint64 unpackedBound(const QByteArray &map, bool whole)
{
    if (!whole)
        return limits::mapHeaderBytes;
    if (map.size() < trailerSize)
        return 0;
    const qint64 stated = qFromLittleEndian<quint32>(map.constData() + map.size() - trailerSize);
    return stated <= limits::deflateRatio * map.size() ? stated : 0;
}

// Room for a map's bytes, its pages asked for in one go: read() would fault them in one by one,
// which costs more than the copy. Where the system can't, it does.
QByteArray roomFor(qint64 size)
{
    QByteArray room(int(size), Qt::Uninitialized);
#ifdef MADV_POPULATE_WRITE
    const quintptr page = quintptr(sysconf(_SC_PAGESIZE));
    const quintptr begin = (quintptr(room.data()) + page - 1) / page * page;
    const quintptr end = (quintptr(room.data()) + quintptr(size)) / page * page;
    if (begin < end)
        madvise(reinterpret_cast<void *>(begin), end - begin, MADV_POPULATE_WRITE);
#endif
    return room;
}

// Reads the header and answers how many bytes it took.
qint64 readHeader(ScenarioData &scenario, qint64 bound)
{
    InflatingDevice device(scenario.compressedMap, InflatingDevice::Format::Embedded);
    device.setLimit(bound);
    QDataStream stream(&device);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.ReadMapHeader(stream, false);
    return device.delivered();
}

} // namespace

bool readEmbeddedMaps(QFile &file, qint64 offset, std::vector<ScenarioData> &scenarios)
{
    if (file.isSequential())
        return false; // its bytes are gone once the header has been read
    const qint64 fileSize = file.size();
    if (!canBeHeld(scenarios, fileSize - offset))
        return false;
    qint64 allowance = limits::mapHeaderBytes;
    for (ScenarioData &scenario : scenarios) {
        if (scenario.mapSize == 0)
            continue;
        const qint64 promised = scenario.mapSize;
        const qint64 size = std::clamp(fileSize - offset, qint64(0), promised);
        // A map that the disk doesn't give back mustn't look like one that was never there: the
        // next save would make that true.
        if (size > 0) {
            scenario.compressedMap = roomFor(size);
            if (!file.seek(offset) || file.read(scenario.compressedMap.data(), size) != size)
                return false;
        }
        offset += promised;
        scenario.mapSize = quint32(size);
        if (scenario.mapSize == 0)
            continue;
        allowance += limits::mapHeaderRatio * qint64(scenario.mapSize);
        const qint64 bound = unpackedBound(scenario.compressedMap, scenario.mapSize == promised);
        allowance -= readHeader(scenario, std::min({bound, limits::mapHeaderBytes, allowance}));
    }
    return true;
}

// A hole in a file has no size on the disk, but all of it in memory.
bool canBeHeld(const std::vector<ScenarioData> &scenarios, qint64 there)
{
    qint64 left = std::max(qint64(0), there);
    qint64 held = 0;
    for (const ScenarioData &scenario : scenarios) {
        const qint64 size = std::min(left, qint64(scenario.mapSize));
        left -= size;
        held += size;
        if (size > limits::mapBytes || held > limits::campaignMapBytes)
            return false;
    }
    return true;
}
