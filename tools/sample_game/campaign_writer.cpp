#include "tools/sample_game/campaign_writer.h"

#include "tools/sample_game/byte_sink.h"

namespace sample {

namespace {

constexpr int kNewestCampaign = 10;
constexpr int kStories = 3;
constexpr int kHeroKeeps = 5;
constexpr int kOldCreatures = 145; // versions 5 and 6
constexpr int kArtifacts5 = 129;
constexpr int kArtifacts6 = 144;

TableSizes sizesOf(int version, const TableSizes &newest)
{
    if (version == 5)
        return {kOldCreatures, kArtifacts5};
    if (version == 6)
        return {kOldCreatures, kArtifacts6};
    return newest;
}

void addStories(ByteSink &sink, const std::vector<Story> &stories, int version)
{
    const int count = version == kNewestCampaign ? kStories : 1;
    for (int i = 0; i < count; ++i) {
        if (i >= int(stories.size())) {
            sink.u8(0);
            continue;
        }
        const Story &story = stories[size_t(i)];
        sink.u8(1);
        sink.u8(unsigned(story.video));
        sink.u8(unsigned(story.music));
        sink.countedText(story.text.toUtf8());
    }
}

void addBonus(ByteSink &sink, const Bonus &bonus)
{
    sink.u8(unsigned(bonus.kind));
    if (bonus.kind != BonusKind::Building && bonus.kind != BonusKind::Resource)
        sink.u16(unsigned(bonus.hero));
    switch (bonus.kind) {
    case BonusKind::Spell:
    case BonusKind::Scroll:
    case BonusKind::Building:
        sink.u8(unsigned(bonus.what));
        break;
    case BonusKind::Creature:
        sink.u16(unsigned(bonus.what));
        sink.u16(unsigned(bonus.amount));
        break;
    case BonusKind::Artifact:
        sink.u16(unsigned(bonus.what));
        break;
    case BonusKind::PrimarySkill:
        for (const int skill : bonus.skills)
            sink.u8(unsigned(skill));
        break;
    case BonusKind::SecondarySkill:
        sink.u8(unsigned(bonus.what));
        sink.u8(unsigned(bonus.amount));
        break;
    case BonusKind::Resource:
        sink.u8(unsigned(bonus.what));
        sink.i32(bonus.amount);
        break;
    }
}

void addStartOptions(ByteSink &sink, const StartOptions &start)
{
    sink.u8(unsigned(start.kind));
    if (start.kind == StartKind::Bonus) {
        sink.u8(unsigned(start.player));
        sink.u8(unsigned(start.bonuses.size()));
        for (const Bonus &bonus : start.bonuses)
            addBonus(sink, bonus);
    }
    if (start.kind == StartKind::Crossover || start.kind == StartKind::Hero) {
        sink.u8(unsigned(start.offers.size()));
        for (const Offer &offer : start.offers) {
            sink.u8(unsigned(offer.player));
            if (start.kind == StartKind::Crossover)
                sink.u8(unsigned(offer.source));
            else
                sink.u16(unsigned(offer.source));
        }
    }
}

void addScenario(ByteSink &sink, const ScenarioPlan &scenario, const CampaignPlan &plan,
                 const TableSizes &sizes)
{
    sink.countedText(scenario.mapFileName.toUtf8());
    sink.i32(scenario.mapFile.size());
    sink.bits(scenario.prerequisites, int(plan.scenarios.size()));
    sink.u8(unsigned(scenario.colour));
    sink.u8(unsigned(scenario.difficulty));
    sink.countedText(scenario.regionText.toUtf8());
    addStories(sink, scenario.prologues, plan.version);
    addStories(sink, scenario.epilogues, plan.version);
    sink.bits(scenario.heroKeeps, kHeroKeeps);
    sink.bits(scenario.creatures, sizes.creatures);
    sink.bits(scenario.artifacts, sizes.artifacts);
    addStartOptions(sink, scenario.start);
}

} // namespace

QByteArray campaignHeader(const CampaignPlan &plan, const TableSizes &sizes)
{
    ByteSink sink;
    sink.i32(plan.version);
    if (plan.version == kNewestCampaign) {
        sink.i32(plan.subVersion);
        sink.u8(plan.hasMap ? 1 : 0);
        sink.i32(plan.background);
        sink.i32(plan.hasMap ? 0 : qint32(plan.scenarios.size()));
    }
    sink.u8(unsigned(plan.mapId + 1));
    sink.countedText(plan.name.toUtf8());
    sink.countedText(plan.description.toUtf8());
    sink.u8(plan.difficultySelectable ? 1 : 0);
    sink.u8(unsigned(plan.music));
    const TableSizes widths = sizesOf(plan.version, sizes);
    for (const ScenarioPlan &scenario : plan.scenarios)
        addScenario(sink, scenario, plan, widths);
    return sink.bytes();
}

QByteArray campaignFile(const CampaignPlan &plan, const TableSizes &sizes)
{
    QByteArray file = gzipMember(campaignHeader(plan, sizes), plan.deflateLevel);
    for (const ScenarioPlan &scenario : plan.scenarios)
        file += scenario.mapFile;
    return file;
}

} // namespace sample
