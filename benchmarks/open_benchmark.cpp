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
#include <memory>
#include <vector>

namespace {

constexpr int maps = 8;
constexpr int mapSize = 550 * 1024;
constexpr int runs = 31;

// The medians of several works, done in turns so that a busy moment strikes all of them.
std::vector<double> medianMilliseconds(const std::vector<std::function<void()>> &works)
{
    std::vector<std::vector<double>> times(works.size());
    for (int run = 0; run < runs; ++run) {
        for (size_t i = 0; i < works.size(); ++i) {
            QElapsedTimer timer;
            timer.start();
            works[i]();
            times[i].push_back(double(timer.nsecsElapsed()) / 1e6);
        }
    }
    std::vector<double> medians;
    for (std::vector<double> &each : times) {
        std::nth_element(each.begin(), each.begin() + runs / 2, each.end());
        medians.push_back(each[runs / 2]);
    }
    return medians;
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

bool readFresh(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    const qint64 size = file.size();
    const std::unique_ptr<char[]> bytes(new char[size_t(size)]);
    return file.read(bytes.get(), size) == size;
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
    std::printf("%-52s %6.2f times, goal %5.2f %s\n", what, measured, goal, met ? "" : "MISSED");
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
    const std::vector<double> opening = medianMilliseconds({
        [&] {
            open();
            campaign = {};
        },
        [&] { inflateOnce(localPath); },
        [&] { sound = readFresh(path) && sound; },
    });
    const double openTime = opening[0];
    const double inflateTime = opening[1];
    const double readTime = opening[2];

    open();
    const QString saved = folder.filePath("saved.e3c");
    const QString plain = folder.filePath("plain.e3c");
    const std::vector<QByteArray> pieces = campaign.toPieces();
    const std::vector<double> saving = medianMilliseconds({
        [&] { sound = campaign.saveTo(saved).ok && sound; },
        [&] { sound = saveFileSafely(plain, pieces).ok && sound; },
    });
    const double saveTime = saving[0];
    const double writeTime = saving[1];

    std::printf("file %.1f MB, unpacked %.1f MB; open %.2f ms, inflate %.2f ms, read %.2f ms, "
                "save %.2f ms, write %.2f ms\n",
                double(fileSize) / 1e6, double(inflateOnce(localPath)) / 1e6, openTime, inflateTime,
                readTime, saveTime, writeTime);
    bool met = report("open, of the time to inflate the file", openTime / inflateTime, 1.0 / 15);
    met = report("open, of the time to read it into fresh memory", openTime / readTime, 1.5) && met;
    met =
        report("open, peak memory of the file's size", double(peak) / double(fileSize), 1.5) && met;
    met = report("save, of the time to write the same bytes", saveTime / writeTime, 1.3) && met;
    if (!sound)
        std::puts("a campaign could not be read or written");
    return met && sound ? 0 : 1;
}
