// How fast a campaign is opened and saved, and what memory that takes, against plain work of the
// same kind. The campaign has eight maps of 550 KB.
#include "document/campaign_data.h"
#include "gamedata/editor_data.h"
#include "gamedata/safe_save.h"

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <vector>

#include <sys/mman.h>

namespace {

constexpr int maps = 8;
constexpr int mapSize = 550 * 1024;
constexpr int runs = 101;

double milliseconds(const std::function<void()> &work)
{
    QElapsedTimer timer;
    timer.start();
    work();
    return double(timer.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + runs / 2, values.end());
    return values[runs / 2];
}

struct Comparison
{
    double ratio = 0; // the median of the rounds' ratios
    double work = 0;  // medians in milliseconds
    double measure = 0;
};

// Does the work and its measure in turns, and compares within each round: what slows the machine
// for longer than a round slows both. Each goes first as often as the other. What tidies up after
// a round isn't timed.
Comparison compare(const std::function<void()> &work, const std::function<void()> &measure,
                   const std::function<void()> &tidy)
{
    work();
    measure();
    tidy();
    std::vector<double> ratios;
    std::vector<double> works;
    std::vector<double> measures;
    for (int run = 0; run < runs; ++run) {
        const bool workFirst = run % 2 == 0;
        const double first = milliseconds(workFirst ? work : measure);
        const double second = milliseconds(workFirst ? measure : work);
        works.push_back(workFirst ? first : second);
        measures.push_back(workFirst ? second : first);
        ratios.push_back(works.back() / measures.back());
        tidy();
    }
    return {median(ratios), median(works), median(measures)};
}

void append(QByteArray &bytes, quint32 value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += char(value >> (8 * i));
}

// A header of version 28 with names, and no heroes; 4 KB of description as long maps have it.
QByteArray mapHeader()
{
    QByteArray bytes;
    append(bytes, 28, 4);
    append(bytes, 1, 1);
    append(bytes, 144, 4);
    append(bytes, 1, 1);
    append(bytes, 5, 4);
    bytes += "Shore";
    append(bytes, 4000, 4);
    bytes += QByteArray("Cold winds blow from the sea. ").repeated(134).left(4000);
    bytes += QByteArray(2, '\2');
    for (int player = 0; player < 8; ++player)
        bytes += QByteArray(9, '\0') + '\xFF' + QByteArray(5, '\0');
    bytes += QByteArray("\xFF\xFF\0", 3) + QByteArray(20 + 4 + 1 + 31, '\0');
    return bytes;
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

QByteArray pack(const QByteArray &data)
{
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, 31, 8, Z_DEFAULT_STRATEGY);
    QByteArray packed(int(deflateBound(&stream, uLong(data.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(data.constData()));
    stream.avail_in = uInt(data.size());
    stream.next_out = reinterpret_cast<Bytef *>(packed.data());
    stream.avail_out = uInt(packed.size());
    deflate(&stream, Z_FINISH);
    packed.truncate(int(stream.total_out));
    deflateEnd(&stream);
    return packed;
}

// A body of the size that makes the packed map 550 KB, within one per cent.
QByteArray mapFile(quint32 seed)
{
    int size = 4 * mapSize;
    for (int attempt = 0; attempt < 8; ++attempt) {
        QByteArray packed = pack(mapHeader() + mapBody(size, seed));
        if (std::abs(packed.size() - mapSize) < mapSize / 100)
            return packed;
        size = int(qint64(size) * mapSize / packed.size());
    }
    return pack(mapHeader() + mapBody(size, seed));
}

CampaignData makeCampaign()
{
    CampaignData campaign;
    campaign.initDummyCampaign(1, true, 0, 0);
    campaign.name = "Ember Road";
    for (int i = 0; i < maps; ++i) {
        ScenarioData &scenario = campaign.scenarios[size_t(i)];
        scenario.mapFileName = QStringLiteral("map%1.e3m").arg(i);
        scenario.compressedMap = mapFile(quint32(i + 1));
        scenario.mapSize = quint32(scenario.compressedMap.size());
        scenario.regionText = "A long way from home.";
        scenario.prologues[0] = std::make_shared<CmpPrologue>(
            CmpPrologue{1, 2, QString("The road is long. ").repeated(40)});
    }
    return campaign;
}

// The way of `gzip -t`: everything is unpacked, nothing kept.
qint64 inflateOnce(const QByteArray &path)
{
    std::array<char, 65536> part;
    gzFile file = gzopen(path.constData(), "rb");
    gzbuffer(file, 128 * 1024);
    qint64 all = 0;
    int got = 0;
    while ((got = gzread(file, part.data(), unsigned(part.size()))) > 0)
        all += got;
    gzclose(file);
    return all;
}

// Into memory that the system maps for this read alone, as it does for a large block.
bool readFresh(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    const qint64 size = file.size();
    void *bytes =
        mmap(nullptr, size_t(size), PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (bytes == MAP_FAILED)
        return false;
    const bool whole = file.read(static_cast<char *>(bytes), size) == size;
    munmap(bytes, size_t(size));
    return whole;
}

qint64 statusBytes(const char *field)
{
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(field))
            return line.mid(int(qstrlen(field))).simplified().split(' ').first().toLongLong() *
                   1024;
    }
    return 0;
}

// How far the resident size rises above what it was, at the highest, while the work is done.
qint64 peakAbove(const std::function<void()> &work)
{
    QFile refs("/proc/self/clear_refs");
    if (refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        refs.write("5"); // the peak begins anew
    const qint64 before = statusBytes("VmRSS:");
    work();
    return statusBytes("VmHWM:") - before;
}

bool report(const char *what, double measured, double goal)
{
    const bool met = measured <= goal;
    std::printf("%-52s %6.3f times, goal %5.3f %s\n", what, measured, goal, met ? "" : "MISSED");
    return met;
}

} // namespace

int main()
{
    // Large blocks always come fresh from the system and go back to it: otherwise the heap keeps
    // them warm from run to run, for the reader and for what it is measured against.
    mallopt(M_MMAP_THRESHOLD, 128 * 1024);
    EditorData::nArtifacts = 150;
    EditorData::nCreatures = 150;
    EditorData::campaignInfo[1].regionCount = maps;
    const QTemporaryDir folder;
    const QString path = folder.filePath("open.e3c");
    if (!makeCampaign().saveTo(path).ok)
        return 2;
    const qint64 fileSize = QFile(path).size();

    CampaignData campaign;
    bool sound = true;
    const auto open = [&] {
        QFile file(path);
        CampaignData fresh;
        sound = sound && !fresh.readCampaign(&file) && fresh.scenarios[maps - 1].mapHeader &&
                fresh.scenarios[maps - 1].mapHeader->mapName == "Shore";
        campaign = std::move(fresh);
    };
    malloc_trim(0);
    const qint64 peak = peakAbove(open);
    campaign = {};
    const QByteArray localPath = path.toLocal8Bit();
    const auto drop = [&] { campaign = {}; };
    const auto nothing = [] {};
    const Comparison inflating = compare(
        open, [&] { inflateOnce(localPath); }, drop);
    // Reading gives its memory back within its time, so opening does as well.
    const auto openAndDrop = [&] {
        open();
        drop();
    };
    const Comparison reading = compare(
        openAndDrop, [&] { sound = readFresh(path) && sound; }, nothing);

    open();
    const QString saved = folder.filePath("saved.e3c");
    const QString plain = folder.filePath("plain.e3c");
    const std::vector<QByteArray> pieces = campaign.toPieces();
    const Comparison saving =
        compare([&] { sound = campaign.saveTo(saved).ok && sound; },
                [&] { sound = saveFileSafely(plain, pieces).ok && sound; }, nothing);

    std::printf("file %.1f MB, unpacked %.1f MB; open %.2f ms (%.2f with its end), inflate %.2f "
                "ms, read %.2f ms, "
                "save %.2f ms, write %.2f ms\n",
                double(fileSize) / 1e6, double(inflateOnce(localPath)) / 1e6, inflating.work,
                reading.work, inflating.measure, reading.measure, saving.work, saving.measure);
    bool met = report("open, of the time to inflate the file", inflating.ratio, 1.0 / 15);
    met = report("open, of the time to read it into fresh memory", reading.ratio, 1.5) && met;
    met =
        report("open, peak memory of the file's size", double(peak) / double(fileSize), 1.5) && met;
    met = report("save, of the time to write the same bytes", saving.ratio, 1.3) && met;
    if (!sound)
        std::puts("a campaign could not be read or written");
    return met && sound ? 0 : 1;
}
