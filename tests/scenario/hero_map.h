// A map whose players can be given heroes in every way there is.
//
//   player        human  town  generates  heroes on the map
//   0 Red         yes    no    no         1 "Ser Berin", 2
//   1 Blue        yes    yes   yes        3
//   2 Tan         yes    no    yes        4
//   3 Green       no     yes   yes        5
//   4 Orange      yes    yes   no         6
//   5 and above   no     no    no         none
//
// Ten heroes, of whom the map disables 7. It doesn't list 8 as available either, but customises it.
#pragma once

#include "document/campaign_data.h"
#include "gamedata/editor_data.h"

inline void nameHeroesAndColours()
{
    EditorData::colors = {"Red", "Blue", "Tan", "Green", "Orange", "Purple", "Teal", "Pink"};
    EditorData::heroes = {{0, "Aldra"}, {1, "Berin"}, {2, "Corvane"}, {3, "Dessa"},  {4, "Elbrec"},
                          {5, "Farun"}, {6, "Gisla"}, {7, "Hadrin"},  {8, "Ivenne"}, {9, "Jorun"}};
}

inline MapHeader heroMap()
{
    MapHeader header;
    const auto player = [&](int number, bool human, bool town, bool generates) {
        PlayerAttributes &attributes = header.players[std::size_t(number)];
        attributes.canHuman = human;
        attributes.hasMainTown = town;
        attributes.generatesHero = generates;
        return &attributes.heroInfo;
    };
    *player(0, true, false, false) = {{1, "Ser Berin"}, {2, ""}};
    *player(1, true, true, true) = {{3, ""}};
    *player(2, true, false, true) = {{4, ""}};
    *player(3, false, true, true) = {{5, ""}};
    *player(4, true, true, false) = {{6, ""}};
    header.headerHeroes.available = QBitArray(10, true);
    header.headerHeroes.available.clearBit(7);
    header.headerHeroes.available.clearBit(8);
    header.headerHeroes.customHeroes.resize(1);
    header.headerHeroes.customHeroes[0].heroId = 8;
    return header;
}

inline void giveMap(ScenarioData &scenario, const MapHeader &header)
{
    scenario.mapHeader = std::make_shared<MapHeader>(header);
}

template<typename Set>
void giveOptions(ScenarioData &scenario, unsigned type, const Set &set)
{
    CmpScenarioStartOptions options;
    options.optionType = type;
    options.optionData = QVariant::fromValue(set);
    scenario.startOptions = std::make_shared<CmpScenarioStartOptions>(options);
}

inline void offerHeroes(ScenarioData &scenario, const std::vector<StartingHero> &entries)
{
    StartingHeroSet set;
    set.entries = entries;
    giveOptions(scenario, 3, set);
}

inline void offerCrossovers(ScenarioData &scenario, const std::vector<CmpHeroCrossover> &entries)
{
    HeroCrossoverSet set;
    set.entries = entries;
    giveOptions(scenario, 2, set);
}
