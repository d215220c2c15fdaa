// Tells on standard output by how many bytes the resident memory of a program that has loaded the
// game rises at the highest while it opens a campaign, or opens and saves it.
//
// Usage: memory_probe open|save GAMEFOLDER CAMPAIGN
#include "document/campaign_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#include <cstring>
#include <malloc.h>

namespace {

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

void beginPeakAnew()
{
    QFile refs("/proc/self/clear_refs");
    if (refs.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        refs.write("5");
}

bool work(const QString &path, bool saving)
{
    QFile file(path);
    CampaignData campaign;
    if (campaign.readCampaign(&file))
        return false;
    if (!saving)
        return true;
    const QString copy = path + ".saved";
    const bool saved = campaign.saveTo(copy).ok;
    return QFile::remove(copy) && saved;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 4)
        return 1;
    setGameRoot(QFile::decodeName(argv[2]));
    loadGame();
    malloc_trim(0); // or else the work finds room that the loading has left
    beginPeakAnew();
    const qint64 before = statusBytes("VmRSS:");
    if (!work(QFile::decodeName(argv[3]), std::strcmp(argv[1], "save") == 0))
        return 1;
    std::printf("%lld\n", static_cast<long long>(statusBytes("VmHWM:") - before));
    return 0;
}
