// The day's fourth part: prologues, epilogues, and what heroes keep.
#include "tests/desktop/author_day.h"
#include "tests/desktop/controls.h"
#include "tests/desktop/music.h"
#include "tests/desktop/windows.h"

namespace {

// How many of them the sample game offers to be kept.
constexpr int artifacts = 163;
constexpr int creatures = 175;

struct Story
{
    QString video;
    QString music;
    QString text;
};

void tell(Editor &editor, const Story &story)
{
    choose(editor, "videoCombobox", story.video);
    select(editor, "musicListWidget", story.music);
    waitForText(editor, "selectedMusicLabel", story.music);
    typeInto(editor, "textEdit", story.text);
}

// The story of the second or the third starting option.
void tellOther(Editor &editor, const QString &number, const Story &story)
{
    setTick(editor, number, true);
    setTick(editor, "settingsCheckbox", true);
    tell(editor, story);
}

void openStories(Workplace &place)
{
    Editor &editor = place.editor();
    clickRegion(editor, 0, 3);
    chooseFromOpenMenu(editor, "QMenu", "Properties...");
    waitForWindow(editor, "ScenarioInfo");
}

void tellThreePrologues(Workplace &place)
{
    Editor &editor = place.editor();
    openTab(editor, "tabWidget", "Prologue");
    setTick(editor, "hasPrologueCheckbox", true);
    tell(editor,
         {"The Empty Throne", "The Road East", "The throne stands empty.\nSo do the ferries."});
    hearMusic(place);
    tellOther(editor, "btn2",
              {"The Road East", "Campfire", "You could have had the lantern brothers."});
    tellOther(editor, "btn3", {"Through the Snow", "Snowbound", "A market! In this weather?"});
    setTick(editor, "btn1", true);
    waitForText(editor, "textEdit", "The throne stands empty.\nSo do the ferries.");
    waitForText(editor, "videoCombobox", "The Empty Throne");
}

void tellTwoEpilogues(Workplace &place)
{
    Editor &editor = place.editor();
    openTab(editor, "tabWidget", "Epilogue");
    setTick(editor, "hasPrologueCheckbox", true);
    tell(editor, {"The Long Way Home", "Homecoming", "The reeds are cut, and so is the rope."});
    tellOther(editor, "btn2", {"The Last Camp", "Last Lantern", "The brothers sing all night."});
}

void tellOfTheMill(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 2);
    openTab(editor, "tabWidget", "Prologue");
    setTick(editor, "hasPrologueCheckbox", true);
    tell(editor, {"Ruins in the Grass", "River March", "The miller is not at home."});
    tellOther(editor, "btn2",
              {"Rider at Dawn", "Long Drove", "Seven loads of timber, and no mill."});
}

void tellOfTheHarbour(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 5);
    openTab(editor, "tabWidget", "Epilogue");
    setTick(editor, "hasPrologueCheckbox", true);
    tell(editor, {"Bound for Saltharbour", "Credits", "The queen pays the toll."});
}

void letHeroesKeepSome(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 3);
    openTab(editor, "tabWidget", "Crossover Options");
    setTick(editor, "experienceComboBox", false);
    setTick(editor, "artifactsCombobox", true);
    setEntryTick(editor, "creaturesListWidget", "Heron Rider", true);
    setEntryTick(editor, "creaturesListWidget", "Frost Heart", true);
    setEntryTick(editor, "crosssoverArtsListWidget", "Boots of Springs", true);
    setEntryTick(editor, "crosssoverArtsListWidget", "Locket of the Absent Queen", true);
}

void letHeroesKeepAll(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 4);
    click(editor, "allButtonArts");
    waitForTicks(editor, "crosssoverArtsListWidget", artifacts);
    click(editor, "allButton");
    waitForTicks(editor, "creaturesListWidget", creatures);
    click(editor, "noneButton");
    waitForTicks(editor, "creaturesListWidget", 0);
    selectRow(editor, "listWidget", 5);
    setTick(editor, "primarySkillsCombobox", false);
    click(editor, "allButton");
    waitForTicks(editor, "creaturesListWidget", creatures);
    setEntryTick(editor, "creaturesListWidget", "Reed Levy", false);
}

void keepTheStories(Workplace &place)
{
    Editor &editor = place.editor();
    selectRow(editor, "listWidget", 0);
    openTab(editor, "tabWidget", "Epilogue");
    setTick(editor, "btn2", true);
    waitForText(editor, "textEdit", "The brothers sing all night.");
    waitForText(editor, "selectedMusicLabel", "Last Lantern");
    answer(editor, "OK", "MainWindow");
}

} // namespace

Steps tellStories()
{
    return {{"the scenarios, by the right button", openStories},
            {"three prologues, the first one's music heard", tellThreePrologues},
            {"two epilogues", tellTwoEpilogues},
            {"prologues of another scenario", tellOfTheMill},
            {"the last epilogue", tellOfTheHarbour},
            {"what heroes keep", letHeroesKeepSome},
            {"all and none of a list", letHeroesKeepAll},
            {"a look back at the stories, and OK", keepTheStories}};
}
