// The text tables of the editor itself: its words and hints, and the names of tracks and movies.
#include "tools/sample_game/game_texts.h"
#include "tools/sample_game/names.h"

namespace sample {

namespace {

// Row 0 is the title, 1 and 7 stand in the about box, 25 to 29 are the difficulties, 55 is on the
// button that plays a track.
QStringList texts()
{
    return names::lines(R"(
Eldmark Saga Campaign Editor
All names, pictures and tunes of this sample game were made for the editor.
Untitled
Campaign
Scenario
Region
Map
Edits campaigns of Eldmark Saga and its add-on Ravn.
New campaign
Open campaign
Save campaign
Save changes?
The file can't be read.
The file can't be written.
Campaign with map
Campaign without map
Campaign properties
Scenario properties
Name
Description
Music
Background
Player may choose the difficulty
Default difficulty
Region color
Easy
Normal
Hard
Expert
Impossible
Map file
Import
Export
Remove the map
Prerequisites
Right-click text
Prologue
Epilogue
Movie
Message
Carried over
Experience
Primary skills
Secondary skills
Spells
Artifacts
Creatures
All
None
Start options
Starting bonus
Hero crossover
Starting hero
Player
Hero
Play music
Add
Edit
Remove
OK
Cancel
)");
}

// The row numbers are those of the commands; the window shows these lines in its status bar.
QStringList hints()
{
    return names::lines(R"(
Double-click a region to edit it.
Start a new campaign.
Open a campaign file.
Save the campaign.
Save under another name.
Tell about the campaign editor.
Leave the campaign editor.
Choose what it rests on.
Choose the campaign's background.
Open this campaign again.
Import the scenario's map.
Export the scenario's map.
Remove the scenario's map.
Edit the scenario's prologue.
Edit the scenario's epilogue.
Edit what heroes carry over.
Read all scenario maps anew.
Write all scenario maps to files.
Edit name, music and background.
Edit the selected scenario.
Write the texts for translators.
Take translated texts back.
)");
}

QStringList headed(const char *title, const QStringList &rows)
{
    return QStringList({QLatin1String(title), QStringLiteral("Text\tRemark")}) + rows;
}

} // namespace

QStringList musicNames()
{
    return names::lines(R"(
River March
Rivermark by Day
Rivermark by Night
Thornvale
Glassmere
Ember Court
Barrowdeep
Gloamhold
Karrun Drums
Fenwatch
Stormspire
Saltharbour
Lullaby of the Reeds
Brasshollow
Battle at the Weir
Battle in the Fen
Battle on the Ice
Siege
Siege by Night
Ambush
Long Drove
Snowbound
Desert Wells
Harbour Jig
Under Sail
Storm at Sea
Ruins
The Old Mint
Market Day
Coronation
Funeral of a Regent
Treason
The Letter
Parting
The Road East
Homecoming
Victory
Triumph
Defeat
Retreat
Campfire
The Inn at the Ford
Fever Dream
Night Watch
First Light
Harvest
Credits
Menu
Silence
)");
}

QStringList addedMusicNames()
{
    return names::lines("Salt Wind\nClockwork Waltz\nBoiler Room\nLast Lantern");
}

QStringList movieNames()
{
    return names::lines(R"(
Rider at Dawn
Ships Under Sail
The Gate of Rivermark
Fires in the Woods
Into Thornvale
The Wyrm and the Moon
The Empty Throne
Banners of War
Through the Snow
Ruins in the Grass
The Old Chart
The Queen's Crown
The Road East
Bound for Saltharbour
The Gate Stands Open
The Last Camp
)");
}

QStringList addedMovieNames()
{
    return {QStringLiteral("The Long Way Home"), QStringLiteral("Night of the Wyrm"), QString(),
            QStringLiteral("The Regent's Host"), QStringLiteral("Föhn and Snow")};
}

QVector<NamedFile> editorTexts()
{
    const QStringList colours = names::lines("Red\nBlue\nTan\nGreen\nOrange\nPurple\nTeal\nPink");
    return {{"CmpEditr.txt", textTable(headed("Texts of the campaign editor", texts()))},
            {"CmpEdCmd.txt", textTable(headed("Hints of the campaign editor", hints()))},
            {"CmpMovie.txt", textTable(movieNames())},
            {"CmpMusic.txt", textTable(musicNames())},
            {"PlColors.txt", textTable(colours)}};
}

} // namespace sample
