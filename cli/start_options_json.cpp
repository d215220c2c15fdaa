// A scenario's start options as JSON: each kind of bonus with the fields it has.
#include "cli/campaign_json.h"
#include "cli/json_writer.h"

#include <array>

namespace {

void writeFields(JsonWriter &json, const BonusSpell &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("spellId", bonus.spellId);
}

void writeFields(JsonWriter &json, const BonusCreature &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("creatureId", bonus.creatureId);
    json.field("amount", bonus.amount);
}

void writeFields(JsonWriter &json, const BonusBuilding &bonus)
{
    json.field("buildingId", bonus.buildingId);
}

void writeFields(JsonWriter &json, const BonusArtifact &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("artifactId", bonus.artifactId);
}

void writeFields(JsonWriter &json, const BonusScroll &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("spellId", bonus.spellId);
}

void writeFields(JsonWriter &json, const BonusPrimarySkill &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("skills", bonus.skills);
}

void writeFields(JsonWriter &json, const BonusSecondarySkill &bonus)
{
    json.field("heroId", bonus.heroId);
    json.field("skillId", bonus.skillId);
    json.field("skillLevel", bonus.skillLevel);
}

void writeFields(JsonWriter &json, const BonusResource &bonus)
{
    json.field("resourceId", bonus.resourceId);
    json.field("amount", bonus.amount);
}

template<typename Bonus>
void writeBonusData(JsonWriter &json, const QVariant &data)
{
    json.beginObject();
    writeFields(json, data.value<Bonus>());
    json.endObject();
}

using WriteBonusData = void (*)(JsonWriter &, const QVariant &);

// By bonusType.
constexpr std::array<WriteBonusData, 8> bonusWriters{
    writeBonusData<BonusSpell>,          writeBonusData<BonusCreature>,
    writeBonusData<BonusBuilding>,       writeBonusData<BonusArtifact>,
    writeBonusData<BonusScroll>,         writeBonusData<BonusPrimarySkill>,
    writeBonusData<BonusSecondarySkill>, writeBonusData<BonusResource>,
};

void writeBonus(JsonWriter &json, const CmpStartingBonus &bonus)
{
    json.beginObject();
    json.field("bonusType", bonus.bonusType);
    json.key("bonusData");
    if (bonus.bonusType < bonusWriters.size() && bonus.bonusData.isValid())
        bonusWriters[bonus.bonusType](json, bonus.bonusData);
    else
        json.null();
    json.endObject();
}

void writeOptionData(JsonWriter &json, const StartingBonusSet &set)
{
    json.field("player", set.player);
    json.key("bonuses");
    json.beginArray();
    for (const CmpStartingBonus &bonus : set.bonuses)
        writeBonus(json, bonus);
    json.endArray();
}

void writeOptionData(JsonWriter &json, const HeroCrossoverSet &set)
{
    json.key("entries");
    json.beginArray();
    for (const CmpHeroCrossover &entry : set.entries) {
        json.beginObject();
        json.field("player", entry.player);
        json.field("sourceScenario", entry.sourceScenario);
        json.endObject();
    }
    json.endArray();
}

void writeOptionData(JsonWriter &json, const StartingHeroSet &set)
{
    json.key("entries");
    json.beginArray();
    for (const StartingHero &entry : set.entries) {
        json.beginObject();
        json.field("player", entry.player);
        json.field("heroId", entry.heroId);
        json.endObject();
    }
    json.endArray();
}

// False if the option's data is of another kind.
template<typename Set>
bool writeDataOf(JsonWriter &json, const QVariant &data)
{
    if (!data.canConvert<Set>())
        return false;
    json.beginObject();
    writeOptionData(json, data.value<Set>());
    json.endObject();
    return true;
}

} // namespace

void writeStartOptions(JsonWriter &json, const CmpScenarioStartOptions &options)
{
    json.beginObject();
    json.field("optionType", options.optionType);
    json.key("optionData");
    const QVariant &data = options.optionData;
    const bool written = writeDataOf<StartingBonusSet>(json, data) ||
                         writeDataOf<HeroCrossoverSet>(json, data) ||
                         writeDataOf<StartingHeroSet>(json, data);
    if (!written)
        json.null();
    json.endObject();
}
