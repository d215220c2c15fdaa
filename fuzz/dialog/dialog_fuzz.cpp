// Opens the input as a campaign, shows every scenario in all tabs of the scenario dialog and stores
// what they show. The campaign that comes out is saved and must be the same when it is read again.
#include "document/campaign_data.h"
#include "document/gzip_member.h"
#include "fuzz/memory_file.h"
#include "fuzz/quiet_start.h"
#include "fuzz/time_limit.h"
#include "gamedata/editor_data.h"
#include "scenario/option_page.h"
#include "scenario/scenario_info.h"
#include "tests/monkey/stored_campaign.h"
#include "tests/support/tiny_game.h"

#include <QApplication>
#include <QFile>
#include <QListWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <optional>

namespace {

constexpr quint8 bonusTypes = 8;
// More of them teach nothing new, and each takes its time.
constexpr size_t mostScenarios = 8;

// The toolkit, and the tiny game for the length of the process.
void startWithoutScreen()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int count = 1;
    static char name[] = "dialog_fuzz";
    static char *arguments[] = {name, nullptr};
    static auto *const application = new QApplication(count, arguments);
    application->setQuitOnLastWindowClosed(false);
    static const tiny::Game game;
    game.load();
}

// Closes whatever asks something while an input is in work.
class BoxCloser
{
public:
    BoxCloser()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [] {
            if (QWidget *box = QApplication::activeModalWidget())
                box->close();
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

// The program ends, and is meant to, over a bonus of a type that it can't word.
bool endsTheProgram(const ScenarioData &scenario)
{
    if (!scenario.startOptions || scenario.startOptions->optionType != BonusOption)
        return false;
    const auto set = scenario.startOptions->optionData.value<StartingBonusSet>();
    return std::any_of(set.bonuses.begin(), set.bonuses.end(),
                       [](const CmpStartingBonus &bonus) { return bonus.bonusType >= bonusTypes; });
}

bool isWorthShowing(const CampaignData &campaign)
{
    return campaign.scenarios.size() <= mostScenarios &&
           std::none_of(campaign.scenarios.begin(), campaign.scenarios.end(), endsTheProgram);
}

std::optional<CampaignData> readFrom(const QString &path)
{
    QFile file(path);
    CampaignData campaign;
    if (!file.open(QIODevice::ReadOnly) || !campaign.ReadFromFile(&file))
        return {};
    return campaign;
}

// As the main window takes over what an accepted dialog holds.
CampaignData throughTheDialog(CampaignData campaign)
{
    const BoxCloser closer;
    ScenarioInfo dialog(nullptr, &campaign, EditorData::info.campaign, EditorData::info.region);
    auto *list = dialog.findChild<QListWidget *>(QStringLiteral("listWidget"));
    auto *tabs = dialog.findChild<QTabWidget *>(QStringLiteral("tabWidget"));
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        for (int tab = 0; tab < tabs->count(); ++tab)
            tabs->setCurrentIndex(tab);
    }
    dialog.saveScenarioInfo();
    CampaignData edited = dialog.editedCampaign();
    edited.scenarioCount = quint32(edited.scenarios.size());
    return edited;
}

// Two kinds of campaigns are opened and never saved: those on a map that the game lacks, of which
// no scenario could be read, and those of more text than is read again.
bool mayNotBeSaved(const CampaignData &campaign, const SaveResult &result)
{
    return (campaign.hasMap && EditorData::campaignInfo.count(campaign.mapId) == 0) ||
           result.error == qt_error_string(EFBIG);
}

// What the recovery copy of the campaign would be, packed. Nothing if there would be none.
std::optional<QByteArray> keptBytes(CampaignData &campaign)
{
    const std::optional<UnpackedFile> kept = campaign.unpacked();
    QByteArray bytes;
    const auto append = [&](const char *more, int size) {
        bytes.append(more, size);
        return true;
    };
    MemberPacker packer;
    if (!kept || !packer.add(kept->head.constData(), kept->head.size(), append) ||
        !packer.finish(append))
        return {};
    for (const QByteArray &map : kept->rest)
        bytes += map;
    return bytes;
}

// The file as it is made in memory.
QByteArray madeBytes(CampaignData &campaign)
{
    QByteArray bytes;
    for (const QByteArray &piece : campaign.toPieces())
        bytes += piece;
    return bytes;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const QuietStart start(startWithoutScreen);
    const TimeLimit limit;
    static MemoryFile memory;
    memory.set(data, size);
    EditorData::info = {};
    std::optional<CampaignData> campaign = readFrom(memory.path());
    if (!campaign || !isWorthShowing(*campaign))
        return 0;
    CampaignData edited = throughTheDialog(std::move(*campaign));
    static const QTemporaryDir folder(
        QStringLiteral("/dev/shm/cmped-fuzz-XXXXXX")); // a disk is slow
    static const QString path = folder.filePath(QStringLiteral("saved.e3c"));
    const SaveResult saved = edited.saveTo(path);
    if (!saved.ok && !mayNotBeSaved(edited, saved))
        abort(); // the author would have to throw the work away
    const std::optional<QByteArray> kept = keptBytes(edited);
    if (kept.has_value() != saved.ok || (saved.ok && *kept != bytesOf(path)))
        abort(); // after a sudden end the author would get another campaign back
    if (!saved.ok)
        return 0;
    if (madeBytes(edited) != *kept)
        abort(); // the same campaign is packed in two ways
    const std::optional<CampaignData> again = readFrom(path);
    if (!again || storedWords(*again) != storedWords(edited))
        abort(); // the author would find another campaign than the one that was saved
    return 0;
}
