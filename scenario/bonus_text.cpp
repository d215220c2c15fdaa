#include "scenario/bonus_text.h"

#include "document/map_player.h"
#include "gamedata/editor_data.h"
#include "gamedata/report.h"
#include "scenario/bonus_type.h"
#include "scenario/naming.h"

#include <QObject>
#include <QStringList>

#include <array>

namespace {

// Whom a bonus is for.
struct Recipient
{
    ScenarioData *scenario;
    unsigned int player;

    QString hero(quint16 number) const { return getHeroName(scenario, player, number, false); }
};

QString spellText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusSpell>();
    return QObject::tr("Give %1 spell to %2")
        .arg(nameOf(EditorData::spells, bonus.spellId), recipient.hero(bonus.heroId));
}

QString creatureText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusCreature>();
    return QObject::tr("Give %1 %2 to %3")
        .arg(QString::number(bonus.amount), nameOf(EditorData::creatures, bonus.creatureId),
             recipient.hero(bonus.heroId));
}

QString buildingText(const Recipient &recipient, const QVariant &data)
{
    const PlayerAttributes *player = playerOnMap(*recipient.scenario, recipient.player);
    const auto town =
        player ? EditorData::buildings.find(player->mainTownType) : EditorData::buildings.end();
    const QString name = town == EditorData::buildings.end()
                             ? QString()
                             : nameOf(town->second, data.value<BonusBuilding>().buildingId);
    return QObject::tr("Build %1 at Main Town").arg(name);
}

QString artifactText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusArtifact>();
    return QObject::tr("Give %1 to %2")
        .arg(nameOf(EditorData::artifacts, bonus.artifactId), recipient.hero(bonus.heroId));
}

QString scrollText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusScroll>();
    return QObject::tr("Give %1 Spell Scroll to %2")
        .arg(nameOf(EditorData::spells, bonus.spellId), recipient.hero(bonus.heroId));
}

// Those above 0, each as a number and a name.
QString skillList(const std::array<quint8, 4> &skills)
{
    QStringList pieces;
    for (std::size_t i = 0; i < skills.size(); ++i) {
        if (skills[i] > 0) {
            pieces << QObject::tr("+%1 %2").arg(QString::number(skills[i]),
                                                nameOf(EditorData::primarySkills, int(i)));
        }
    }
    return pieces.join(QStringLiteral(", "));
}

QString primarySkillText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusPrimarySkill>();
    return QObject::tr("Give %1 to %2").arg(skillList(bonus.skills), recipient.hero(bonus.heroId));
}

QString secondarySkillText(const Recipient &recipient, const QVariant &data)
{
    const auto bonus = data.value<BonusSecondarySkill>();
    return QObject::tr("Give %1 %2 to %3")
        .arg(nameOf(EditorData::skillLevels, bonus.skillLevel),
             nameOf(EditorData::secondarySkills, bonus.skillId), recipient.hero(bonus.heroId));
}

QString resourceName(int resource)
{
    for (const ResourceGroup &group : resourceGroups) {
        if (group.resource == resource)
            return nameOf(EditorData::jktext, group.text);
    }
    return nameOf(EditorData::resources, resource);
}

QString resourceText(const Recipient & /*recipient*/, const QVariant &data)
{
    const auto bonus = data.value<BonusResource>();
    return QObject::tr("Receive %1 %2")
        .arg(QString::number(bonus.amount), resourceName(bonus.resourceId));
}

using Wording = QString (*)(const Recipient &, const QVariant &);

// By bonus type.
constexpr std::array<Wording, 8> wordings{spellText,          creatureText, buildingText,
                                          artifactText,       scrollText,   primarySkillText,
                                          secondarySkillText, resourceText};

} // namespace

QString getBonusStringFromRawData(ScenarioData *scenario, unsigned int player,
                                  CmpStartingBonus &bonus)
{
    if (bonus.bonusType >= wordings.size())
        endSilently(1);
    return wordings[bonus.bonusType]({scenario, player}, bonus.bonusData);
}
