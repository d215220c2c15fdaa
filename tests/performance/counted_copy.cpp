// Renews the recovery copy of a campaign with the counting of instructions on, as the window does
// after each change.
//
// Usage: counted_copy keep GAMEFOLDER CAMPAIGN
#include "document/campaign_data.h"
#include "document/gzip_member.h"
#include "gamedata/game_dir.h"
#include "gamedata/game_loading.h"
#include "shell/recovery_copies.h"

#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

#include <valgrind/callgrind.h>

namespace {

bool keepCopies(const QString &path)
{
    QFile file(path);
    CampaignData campaign;
    if (campaign.readCampaign(&file))
        return false;
    const QTemporaryDir folder;
    RecoveryCopies copies(folder.path());
    const QString name = QStringLiteral("harbour");
    copies.keep(name, {}, campaign.unpacked().value());
    CALLGRIND_TOGGLE_COLLECT;
    copies.keep(name, {}, campaign.unpacked().value());
    CALLGRIND_TOGGLE_COLLECT;
    copies.leave();
    const auto copy = copies.newestToOffer();
    return copy && copy->file.size > file.size() / 2;
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    if (argc != 4)
        return 1;
    setGameRoot(QFile::decodeName(argv[2]));
    loadGame();
    return keepCopies(QFile::decodeName(argv[3])) ? 0 : 1;
}
