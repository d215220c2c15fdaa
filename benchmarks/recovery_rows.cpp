// How long an author waits for the copy that is kept at every change of a document.
#include "benchmarks/groups.h"
#include "benchmarks/rows.h"
#include "document/campaign_data.h"
#include "document/gzip_member.h"
#include "shell/recovery_copies.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <optional>
#include <stdexcept>

namespace {

constexpr double patience = 0.05; // seconds, for a campaign of 5 MB

struct Document
{
    explicit Document(const Inputs &inputs) : folder(inputs.folder + "/recovery-XXXXXX")
    {
        QFile file(inputs.campaign(8));
        if (campaign.readCampaign(&file))
            throw std::runtime_error("a campaign can't be opened");
    }

    void keepCopy() { copies.keep(QStringLiteral("harbour"), {}, campaign.unpacked().value()); }

    QTemporaryDir folder;
    RecoveryCopies copies{folder.path()};
    CampaignData campaign;
};

rows::Pair keeping(const Inputs &inputs)
{
    const auto document = std::make_shared<Document>(inputs);
    document->keepCopy();
    document->copies.leave();
    if (!document->copies.newestToOffer())
        throw std::runtime_error("no copy was written");
    return {rows::timed([document] { document->keepCopy(); }), [] { return patience; }};
}

} // namespace

void addRecoveryRows(const Inputs &inputs)
{
    rows::Row row;
    row.work = "keep the recovery copy of a campaign of 4.5 MB";
    row.reference = "50 ms, which nobody notices";
    row.turns = 51;
    row.prepare = [inputs] { return keeping(inputs); };
    rows::add(row);
}
