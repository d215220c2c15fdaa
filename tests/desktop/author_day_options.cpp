// The day's third part: what the player may choose at the start of each scenario.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/windows.h"

#include <functional>

namespace {

void openOptionsOf(Workplace &place, int row)
{
    Editor &editor = place.editor();
    editor.screen().press("Return");
    waitForWindow(editor, "ScenarioInfo");
    openTab(editor, "tabWidget", "Starting Options");
    selectRow(editor, "listWidget", row);
}

// Opens one of the dialogs for a new row, fills it in and accepts it.
void addRow(Editor &editor, const QString &dialog, const std::function<void()> &fillIn)
{
    click(editor, "addButton");
    waitForWindow(editor, dialog);
    fillIn();
    answer(editor, "OK", "ScenarioInfo");
}

void addBonus(Editor &editor, const QString &kind, const std::function<void()> &fillIn)
{
    addRow(editor, "bonus_dialog", [&] {
        setTick(editor, kind, true);
        fillIn();
    });
}

void offerSpellCreaturesAndBuilding(Workplace &place)
{
    Editor &editor = place.editor();
    openOptionsOf(place, 0);
    waitForText(editor, "playerCombobox", "Red");
    addBonus(editor, "spellBtn", [&] {
        waitForText(editor, "recipientCombobox", "Most powerful hero");
        choose(editor, "item1combobox", "Bolt of Noon");
    });
    addBonus(editor, "creatureBtn", [&] {
        choose(editor, "recipientCombobox", "Marwenna the Ferrier (on map)");
        choose(editor, "creatureCombobox", "Lantern Brother");
        typeInto(editor, "quantitySpinbox", "25");
    });
    addBonus(editor, "buildingBtn", [&] { choose(editor, "recipientCombobox", "Market"); });
    waitForEntries(editor, "tableWidget",
                   {"Give Bolt of Noon spell to Most powerful hero",
                    "Give 25 Lantern Brother to Marwenna the Ferrier",
                    "Build Market at Main Town"});
    waitUntilEnabled(editor, "addButton", false);
}

void offerArtifactScrollAndSkills(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 1);
    waitForEntries(editor, "tableWidget", {});
    addBonus(editor, "artifactBtn", [&] {
        choose(editor, "recipientCombobox", "Generated hero (in town)");
        choose(editor, "item1combobox", "Locket of the Absent Queen");
    });
    addBonus(editor, "scrollBtn", [&] {
        choose(editor, "recipientCombobox", "Tammas (on map)");
        choose(editor, "item1combobox", "Ice Bridge");
    });
    addBonus(editor, "primSkillBtn", [&] {
        choose(editor, "datatypeBox", "Most powerful hero");
        typeInto(editor, "spinBox", "2");
        typeInto(editor, "spinBox_3", "1");
        typeInto(editor, "spinBox_4", "3");
    });
    waitForEntries(editor, "tableWidget",
                   {"Give Locket of the Absent Queen to Generated hero (in town)",
                    "Give Ice Bridge Spell Scroll to Tammas",
                    "Give +2 Attack, +1 Spell Power, +3 Knowledge to Most powerful hero"});
}

// Two that stay, and one that is changed and then taken out again.
void offerSkillAndResource(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 2);
    choose(editor, "playerCombobox", "Green");
    addBonus(editor, "resourceBtn", [&] { choose(editor, "datatypeBox", "Crowns"); });
    addBonus(editor, "secSkillBtn", [&] {
        choose(editor, "recipientCombobox", "Ulwyn (on map)");
        choose(editor, "item1combobox", "Ferrying");
        choose(editor, "item2combobox", "Advanced");
    });
    addBonus(editor, "resourceBtn", [&] {
        choose(editor, "datatypeBox", "Timber and Bog Iron");
        typeInto(editor, "spinBox", "12000");
    });
    select(editor, "tableWidget", "Receive 1 Crowns");
    click(editor, "removeButton");
    waitForEntries(editor, "tableWidget",
                   {"Give Advanced Ferrying to Ulwyn", "Receive 12000 Timber and Bog Iron"});
    select(editor, "tableWidget", "Receive 12000 Timber and Bog Iron");
    click(editor, "editButton");
    waitForWindow(editor, "bonus_dialog");
    typeInto(editor, "spinBox", "7");
    answer(editor, "OK", "ScenarioInfo");
    waitForEntries(editor, "tableWidget",
                   {"Give Advanced Ferrying to Ulwyn", "Receive 7 Timber and Bog Iron"});
}

void addHero(Editor &editor, const QString &player, const QString &hero)
{
    addRow(editor, "StartingHeroDialog", [&] {
        choose(editor, "playerCombobox", player);
        choose(editor, "heroCombobox", hero);
    });
}

void offerHeroes(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 3);
    setTick(editor, "startingHeroBtn", true);
    addHero(editor, "Player 2 (Blue)", "Uncle Glimmond (on map)");
    addHero(editor, "Player 1 (Red)", "Random hero (in town)");
    addHero(editor, "Player 1 (Red)", "Ivarne (in town)");
    waitForEntries(editor, "tableWidget",
                   {"Uncle Glimmond (on map) | Player 2 (Blue)",
                    "Random hero (in town) | Player 1 (Red)", "Ivarne (in town) | Player 1 (Red)"});
    waitUntilEnabled(editor, "addButton", false);
}

void addCrossover(Editor &editor, const QString &source, const QString &player)
{
    addRow(editor, "HeroCrossoverDialog", [&] {
        choose(editor, "scenarioCombobox", source);
        choose(editor, "playerCombobox", player);
    });
}

void offerHeroesFromEarlierScenarios(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 4);
    setTick(editor, "heroCrosssoverBtn", true);
    addCrossover(editor, "Mill Pond — Pyrepit", "Green");
    addCrossover(editor, "The Toll Bridge — Slaghorn", "Red");
    waitForEntries(
        editor, "tableWidget",
        {"Mill Pond — Pyrepit | Player 4 (Green)", "The Toll Bridge — Slaghorn | Player 1 (Red)"});
    waitUntilEnabled(editor, "addButton", false);
}

void keepTheOptions(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 0);
    waitForEntries(editor, "tableWidget",
                   {"Give Bolt of Noon spell to Most powerful hero",
                    "Give 25 Lantern Brother to Marwenna the Ferrier",
                    "Build Market at Main Town"});
    answer(editor, "OK", "MainWindow");
}

} // namespace

Steps offerStartOptions()
{
    return {{"bonuses: a spell, creatures, a building", offerSpellCreaturesAndBuilding},
            {"bonuses: an artifact, a scroll, primary skills", offerArtifactScrollAndSkills},
            {"bonuses: a secondary skill, a resource", offerSkillAndResource},
            {"starting heroes", offerHeroes},
            {"heroes from earlier scenarios", offerHeroesFromEarlierScenarios},
            {"a look back at the options, and OK", keepTheOptions}};
}
