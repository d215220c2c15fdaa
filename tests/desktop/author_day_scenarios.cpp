// The day's second part: a map for each region, and what is told of each scenario.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/windows.h"

namespace {

struct Scenario
{
    QString map; // its name; the file's, without the ending
    QString region;
    QString colour;
    QString difficulty;
    QString text;
    QStringList required;      // what is ticked
    QStringList prerequisites; // what the list shows then
};

void openScenarios(Workplace &place)
{
    Editor &editor = place.editor();
    clickRegion(editor, 1);
    waitForRegion(editor, "Slaghorn");
    clickRegion(editor, 0, 1, 2);
    waitForWindow(editor, "ScenarioInfo");
    waitForEntries(editor, "listWidget",
                   {"Empty — Cindercrown", "Empty — Slaghorn", "Empty — Pyrepit", "Empty — Ashscar",
                    "Empty — Flintcrown", "Empty — Scorch Light"});
    waitUntilEnabled(editor, "addBtn", false);
}

void enter(Workplace &place, int row, const Scenario &scenario)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", row);
    waitForText(editor, "regionNameLabelMain", scenario.region);
    click(editor, "refreshButton");
    answerFileDialog(editor, place.gameMap(scenario.map + ".e3m"), "ScenarioInfo");
    waitForText(editor, "scenarioNameLabelMain", scenario.map);
    waitForText(editor, "mapFileIdentifier", scenario.map + ".e3m");
    choose(editor, "regionColorCombobox", scenario.colour);
    choose(editor, "difficultyCombobox", scenario.difficulty);
    for (const QString &required : scenario.required)
        setEntryTick(editor, "prereqListWidget", required, true);
    waitForEntries(editor, "prereqListWidget", scenario.prerequisites);
    typeInto(editor, "regionTextEdit", scenario.text);
}

void enterTheLanding(Workplace &place)
{
    enter(place, 0,
          {"Lantern Landing",
           "Cindercrown",
           "Blue",
           "Easy",
           "Hold the landing.\nTrust nobody who offers a lantern.",
           {},
           {}});
}

void enterTheBridge(Workplace &place)
{
    enter(place, 1,
          {"The Toll Bridge",
           "Slaghorn",
           "Green",
           "Normal",
           "Pay, or swim (10% off on Mondays).",
           {"Lantern Landing — Cindercrown"},
           {"[x] Lantern Landing — Cindercrown"}});
}

void enterTheMill(Workplace &place)
{
    enter(place, 2,
          {"Mill Pond",
           "Pyrepit",
           "Orange",
           "Hard",
           "The pond talks; don't answer.",
           {"Lantern Landing — Cindercrown"},
           {"[x] Lantern Landing — Cindercrown", "[ ] The Toll Bridge — Slaghorn"}});
}

// What both of them require needn't be ticked any more.
void enterTheCourt(Workplace &place)
{
    enter(place, 3,
          {"Heron Court",
           "Ashscar",
           "Purple",
           "Expert",
           "\"Regent\" is a heavy word.",
           {"Lantern Landing — Cindercrown", "The Toll Bridge — Slaghorn", "Mill Pond — Pyrepit"},
           {"[x] Lantern Landing — Cindercrown (grey)", "[x] The Toll Bridge — Slaghorn",
            "[x] Mill Pond — Pyrepit"}});
}

void enterTheWeir(Workplace &place)
{
    enter(place, 4,
          {"The Sealed Weir",
           "Flintcrown",
           "Teal",
           "Impossible",
           "Seven locks & one key.",
           {"The Toll Bridge — Slaghorn", "Mill Pond — Pyrepit"},
           {"[x] Lantern Landing — Cindercrown (grey)", "[x] The Toll Bridge — Slaghorn",
            "[x] Mill Pond — Pyrepit", "[ ] Heron Court — Ashscar"}});
}

void enterTheHarbour(Workplace &place)
{
    enter(place, 5,
          {"Saltharbour",
           "Scorch Light",
           "Pink",
           "Hard",
           "The fleet waits for wind.",
           {"Heron Court — Ashscar", "The Sealed Weir — Flintcrown"},
           {"[x] Lantern Landing — Cindercrown (grey)", "[x] The Toll Bridge — Slaghorn (grey)",
            "[x] Mill Pond — Pyrepit (grey)", "[x] Heron Court — Ashscar",
            "[x] The Sealed Weir — Flintcrown"}});
}

// A scenario that is required by others is not offered to those that it requires itself.
void lookBackAtTheBridge(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 1);
    waitForEntries(editor, "prereqListWidget",
                   {"[x] Lantern Landing — Cindercrown", "[ ] Mill Pond — Pyrepit"});
    waitForText(editor, "regionTextEdit", "Pay, or swim (10% off on Mondays).");
    answer(editor, "OK", "MainWindow");
}

} // namespace

Steps enterScenarios()
{
    return {{"the scenarios, all of them empty", openScenarios},
            {"the first scenario: map, colour, difficulty, text", enterTheLanding},
            {"the second scenario", enterTheBridge},
            {"the third scenario", enterTheMill},
            {"the fourth scenario", enterTheCourt},
            {"the fifth scenario", enterTheWeir},
            {"the sixth scenario", enterTheHarbour},
            {"a look back, and OK", lookBackAtTheBridge}};
}
