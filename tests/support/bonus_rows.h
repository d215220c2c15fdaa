// What the tests of rows of bonuses share: names for the bonuses they use, players, and records.
#pragma once

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"

#include <map>
#include <memory>
#include <vector>

// Ten heroes. The towns 0 and 2 name the buildings 5, 10 and 14 differently.
inline void fillNameTables()
{
    EditorData::colors = {"Red", "Blue", "Tan", "Green", "Orange", "Purple", "Teal", "Pink"};
    EditorData::heroes = {{0, "Aldra"}, {1, "Berin"}, {2, "Corvane"}, {3, "Dessa"}, {4, "Elbrec"},
                          {5, "Fenna"}, {6, "Gorim"}, {7, "Hulda"},   {8, "Isen"},  {9, "Jorun"}};
    EditorData::spells = {{0, "Gust"}, {1, "Ember"}, {2, "Thorns"}};
    EditorData::creatures = {{0, "Pikeman"}, {1, "Marsh Owl"}};
    EditorData::creature_ordering = {1, 0};
    EditorData::artifacts = {{3, "Map Case"}, {4, "Moss Ring"}, {300, "Tin Horn"}};
    EditorData::primarySkills = {{0, "Attack"}, {1, "Defence"}, {2, "Power"}, {3, "Lore"}};
    EditorData::secondarySkills = {{0, "Tracking"}, {1, "Sailing"}};
    EditorData::skillLevels = {{0, "None"}, {1, "Basic"}, {2, "Expert"}};
    EditorData::resources = {{0, "Wood"}, {6, "Gold"}};
    EditorData::jktext = {{27, "Wood and Ore"}, {28, "rare resources"}};
    EditorData::buildings = {{0, {{5, "Tavern"}, {10, "Shipyard"}, {14, "Guild 4"}}},
                             {2, {{5, "Taproom"}, {10, "Harbour"}, {14, "Guild IV"}}}};
}

// A player whom a human can play, with a main town of this type; 255 is a random one.
inline PlayerAttributes playerWithTown(unsigned int townType)
{
    PlayerAttributes player;
    player.canHuman = 1;
    player.hasMainTown = 1;
    player.mainTownType = quint8(townType);
    return player;
}

// A player whom a human can play, with these heroes on the map and without a town.
inline PlayerAttributes playerWithHeroes(std::vector<PlayerAttributesHeroInfo> heroes)
{
    PlayerAttributes player;
    player.canHuman = 1;
    player.heroInfo = std::move(heroes);
    return player;
}

// A map with these players, by colour; the others are nobody's.
inline std::shared_ptr<MapHeader> mapWithPlayers(
    const std::map<unsigned int, PlayerAttributes> &players)
{
    auto header = std::make_shared<MapHeader>();
    for (const auto &[number, player] : players)
        header->players[number] = player;
    return header;
}

template<typename Record>
CmpStartingBonus bonusWith(int type, const Record &record)
{
    return {quint8(type), QVariant::fromValue(record)};
}
