// The page of starting bonuses on show, for a scenario that its tests put together.
#pragma once

#include "scenario/bonus_type.h"
#include "scenario/starting_bonus.h"
#include "tests/scenario/shown_page.h"
#include "tests/support/bonus_rows.h"

#include <memory>

// Bonuses and their rows; the first is for a hero on the map of humanWithHulda only.
inline const CmpStartingBonus hulda = bonusWith(0, BonusSpell{7, 1});
inline const CmpStartingBonus gold = bonusWith(7, BonusResource{6, 500});
inline const CmpStartingBonus strongest = bonusWith(3, BonusArtifact{0xFFFD, 4});
inline const CmpStartingBonus generated = bonusWith(6, BonusSecondarySkill{0xFFFE, 1, 2});
inline const CmpStartingBonus harbour = bonusWith(2, BonusBuilding{10});

inline const QString huldaText = QStringLiteral("Give Ember spell to Hulda");
inline const QString goldText = QStringLiteral("Receive 500 Gold");
inline const QString strongestText = QStringLiteral("Give Moss Ring to Most powerful hero");
inline const QString generatedText =
    QStringLiteral("Give Expert Sailing to Generated hero (in town)");

inline PlayerAttributes human()
{
    return playerWithHeroes({});
}

inline PlayerAttributes humanWithHulda()
{
    return playerWithHeroes({{7, ""}});
}

class BonusPage : public ShownPage<StartingBonus>
{
public:
    QComboBox *players() { return childOf<QComboBox>(&page, "playerCombobox"); }

    // Gives the scenario these players and bonuses, and loads it.
    void load(const std::map<unsigned int, PlayerAttributes> &map, unsigned int player,
              const std::vector<CmpStartingBonus> &bonuses)
    {
        scenario.mapHeader = mapWithPlayers(map);
        store(player, bonuses);
        page.initInfo(&scenario, 24);
    }

    // Puts the bonuses into the scenario only.
    void store(unsigned int player, const std::vector<CmpStartingBonus> &bonuses)
    {
        auto options = std::make_shared<CmpScenarioStartOptions>();
        options->optionType = 1;
        options->optionData = QVariant::fromValue(StartingBonusSet{quint8(player), bonuses});
        scenario.startOptions = std::move(options);
    }

    StartingBonusSet saved()
    {
        StartingBonusSet set;
        page.saveScenarioInfo(&set);
        return set;
    }

    // A row without an item reads as "-".
    QStringList texts()
    {
        QStringList list;
        for (int row = 0; row < table()->rowCount(); ++row)
            list << (item(row) ? item(row)->text() : QStringLiteral("-"));
        return list;
    }

    void choosePlayer(const QString &colour)
    {
        const int index = players()->findText(colour);
        if (index < 0)
            qFatal("The page doesn't offer %s.", qPrintable(colour));
        players()->setCurrentIndex(index);
    }

    ScenarioData scenario;
};
