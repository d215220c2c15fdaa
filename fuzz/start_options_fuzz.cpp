// Reads the input as the start options of a scenario, and writes and reads them again.
#include "document/campaign_data.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"

#include <QDataStream>

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace {

ScenarioData readOptions(const QByteArray &bytes)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    ScenarioData scenario;
    scenario.ReadStartOptions(stream);
    return scenario;
}

QByteArray writeOptions(ScenarioData &scenario)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setByteOrder(QDataStream::LittleEndian);
    scenario.WriteStartOptions(stream);
    return bytes;
}

// A map with a player whose town brings forth a hero, behind one who has nothing.
std::shared_ptr<MapHeader> mapWithTown()
{
    auto header = std::make_shared<MapHeader>();
    PlayerAttributes &player = header->players[1];
    player.canHuman = 1;
    player.hasMainTown = 1;
    player.generatesHero = 1;
    return header;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(fillSmallTables);
    const TimeLimit limit;
    static const std::shared_ptr<MapHeader> map = mapWithTown();
    ScenarioData scenario =
        readOptions(QByteArray::fromRawData(reinterpret_cast<const char *>(data), int(size)));
    for (const auto &header : {std::shared_ptr<MapHeader>(), map}) {
        scenario.mapHeader = header;
        const QByteArray written = writeOptions(scenario);
        ScenarioData again = readOptions(written);
        again.mapHeader = header;
        if (writeOptions(again) != written)
            abort(); // what was written is longer or shorter than its counts say
    }
    return 0;
}
