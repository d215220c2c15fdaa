#include "tests/performance/campaign_of_maps.h"

#include "tests/support/byte_writer.h"
#include "tests/support/packing.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace {

constexpr unsigned differentMaps = 8;

// Names, no heroes, and as long a description as large maps have.
QByteArray mapHeader()
{
    constexpr int players = 8;
    ByteWriter out;
    out.u32(28).u8(1).u32(144).u8(1).text("Shore");
    out.text(QByteArray("Cold winds blow from the sea. ").repeated(70)).u8(2).u8(2);
    for (int player = 0; player < players; ++player)
        out.zeros(9).u8(255).zeros(5);
    out.u8(255).u8(255).u8(0).zeros(20 + 4 + 1 + 31);
    return out.bytes();
}

// Tiles of a few kinds in patches, with a little noise: shrinks to about a quarter.
QByteArray mapBody(int size, quint32 seed)
{
    QByteArray bytes(size, '\0');
    quint32 state = seed;
    const auto next = [&] { return (state = state * 1664525u + 1013904223u) >> 16; };
    for (int i = 0; i + 7 <= size; i += 7) {
        bytes[i] = char(i / 700 % 9);
        bytes[i + 1] = char(next() % 40);
        bytes[i + 4] = char(next() % 12 == 0 ? next() % 256 : 0);
        bytes[i + 6] = char(next() % 4);
    }
    return bytes;
}

QByteArray mapFile(int packedBytes, quint32 seed)
{
    constexpr int attempts = 8;
    int size = 4 * packedBytes;
    QByteArray packed;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        packed = packing::gzip(mapHeader() + mapBody(size, seed));
        if (std::abs(packed.size() - packedBytes) <= packedBytes / 100)
            break;
        size = int(qint64(size) * packedBytes / packed.size());
    }
    return packed;
}

} // namespace

CampaignData campaignOfMaps(unsigned scenarios, int packedBytes)
{
    std::vector<QByteArray> maps;
    for (quint32 seed = 1; seed <= std::min(scenarios, differentMaps); ++seed)
        maps.push_back(mapFile(packedBytes, seed));

    CampaignData campaign;
    campaign.initDummyCampaign(24, false, 0, scenarios);
    campaign.name = "Ember Road";
    for (std::size_t i = 0; i < campaign.scenarios.size(); ++i) {
        ScenarioData &scenario = campaign.scenarios[i];
        scenario.mapFileName = QStringLiteral("map%1.e3m").arg(i);
        scenario.compressedMap = maps[i % maps.size()];
        scenario.mapSize = quint32(scenario.compressedMap.size());
        scenario.regionText = "A long way from home.";
        scenario.prologues[0] = std::make_shared<CmpPrologue>(
            CmpPrologue{1, 2, QString("The road is long. ").repeated(40)});
    }
    return campaign;
}
