// The day's end: the campaign loses its map and gets another one.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/files.h"
#include "tests/desktop/windows.h"

namespace {

void saveAs(Workplace &place, const QString &name)
{
    Editor &editor = place.editor();
    chooseFromMenu(editor, "File", "Save As...");
    answerFileDialog(editor, place.file(name), "MainWindow");
    waitForTitle(editor, name + " - Eldmark Saga Campaign Editor");
}

void convertTo(Editor &editor, const QString &target, const QString &answerToQuestion)
{
    chooseFromMenu(editor, "Edit", "Convert campaign...");
    waitForWindow(editor, "ConvertCampaign");
    waitForText(editor, "scCountLabel", "6");
    select(editor, "listWidget", target);
    waitForText(editor, "warningLabel", {});
    answer(editor, "OK", "QMessageBox");
    answerBox(editor, "Do you really want to convert the campaign to different type?",
              answerToQuestion, "MainWindow");
}

void thinkAgain(Workplace &place)
{
    convertTo(place.editor(), "fen.pcx", "No");
    waitForTitle(place.editor(), "ferry toll.e3c - Eldmark Saga Campaign Editor");
    waitForRegion(place.editor(), "Cindercrown");
}

void takeTheMapAway(Workplace &place)
{
    convertTo(place.editor(), "wells.pcx", "Yes");
    waitForRegion(place.editor(), {});
    waitForTitle(place.editor(), "ferry toll.e3c* - Eldmark Saga Campaign Editor");
}

void saveItInARow(Workplace &place)
{
    saveAs(place, "ferry toll, in a row.e3c");
    checkSavedCampaign(place, "ferry toll, in a row.e3c", "without_map.json");
}

void giveItAnotherMap(Workplace &place)
{
    Editor &editor = place.editor();
    convertTo(editor, "The River Realm", "Yes");
    waitForRegion(editor, "Cragbrae");
}

void saveItByTheRiver(Workplace &place)
{
    saveAs(place, "ferry toll, by the river.e3c");
    checkSavedCampaign(place, "ferry toll, by the river.e3c", "on_another_map.json");
    checkSavedCampaign(place, "ferry toll, in a row.e3c", "without_map.json");
    checkSavedCampaign(place, "ferry toll.e3c", "translated.json");
}

// By keys: nobody is left to see a click through. Exit is the last entry.
void callItADay(Workplace &place)
{
    openMenu(place.editor(), "File");
    place.screen().press("Up");
    place.screen().press("Return");
    place.editor().waitForEnd();
}

} // namespace

Steps convertCampaign()
{
    return {{"a conversion, refused at the question", thinkAgain},
            {"no map any more", takeTheMapAway},
            {"saved under another name", saveItInARow},
            {"another map", giveItAnotherMap},
            {"saved under a third name", saveItByTheRiver},
            {"the end", callItADay}};
}
