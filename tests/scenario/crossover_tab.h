// The crossover tab by itself, with tables and a scenario to show in it.
#pragma once

#include "scenario/scenario_crossover.h"
#include "tests/scenario/scenario_fixture.h"

#include <QCheckBox>

#include <algorithm>
#include <array>

struct Detail
{
    const char *name;
    const char *text;
    bool byDefault;
};

// By their bits.
constexpr std::array<Detail, 5> details{{{"experienceComboBox", "Experience", true},
                                         {"primarySkillsCombobox", "Primary Skills", true},
                                         {"secSkillsCombobox", "Secondary Skills", true},
                                         {"spellsCombobox", "Spells", true},
                                         {"artifactsCombobox", "Artifacts", false}}};

constexpr const char *creatureList = "creaturesListWidget";
constexpr const char *artifactList = "crosssoverArtsListWidget";

inline QBitArray bitsAt(int size, std::initializer_list<int> set)
{
    QBitArray bits(size);
    for (const int bit : set)
        bits.setBit(bit);
    return bits;
}

// The tab by itself, on show.
class CrossoverTab
{
public:
    CrossoverTab() : tab(nullptr)
    {
        tab.resize(460, 400);
        bringOnShow(tab);
    }

    template<typename Widget>
    Widget *find(const char *name)
    {
        return childOf<Widget>(&tab, name);
    }

    QListWidgetItem *item(const char *list, int number)
    {
        auto *widget = find<QListWidget>(list);
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->data(Qt::UserRole).toInt() == number)
                return widget->item(row);
        }
        return nullptr;
    }

    void check(const char *list, int number, bool checked)
    {
        item(list, number)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }

    // The numbers of the checked items, lowest first.
    QList<int> checked(const char *list)
    {
        QList<int> numbers;
        auto *widget = find<QListWidget>(list);
        for (int row = 0; row < widget->count(); ++row) {
            if (widget->item(row)->checkState() == Qt::Checked)
                numbers << widget->item(row)->data(Qt::UserRole).toInt();
        }
        std::sort(numbers.begin(), numbers.end());
        return numbers;
    }

    // "1" for each checked detail, bit 0 first.
    QString kept()
    {
        QString text;
        for (const Detail &detail : details)
            text += find<QCheckBox>(detail.name)->isChecked() ? '1' : '0';
        return text;
    }

    ScenarioCrossover tab;
};

inline bool sameBits(const CmpScenarioCrossover &a, const CmpScenarioCrossover &b)
{
    return a.heroKeeps == b.heroKeeps && a.artifacts == b.artifacts && a.creatures == b.creatures;
}

// Some artifacts and creatures with gaps between their numbers.
inline void nameArtifactsAndCreatures()
{
    EditorData::artifacts = {{0, "Tome"},   {1, "Scroll"},     {2, "Yew Bow"}, {3, "Wagon"},
                             {4, "Anklet"}, {7, "Moss Cloak"}, {9, "Censer"},  {159, "Lute"}};
    EditorData::creatures = {{0, "Reed Guard"}, {3, "Ferryman"}, {8, "Heron"},
                             {122, "Wisp"},     {149, "Shade"},  {185, "Stilt"}};
    EditorData::creature_ordering = {8, 0, 149, 3, 122, 185};
}

// Bits of each kind, of which the lists show some.
inline ScenarioData crossoverScenario()
{
    ScenarioData scenario = scenarioWithMap("ford.e3m", "Ford");
    scenario.crossover.heroKeeps = bitsAt(5, {1, 4});
    scenario.crossover.artifacts = bitsAt(160, {0, 3, 7, 12, 159});
    scenario.crossover.creatures = bitsAt(186, {3, 5, 149});
    return scenario;
}
