// Opening a campaign: against unpacking its file, against reading its bytes, and by how many maps
// it has.
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "document/campaign_data.h"

#include <QFile>

#include <zlib.h>

#include <array>
#include <stdexcept>

#include <sys/mman.h>

namespace {

CampaignData opened(const QString &path)
{
    QFile file(path);
    CampaignData campaign;
    if (campaign.readCampaign(&file) || campaign.scenarios.empty() ||
        !campaign.scenarios.back().mapHeader)
        throw std::runtime_error("a campaign can't be opened");
    return campaign;
}

// The way of `gzip -t`: everything is unpacked, nothing kept.
void inflateOnce(const QByteArray &path)
{
    std::array<char, 65536> part;
    gzFile file = gzopen(path.constData(), "rb");
    gzbuffer(file, 128 * 1024);
    qint64 all = 0;
    int got = 0;
    while ((got = gzread(file, part.data(), unsigned(part.size()))) > 0)
        all += got;
    gzclose(file);
    if (got < 0 || all == 0)
        throw std::runtime_error("a campaign can't be unpacked");
}

// Into memory that the system maps for this read alone, as it does for a large block.
void readFresh(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        throw std::runtime_error("a campaign can't be read");
    const auto size = std::size_t(file.size());
    void *bytes = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED)
        throw std::runtime_error("no memory");
    const qint64 got = file.read(static_cast<char *>(bytes), qint64(size));
    munmap(bytes, size);
    if (got != qint64(size))
        throw std::runtime_error("a campaign can't be read");
}

// Opening alone: what it takes to be rid of the document again isn't counted.
rows::Measure opening(const QString &path)
{
    return [path] {
        CampaignData campaign;
        return rows::timed([&] { campaign = opened(path); })();
    };
}

} // namespace

void addOpeningRows(const Inputs &inputs)
{
    const QString path = inputs.campaign(8);
    rows::Row row;
    row.work = "open a campaign of eight 550 KB maps";
    row.memory = rows::Memory::Fresh;
    row.turns = 51;

    row.reference = "inflating the file once";
    row.kind = rows::Goal::TimesFaster;
    row.goal = 15;
    row.prepare = [path] {
        return rows::Pair{opening(path),
                          rows::timed([name = QFile::encodeName(path)] { inflateOnce(name); })};
    };
    rows::add(row);

    // Reading gives its memory back within its time, so opening does as well.
    row.reference = "reading its bytes into fresh memory";
    row.kind = rows::Goal::AtMost;
    row.goal = 1.5;
    row.turns = 101;
    row.prepare = [path] {
        return rows::Pair{rows::timed([path] { opened(path); }),
                          rows::timed([path] { readFresh(path); })};
    };
    rows::add(row);
}

void addOpeningGrowth(const Inputs &inputs)
{
    rows::Growth growth;
    growth.work = "open a campaign of 550 KB maps";
    growth.of = "maps";
    growth.turns = 9;
    growth.memory = rows::Memory::Fresh;
    growth.prepare = [inputs] {
        std::vector<rows::Step> steps;
        steps.reserve(campaignMaps.size());
        for (const unsigned maps : campaignMaps)
            steps.push_back({double(maps), opening(inputs.campaign(maps))});
        return steps;
    };
    rows::add(growth);
}
