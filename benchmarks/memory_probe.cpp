// Tells on standard output by how many bytes the resident memory of a program that has loaded the
// game rises at the highest while it opens a campaign and then does something with it.
//
// Usage: memory_probe WORK GAMEFOLDER CAMPAIGN
//   open       nothing more
//   save       saves it
//   export     writes its maps into the campaign's folder
//   refresh    reads them from there
//   texts      writes its texts into a file beside it and reads them again
//   convert    gives it the game's first campaign map, and a background again
#include "benchmarks/peak_memory.h"
#include "document/campaign_conversion.h"
#include "document/campaign_data.h"
#include "document/map_exchange.h"
#include "document/text_exchange.h"
#include "gamedata/editor_data.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>

namespace {

bool save(CampaignData &campaign, const QString &path)
{
    const QString copy = path + ".saved";
    const bool saved = campaign.saveTo(copy).ok;
    return QFile::remove(copy) && saved;
}

bool exportMaps(CampaignData &campaign, const QString &path)
{
    bool well = true;
    exportMapsTo(QFileInfo(path).path(), campaign, path, [&](const QString &) { well = false; });
    return well;
}

bool refreshMaps(CampaignData &campaign, const QString &path)
{
    return refreshMapsFrom(QFileInfo(path).path(), campaign, [](const QString &) {}).complete;
}

bool exchangeTexts(CampaignData &campaign, const QString &path)
{
    QFile file(path + ".txt");
    return saveFileSafely(file.fileName(), {exportedTexts(campaign)}).ok &&
           file.open(QIODevice::ReadOnly) && importTextsFrom(file, campaign) && file.remove();
}

bool convert(CampaignData &campaign, const QString & /*path*/)
{
    convertToCampaignMap(campaign, unsigned(EditorData::campaignInfo.begin()->first));
    convertToBackground(campaign, 0);
    return !campaign.scenarios.empty();
}

struct Work
{
    const char *name;
    bool (*carryOut)(CampaignData &campaign, const QString &path);
};

constexpr std::array<Work, 6> works = {{
    {"open", [](CampaignData &, const QString &) { return true; }},
    {"save", save},
    {"export", exportMaps},
    {"refresh", refreshMaps},
    {"texts", exchangeTexts},
    {"convert", convert},
}};

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    if (argc != 4)
        return 1;
    const auto *work = std::find_if(works.begin(), works.end(), [&](const Work &known) {
        return std::strcmp(known.name, argv[1]) == 0;
    });
    if (work == works.end())
        return 1;
    setGameRoot(QFile::decodeName(argv[2]));
    loadGame();
    const QString path = QFile::decodeName(argv[3]);
    const qint64 rise = peak_memory::riseDuring([&] {
        QFile file(path);
        CampaignData campaign;
        return !campaign.readCampaign(&file) && work->carryOut(campaign, path);
    });
    std::printf("%lld\n", static_cast<long long>(rise));
    return rise < 0 ? 1 : 0;
}
