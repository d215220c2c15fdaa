// The day's fifth part: saving, another start, and maps that change on the disk.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/files.h"
#include "tests/desktop/windows.h"

#include <QFile>

namespace {

// The name's ending is left to the editor.
void saveForTheFirstTime(Workplace &place)
{
    Editor &editor = place.editor();
    waitForTitle(editor, "Untitled.e3c - Eldmark Saga Campaign Editor");
    editor.screen().press("ctrl+s");
    answerFileDialog(editor, place.file("ferry toll"), "MainWindow");
    waitForTitle(editor, "ferry toll.e3c - Eldmark Saga Campaign Editor");
    checkSavedCampaign(place, "ferry toll.e3c", "entered.json");
}

void closeTheWindow(Workplace &place)
{
    place.editor().screen().press("alt+F4");
    place.editor().waitForEnd();
}

void openItAgain(Workplace &place)
{
    Editor &editor = place.editor();
    editor.start();
    waitForTitle(editor, "Untitled.e3c - Eldmark Saga Campaign Editor");
    chooseFromMenu(editor, "File", "1 ferry toll.e3c");
    waitForTitle(editor, "ferry toll.e3c - Eldmark Saga Campaign Editor");
    waitForRegion(editor, "Cindercrown");
}

void lookAtItAgain(Workplace &place)
{
    Editor &editor = place.editor();
    editor.screen().press("Return");
    waitForWindow(editor, "ScenarioInfo");
    waitForEntries(editor, "listWidget",
                   {"Lantern Landing.e3m — Cindercrown", "The Toll Bridge.e3m — Slaghorn",
                    "Mill Pond.e3m — Pyrepit", "Heron Court.e3m — Ashscar",
                    "The Sealed Weir.e3m — Flintcrown", "Saltharbour.e3m — Scorch Light"});
    selectRow(editor, "listWidget", 4);
    openTab(editor, "tabWidget", "Starting Options");
    waitForEntries(
        editor, "tableWidget",
        {"Mill Pond — Pyrepit | Player 4 (Green)", "The Toll Bridge — Slaghorn | Player 1 (Red)"});
    answer(editor, "Cancel", "MainWindow");
    waitForTitle(editor, "ferry toll.e3c - Eldmark Saga Campaign Editor");
}

void exportTheMaps(Workplace &place)
{
    place.editor().screen().press("ctrl+e");
    for (const char *map : {"Lantern Landing.e3m", "The Toll Bridge.e3m", "Mill Pond.e3m",
                            "Heron Court.e3m", "The Sealed Weir.e3m", "Saltharbour.e3m"})
        waitForFile(place.editor(), place.file(map), contentOf(place.gameMap(map)));
}

// The map editor's part: another map in the place of one of the files.
void changeAMap(Workplace &place)
{
    QFile::remove(place.file("Saltharbour.e3m"));
    QFile::copy(place.gameMap("Over the Snow Pass.e3m"), place.file("Saltharbour.e3m"));
}

void refreshTheMaps(Workplace &place)
{
    place.editor().screen().press("ctrl+r");
    waitForTitle(place.editor(), "ferry toll.e3c* - Eldmark Saga Campaign Editor");
}

void saveTheChangedMap(Workplace &place)
{
    Editor &editor = place.editor();
    chooseFromMenu(editor, "File", "Save");
    waitForTitle(editor, "ferry toll.e3c - Eldmark Saga Campaign Editor");
    checkSavedCampaign(place, "ferry toll.e3c", "refreshed.json");
}

} // namespace

Steps keepFiles()
{
    return {{"saved, and the file holds what was entered", saveForTheFirstTime},
            {"the window closed", closeTheWindow},
            {"started again, opened from the recent files", openItAgain},
            {"all of it is there", lookAtItAgain},
            {"the maps exported", exportTheMaps},
            {"a map changed on the disk, outside", changeAMap},
            {"the maps refreshed", refreshTheMaps},
            {"saved, and the file holds the changed map", saveTheChangedMap}};
}
