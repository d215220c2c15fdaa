// The day's beginning: a new campaign, its name, its music.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/music.h"
#include "tests/desktop/windows.h"

namespace {

void startEditor(Workplace &place)
{
    place.editor().start();
    waitForTitle(place.editor(), "Untitled.e3c - Eldmark Saga Campaign Editor");
}

void makeCampaignOnTheEmberCoast(Workplace &place)
{
    Editor &editor = place.editor();
    chooseFromMenu(editor, "File", "New...");
    waitForWindow(editor, "newcampaign");
    setTick(editor, "campaignWithoutMapBtn", true);
    waitForText(editor, "label", "Campaign background");
    setTick(editor, "campaignWithMapBtn", true);
    waitForEntries(editor, "listWidget",
                   {"The River Realm", "The Salt Isles", "The Winter Marches", "The Wells of Quesh",
                    "The Ember Coast"});
    select(editor, "listWidget", "The Ember Coast");
    answer(editor, "OK", "MainWindow");
    waitForRegion(editor, "Cindercrown");
}

void nameTheCampaign(Workplace &place)
{
    Editor &editor = place.editor();
    editor.screen().press("ctrl+Return");
    waitForWindow(editor, "EditCampaign");
    waitForText(editor, "bgCombobox", "The Ember Coast");
    typeInto(editor, "nameEdit", "The Ferry Toll");
    typeInto(editor, "descriptionEdit", "Six landings, one crown.\nNo ferry goes back.");
    setTick(editor, "diffCheckbox", true);
    choose(editor, "musicCombobox", "Snowbound");
    answer(editor, "OK", "MainWindow");
}

void hearItsMusic(Workplace &place)
{
    Editor &editor = place.editor();
    chooseFromMenu(editor, "Edit", "Campaign Properties");
    waitForWindow(editor, "EditCampaign");
    waitForText(editor, "musicCombobox", "Snowbound");
    choose(editor, "musicCombobox", "Lullaby of the Reeds");
    hearMusic(place);
    answer(editor, "OK", "MainWindow");
}

void thinkAgainAboutTheName(Workplace &place)
{
    Editor &editor = place.editor();
    editor.screen().press("ctrl+Return");
    waitForWindow(editor, "EditCampaign");
    typeInto(editor, "nameEdit", "A name that is not kept");
    answer(editor, "Cancel", "MainWindow");
}

} // namespace

Steps beginCampaign()
{
    return {{"the editor starts with an untitled campaign", startEditor},
            {"a new campaign with a map", makeCampaignOnTheEmberCoast},
            {"its name, description and difficulty", nameTheCampaign},
            {"its music, chosen and heard", hearItsMusic},
            {"another name, taken back", thinkAgainAboutTheName}};
}
