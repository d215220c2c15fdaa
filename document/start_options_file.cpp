// Start options in a campaign file: a type byte and what belongs to it.
//
//   type                    content
//   1 starting bonus        player (1), a list of bonuses
//   2 hero crossover        a list of player (1), source scenario (1)
//   3 starting hero         a list of player (1), hero (2)
//   0 and any other         nothing
//
//   bonus                   type (1) and
//   0 spell, 4 scroll       hero (2), spell (1)
//   1 creatures             hero (2), creature (2), amount (2)
//   2 building              building (1)
//   3 artifact              hero (2), artifact (2)
//   5 primary skills        hero (2), skills (4 times 1)
//   6 secondary skill       hero (2), skill (1), level (1)
//   7 resource              resource (1), amount (4)
//   any other               nothing
//
// A list is a count of one byte and that many entries.
#include "document/campaign_primitives.h"
#include "document/start_option_values.h"
#include "document/start_options.h"

#include <algorithm>

namespace {

QDataStream &operator>>(QDataStream &stream, BonusSpell &bonus)
{
    return stream >> bonus.heroId >> bonus.spellId;
}

QDataStream &operator<<(QDataStream &stream, const BonusSpell &bonus)
{
    return stream << bonus.heroId << bonus.spellId;
}

QDataStream &operator>>(QDataStream &stream, BonusCreature &bonus)
{
    return stream >> bonus.heroId >> bonus.creatureId >> bonus.amount;
}

QDataStream &operator<<(QDataStream &stream, const BonusCreature &bonus)
{
    return stream << bonus.heroId << bonus.creatureId << bonus.amount;
}

QDataStream &operator>>(QDataStream &stream, BonusBuilding &bonus)
{
    return stream >> bonus.buildingId;
}

QDataStream &operator<<(QDataStream &stream, const BonusBuilding &bonus)
{
    return stream << bonus.buildingId;
}

QDataStream &operator>>(QDataStream &stream, BonusArtifact &bonus)
{
    return stream >> bonus.heroId >> bonus.artifactId;
}

QDataStream &operator<<(QDataStream &stream, const BonusArtifact &bonus)
{
    return stream << bonus.heroId << bonus.artifactId;
}

QDataStream &operator>>(QDataStream &stream, BonusScroll &bonus)
{
    return stream >> bonus.heroId >> bonus.spellId;
}

QDataStream &operator<<(QDataStream &stream, const BonusScroll &bonus)
{
    return stream << bonus.heroId << bonus.spellId;
}

QDataStream &operator>>(QDataStream &stream, BonusPrimarySkill &bonus)
{
    stream >> bonus.heroId;
    for (quint8 &skill : bonus.skills)
        stream >> skill;
    return stream;
}

QDataStream &operator<<(QDataStream &stream, const BonusPrimarySkill &bonus)
{
    stream << bonus.heroId;
    for (const quint8 skill : bonus.skills)
        stream << skill;
    return stream;
}

QDataStream &operator>>(QDataStream &stream, BonusSecondarySkill &bonus)
{
    return stream >> bonus.heroId >> bonus.skillId >> bonus.skillLevel;
}

QDataStream &operator<<(QDataStream &stream, const BonusSecondarySkill &bonus)
{
    return stream << bonus.heroId << bonus.skillId << bonus.skillLevel;
}

QDataStream &operator>>(QDataStream &stream, BonusResource &bonus)
{
    return stream >> bonus.resourceId >> bonus.amount;
}

QDataStream &operator<<(QDataStream &stream, const BonusResource &bonus)
{
    return stream << bonus.resourceId << bonus.amount;
}

template<typename Bonus>
QVariant readPayload(QDataStream &stream)
{
    Bonus bonus;
    stream >> bonus;
    return QVariant::fromValue(bonus);
}

template<typename Bonus>
void writePayload(QDataStream &stream, const QVariant &payload)
{
    stream << payload.value<Bonus>();
}

struct BonusFormat
{
    QVariant (*read)(QDataStream &);
    void (*write)(QDataStream &, const QVariant &);
};

template<typename Bonus>
constexpr BonusFormat formatOf{readPayload<Bonus>, writePayload<Bonus>};

constexpr std::array<BonusFormat, 8> bonusFormats{
    formatOf<BonusSpell>,          formatOf<BonusCreature>, formatOf<BonusBuilding>,
    formatOf<BonusArtifact>,       formatOf<BonusScroll>,   formatOf<BonusPrimarySkill>,
    formatOf<BonusSecondarySkill>, formatOf<BonusResource>,
};

QDataStream &operator>>(QDataStream &stream, CmpStartingBonus &bonus)
{
    stream >> bonus.bonusType;
    if (bonus.bonusType < bonusFormats.size())
        bonus.bonusData = bonusFormats[bonus.bonusType].read(stream);
    return stream;
}

QDataStream &operator<<(QDataStream &stream, const CmpStartingBonus &bonus)
{
    stream << bonus.bonusType;
    if (bonus.bonusType < bonusFormats.size())
        bonusFormats[bonus.bonusType].write(stream, bonus.bonusData);
    return stream;
}

QDataStream &operator>>(QDataStream &stream, CmpHeroCrossover &entry)
{
    return stream >> entry.player >> entry.sourceScenario;
}

QDataStream &operator<<(QDataStream &stream, const CmpHeroCrossover &entry)
{
    return stream << entry.player << entry.sourceScenario;
}

QDataStream &operator>>(QDataStream &stream, StartingHero &entry)
{
    return stream >> entry.player >> entry.heroId;
}

QDataStream &operator<<(QDataStream &stream, const StartingHero &entry)
{
    return stream << entry.player << entry.heroId;
}

constexpr size_t longestList = 255;

template<typename Entry>
void readList(QDataStream &stream, std::vector<Entry> &list)
{
    const int count = readNumber<quint8>(stream);
    for (int i = 0; i < count && !stream.atEnd(); ++i) {
        Entry entry;
        stream >> entry;
        list.push_back(std::move(entry));
    }
}

template<typename Entry>
void writeList(QDataStream &stream, const std::vector<Entry> &list)
{
    const size_t count = std::min(list.size(), longestList);
    stream << quint8(count);
    for (size_t i = 0; i < count; ++i)
        stream << list[i];
}

// What the game reads where a list of starting heroes would be empty: no bonus, for the first
// player who could have had a hero.
void writeEmptyBonusList(QDataStream &stream, const ScenarioData &scenario)
{
    constexpr unsigned players = 8;
    unsigned player = 0;
    while (player < players && !playerCanTakeHero(scenario, {}, player))
        ++player;
    stream << quint8(BonusOption) << quint8(player < players ? player : 0) << quint8(0);
}

} // namespace

void ScenarioData::ReadStartOptions(QDataStream &stream)
{
    const auto type = readNumber<quint8>(stream);
    QVariant data;
    if (type == BonusOption) {
        StartingBonusSet set;
        stream >> set.player;
        readList(stream, set.bonuses);
        data = QVariant::fromValue(set);
    } else if (type == CrossoverOption) {
        HeroCrossoverSet set;
        readList(stream, set.entries);
        data = QVariant::fromValue(set);
    } else if (type == HeroOption) {
        StartingHeroSet set;
        readList(stream, set.entries);
        data = QVariant::fromValue(set);
    } else {
        return;
    }
    auto options = std::make_shared<CmpScenarioStartOptions>();
    options->optionType = type;
    options->optionData = std::move(data);
    startOptions = std::move(options);
}

void ScenarioData::WriteStartOptions(QDataStream &stream)
{
    // A type that doesn't fit its byte is unknown as well and mustn't look like another.
    const quint32 type =
        startOptions && startOptions->optionType <= 255 ? startOptions->optionType : 0;
    if (type == BonusOption) {
        const auto set = startOptions->optionData.value<StartingBonusSet>();
        stream << quint8(type) << set.player;
        writeList(stream, set.bonuses);
    } else if (type == CrossoverOption) {
        stream << quint8(type);
        writeList(stream, startOptions->optionData.value<HeroCrossoverSet>().entries);
    } else if (type == HeroOption) {
        const auto set = startOptions->optionData.value<StartingHeroSet>();
        if (set.entries.empty()) {
            writeEmptyBonusList(stream, *this);
        } else {
            stream << quint8(type);
            writeList(stream, set.entries);
        }
    } else {
        stream << quint8(type);
    }
}
