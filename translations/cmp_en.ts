<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>AboutCmpEd</name>
    <message>
        <source>About Campaign Editor</source>
        <translation>About Campaign Editor</translation>
    </message>
    <message>
        <source>Version Ravn</source>
        <translation>Version Ravn</translation>
    </message>
    <message>
        <source>Icon of the editor</source>
        <translation>Icon of the editor</translation>
    </message>
</context>
<context>
    <name>AskDeleteAll</name>
    <message>
        <source>Delete All</source>
        <translation>Delete All</translation>
    </message>
    <message>
        <source>Do you really want to delete all scenarios?</source>
        <translation>Do you really want to delete all scenarios?</translation>
    </message>
</context>
<context>
    <name>ConvertCampaign</name>
    <message>
        <source>Convert Campaign</source>
        <translation>Convert Campaign</translation>
    </message>
    <message>
        <source>Convert to...</source>
        <translation>Convert to...</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Scenario count:</source>
        <translation>Scenario count:</translation>
    </message>
    <message>
        <source>Region count:</source>
        <translation>Region count:</translation>
    </message>
    <message>
        <source>Some scenarios will be deleted!</source>
        <translation>Some scenarios will be deleted!</translation>
    </message>
    <message>
        <source>Convert to campaign without map</source>
        <translation>Convert to campaign without map</translation>
    </message>
    <message>
        <source>Convert to campaign with map</source>
        <translation>Convert to campaign with map</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>Do you really want to convert the campaign to different type? Some scenarios will be deleted!</source>
        <translation>Do you really want to convert the campaign to different type? Some scenarios will be deleted!</translation>
    </message>
    <message>
        <source>Do you really want to convert the campaign to different type?</source>
        <translation>Do you really want to convert the campaign to different type?</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
</context>
<context>
    <name>EditCampaign</name>
    <message>
        <source>Campaign Properties</source>
        <translation>Campaign Properties</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Scenario &amp;difficulty is user selectable</source>
        <translation>Scenario &amp;difficulty is user selectable</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Map:</source>
        <translation>Map:</translation>
    </message>
    <message>
        <source>Map name</source>
        <translation>Map name</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Map</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Save changes</translation>
    </message>
    <message>
        <source>Do you really want to change the background?</source>
        <translation>Do you really want to change the background?</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
</context>
<context>
    <name>GameDialog</name>
    <message>
        <source>Where is the game Eldmark Saga with its add-on Ravn? Choose its folder: the one with ravn.dat, Ravn_settings.ini and the folder Data.</source>
        <translation>Where is the game Eldmark Saga with its add-on Ravn? Choose its folder: the one with ravn.dat, Ravn_settings.ini and the folder Data.</translation>
    </message>
    <message>
        <source>The game isn't in this folder any more:
%1</source>
        <translation>The game isn't in this folder any more:
%1</translation>
    </message>
    <message>
        <source>Folder of the Game</source>
        <translation>Folder of the Game</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choose</translation>
    </message>
    <message>
        <source>Not the Game's Folder</source>
        <translation>Not the Game's Folder</translation>
    </message>
    <message>
        <source>This is not the game's folder:
%1

It lacks: %2</source>
        <translation>This is not the game's folder:
%1

It lacks: %2</translation>
    </message>
</context>
<context>
    <name>HeroCrossover</name>
    <message>
        <source>Source scenario</source>
        <translation>Source scenario</translation>
    </message>
    <message>
        <source>Player position</source>
        <translation>Player position</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Chosen hero crossovers</source>
        <translation>Chosen hero crossovers</translation>
    </message>
</context>
<context>
    <name>HeroCrossoverDialog</name>
    <message>
        <source>Edit Hero Crossover Option</source>
        <translation>Edit Hero Crossover Option</translation>
    </message>
    <message>
        <source>Source scenario:</source>
        <translation>Source scenario:</translation>
    </message>
    <message>
        <source>Player position:</source>
        <translation>Player position:</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Eldmark Saga® Campaign Editor</source>
        <translation>Eldmark Saga® Campaign Editor</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>&amp;New...</source>
        <translation>&amp;New...</translation>
    </message>
    <message>
        <source>Open...</source>
        <translation>Open...</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save As...</source>
        <translation>Save As...</translation>
    </message>
    <message>
        <source>Export Texts...</source>
        <translation>Export Texts...</translation>
    </message>
    <message>
        <source>Import Texts...</source>
        <translation>Import Texts...</translation>
    </message>
    <message>
        <source>Refresh Scenario Maps</source>
        <translation>Refresh Scenario Maps</translation>
    </message>
    <message>
        <source>Export Scenario Maps</source>
        <translation>Export Scenario Maps</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Campaign Properties</source>
        <translation>Campaign Properties</translation>
    </message>
    <message>
        <source>Scenario Properties</source>
        <translation>Scenario Properties</translation>
    </message>
    <message>
        <source>About Campaign Editor...</source>
        <translation>About Campaign Editor...</translation>
    </message>
    <message>
        <source>Convert campaign...</source>
        <translation>Convert campaign...</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 - %2</translation>
    </message>
    <message>
        <source>%1%3 - %2</source>
        <translation>%1%3 - %2</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>Open Map File</source>
        <translation>Open Map File</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Eldmark Saga campaign (*.e3c);;All Files (*)</source>
        <translation>Eldmark Saga campaign (*.e3c);;All Files (*)</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Cannot read file %1:
%2.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Cannot write file %1:
%2.</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Not a regular file</translation>
    </message>
    <message>
        <source>Save changes to %1?</source>
        <translation>Save changes to %1?</translation>
    </message>
    <message>
        <source>%1 has changed on the disk since it was opened or saved here. Overwrite it?</source>
        <translation>%1 has changed on the disk since it was opened or saved here. Overwrite it?</translation>
    </message>
    <message>
        <source>Changes to %1 were not saved. Open the copy kept on %2?</source>
        <translation>Changes to %1 were not saved. Open the copy kept on %2?</translation>
    </message>
    <message>
        <source>Unable to generate image</source>
        <translation>Unable to generate image</translation>
    </message>
    <message>
        <source>Can&apos;t find %1 file in lod file</source>
        <translation>Can&apos;t find %1 file in lod file</translation>
    </message>
    <message>
        <source>Can&apos;t open file %1</source>
        <translation>Can&apos;t open file %1</translation>
    </message>
    <message>
        <source>Invalid campaign file version!

File version = %1
Current version = %2</source>
        <translation>Invalid campaign file version!

File version = %1
Current version = %2</translation>
    </message>
    <message>
        <source>Unsupported version!

File subversion = %1
Current subversion = %2</source>
        <translation>Unsupported version!

File subversion = %1
Current subversion = %2</translation>
    </message>
    <message>
        <source>Campaign Editor cannot be launched because Ravn.dat was not found. 
Ravn.dat must be in Eldmark root folder.</source>
        <translation>Campaign Editor cannot be launched because Ravn.dat was not found. 
Ravn.dat must be in Eldmark root folder.</translation>
    </message>
    <message>
        <source>Eldmark Campaign Editor cannot be launched because Ravn_settings.ini was not found. 
Ravn_settings.ini must be in Eldmark root folder.</source>
        <translation>Eldmark Campaign Editor cannot be launched because Ravn_settings.ini was not found. 
Ravn_settings.ini must be in Eldmark root folder.</translation>
    </message>
    <message>
        <source>Text files (*.txt);;All Files (*)</source>
        <translation>Text files (*.txt);;All Files (*)</translation>
    </message>
    <message>
        <source>Cannot read file %1 - incorrect campaign text:
%2.</source>
        <translation>Cannot read file %1 - incorrect campaign text:
%2.</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Cannot read file %1. Map has errors.</source>
        <translation>Cannot read file %1. Map has errors.</translation>
    </message>
    <message>
        <source>Failed to open the sound driver.</source>
        <translation>Failed to open the sound driver.</translation>
    </message>
</context>
<context>
    <name>MapBrowser</name>
    <message>
        <source>Campaign map</source>
        <translation>Campaign map</translation>
    </message>
</context>
<context>
    <name>MyQGraphicsView</name>
    <message>
        <source>Properties...</source>
        <translation>Properties...</translation>
    </message>
</context>
<context>
    <name>NewCampaign</name>
    <message>
        <source>Campaign map</source>
        <translation>Campaign map</translation>
    </message>
    <message>
        <source>Campaign background</source>
        <translation>Campaign background</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>The game has no campaign map %1</source>
        <translation>The game has no campaign map %1</translation>
    </message>
    <message>
        <source>Incorrect or damaged file.</source>
        <translation>Incorrect or damaged file.</translation>
    </message>
    <message>
        <source>Basic</source>
        <translation>Basic</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Advanced</translation>
    </message>
    <message>
        <source>Expert</source>
        <translation>Expert</translation>
    </message>
    <message>
        <source>Player %1 (%2)</source>
        <translation>Player %1 (%2)</translation>
    </message>
    <message>
        <source>Most powerful hero</source>
        <translation>Most powerful hero</translation>
    </message>
    <message>
        <source>Generated hero</source>
        <translation>Generated hero</translation>
    </message>
    <message>
        <source>Random hero</source>
        <translation>Random hero</translation>
    </message>
    <message>
        <source> (in town)</source>
        <translation> (in town)</translation>
    </message>
    <message>
        <source> (on map)</source>
        <translation> (on map)</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Empty</translation>
    </message>
    <message>
        <source>%1. Empty</source>
        <translation>%1. Empty</translation>
    </message>
    <message>
        <source>No scenario</source>
        <translation>No scenario</translation>
    </message>
    <message>
        <source>Give %1 spell to %2</source>
        <translation>Give %1 spell to %2</translation>
    </message>
    <message>
        <source>Give %1 %2 to %3</source>
        <translation>Give %1 %2 to %3</translation>
    </message>
    <message>
        <source>Build %1 at Main Town</source>
        <translation>Build %1 at Main Town</translation>
    </message>
    <message>
        <source>+%1 %2</source>
        <translation>+%1 %2</translation>
    </message>
    <message>
        <source>Give %1 to %2</source>
        <translation>Give %1 to %2</translation>
    </message>
    <message>
        <source>Give %1 Spell Scroll to %2</source>
        <translation>Give %1 Spell Scroll to %2</translation>
    </message>
    <message>
        <source>Receive %1 %2</source>
        <translation>Receive %1 %2</translation>
    </message>
</context>
<context>
    <name>ScenarioCrossover</name>
    <message>
        <source>Crossover heroes details</source>
        <translation>Crossover heroes details</translation>
    </message>
    <message>
        <source>Experience</source>
        <translation>Experience</translation>
    </message>
    <message>
        <source>Primary Skills</source>
        <translation>Primary Skills</translation>
    </message>
    <message>
        <source>Secondary Skills</source>
        <translation>Secondary Skills</translation>
    </message>
    <message>
        <source>Spells</source>
        <translation>Spells</translation>
    </message>
    <message>
        <source>Artifacts</source>
        <translation>Artifacts</translation>
    </message>
    <message>
        <source>Creature types:</source>
        <translation>Creature types:</translation>
    </message>
    <message>
        <source>Crossover Artifacts:</source>
        <translation>Crossover Artifacts:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>All</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>All creature types</source>
        <translation>All creature types</translation>
    </message>
    <message>
        <source>None of the creature types</source>
        <translation>None of the creature types</translation>
    </message>
    <message>
        <source>All crossover artifacts</source>
        <translation>All crossover artifacts</translation>
    </message>
    <message>
        <source>None of the crossover artifacts</source>
        <translation>None of the crossover artifacts</translation>
    </message>
</context>
<context>
    <name>ScenarioGeneral</name>
    <message>
        <source>(None)</source>
        <translation>(None)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Eldmark Saga map (*.e3m);;All Files (*)</source>
        <translation>Eldmark Saga map (*.e3m);;All Files (*)</translation>
    </message>
    <message>
        <source>Cannot read file %1:
%2.</source>
        <translation>Cannot read file %1:
%2.</translation>
    </message>
    <message>
        <source>Cannot read file %1. Map has errors.</source>
        <translation>Cannot read file %1. Map has errors.</translation>
    </message>
    <message>
        <source>Cannot write file %1:
%2.</source>
        <translation>Cannot write file %1:
%2.</translation>
    </message>
</context>
<context>
    <name>ScenarioInfo</name>
    <message>
        <source>Scenario Properties</source>
        <translation>Scenario Properties</translation>
    </message>
    <message>
        <source>Scenario list</source>
        <translation>Scenario list</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>Delete all</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Prologue</source>
        <translation>Prologue</translation>
    </message>
    <message>
        <source>Epilogue</source>
        <translation>Epilogue</translation>
    </message>
    <message>
        <source>Crossover Options</source>
        <translation>Crossover Options</translation>
    </message>
    <message>
        <source>Starting Options</source>
        <translation>Starting Options</translation>
    </message>
    <message>
        <source>Move scenario up</source>
        <translation>Move scenario up</translation>
    </message>
    <message>
        <source>Move scenario down</source>
        <translation>Move scenario down</translation>
    </message>
</context>
<context>
    <name>ScenarioPrologue</name>
    <message>
        <source>Has prologue</source>
        <translation>Has prologue</translation>
    </message>
    <message>
        <source>Has epilogue</source>
        <translation>Has epilogue</translation>
    </message>
    <message>
        <source>Set up</source>
        <translation>Set up</translation>
    </message>
    <message>
        <source>Video:</source>
        <translation>Video:</translation>
    </message>
    <message>
        <source>Music:</source>
        <translation>Music:</translation>
    </message>
    <message>
        <source>Message:</source>
        <translation>Message:</translation>
    </message>
    <message>
        <source>Picture of the video</source>
        <translation>Picture of the video</translation>
    </message>
    <message>
        <source>Play or pause the music</source>
        <translation>Play or pause the music</translation>
    </message>
    <message>
        <source>Prologue %1</source>
        <translation>Prologue %1</translation>
    </message>
    <message>
        <source>Epilogue %1</source>
        <translation>Epilogue %1</translation>
    </message>
</context>
<context>
    <name>ScenarioStartOptions</name>
    <message>
        <source>Starting options are:</source>
        <translation>Starting options are:</translation>
    </message>
    <message>
        <source>Starting bonus options</source>
        <translation>Starting bonus options</translation>
    </message>
    <message>
        <source>Hero crossover options</source>
        <translation>Hero crossover options</translation>
    </message>
    <message>
        <source>Starting hero options</source>
        <translation>Starting hero options</translation>
    </message>
</context>
<context>
    <name>StartingBonus</name>
    <message>
        <source>Player position:</source>
        <translation>Player position:</translation>
    </message>
    <message>
        <source>Starting bonus option</source>
        <translation>Starting bonus option</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Chosen starting bonuses</source>
        <translation>Chosen starting bonuses</translation>
    </message>
</context>
<context>
    <name>StartingHeroDialog</name>
    <message>
        <source>Edit Starting Hero Option</source>
        <translation>Edit Starting Hero Option</translation>
    </message>
    <message>
        <source>Player position:</source>
        <translation>Player position:</translation>
    </message>
    <message>
        <source>Hero Identity:</source>
        <translation>Hero Identity:</translation>
    </message>
</context>
<context>
    <name>StartingHeroOptions</name>
    <message>
        <source>Hero</source>
        <translation>Hero</translation>
    </message>
    <message>
        <source>Player position</source>
        <translation>Player position</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Chosen starting heroes</source>
        <translation>Chosen starting heroes</translation>
    </message>
</context>
<context>
    <name>bonus_creature_dlg</name>
    <message>
        <source>Hero:</source>
        <translation>Hero:</translation>
    </message>
    <message>
        <source>Creature type:</source>
        <translation>Creature type:</translation>
    </message>
    <message>
        <source>Quantity:</source>
        <translation>Quantity:</translation>
    </message>
</context>
<context>
    <name>bonus_dialog</name>
    <message>
        <source>Edit Starting Bonus</source>
        <translation>Edit Starting Bonus</translation>
    </message>
    <message>
        <source>Select a bonus type:</source>
        <translation>Select a bonus type:</translation>
    </message>
    <message>
        <source>Spell</source>
        <translation>Spell</translation>
    </message>
    <message>
        <source>Creature</source>
        <translation>Creature</translation>
    </message>
    <message>
        <source>Buildiing</source>
        <translation>Buildiing</translation>
    </message>
    <message>
        <source>Artifact</source>
        <translation>Artifact</translation>
    </message>
    <message>
        <source>Spell scroll</source>
        <translation>Spell scroll</translation>
    </message>
    <message>
        <source>Primary skill</source>
        <translation>Primary skill</translation>
    </message>
    <message>
        <source>Secondary skill</source>
        <translation>Secondary skill</translation>
    </message>
    <message>
        <source>Resource</source>
        <translation>Resource</translation>
    </message>
</context>
<context>
    <name>bonus_multibox_dlg</name>
    <message>
        <source>Recipient:</source>
        <translation>Recipient:</translation>
    </message>
    <message>
        <source>Item 1:</source>
        <translation>Item 1:</translation>
    </message>
    <message>
        <source>Item 2:</source>
        <translation>Item 2:</translation>
    </message>
    <message>
        <source>Spell:</source>
        <translation>Spell:</translation>
    </message>
    <message>
        <source>Artifact:</source>
        <translation>Artifact:</translation>
    </message>
    <message>
        <source>Skill:</source>
        <translation>Skill:</translation>
    </message>
    <message>
        <source>Skill level:</source>
        <translation>Skill level:</translation>
    </message>
    <message>
        <source>Building:</source>
        <translation>Building:</translation>
    </message>
</context>
<context>
    <name>bonus_value_dlg</name>
    <message>
        <source>Datatype:</source>
        <translation>Datatype:</translation>
    </message>
    <message>
        <source>Value1:</source>
        <translation>Value1:</translation>
    </message>
    <message>
        <source>Recipient:</source>
        <translation>Recipient:</translation>
    </message>
    <message>
        <source>Attack skill:</source>
        <translation>Attack skill:</translation>
    </message>
    <message>
        <source>Defense skill:</source>
        <translation>Defense skill:</translation>
    </message>
    <message>
        <source>Spell power:</source>
        <translation>Spell power:</translation>
    </message>
    <message>
        <source>Knowledge:</source>
        <translation>Knowledge:</translation>
    </message>
    <message>
        <source>Resource type:</source>
        <translation>Resource type:</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantity</translation>
    </message>
</context>
<context>
    <name>newcampaign</name>
    <message>
        <source>New Campaign</source>
        <translation>New Campaign</translation>
    </message>
    <message>
        <source>Campaign type</source>
        <translation>Campaign type</translation>
    </message>
    <message>
        <source>Campaign with map</source>
        <translation>Campaign with map</translation>
    </message>
    <message>
        <source>Campaign without map</source>
        <translation>Campaign without map</translation>
    </message>
    <message>
        <source>Campaign map</source>
        <translation>Campaign map</translation>
    </message>
    <message>
        <source>image</source>
        <translation>image</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Preview</translation>
    </message>
</context>
<context>
    <name>scenarioGeneral</name>
    <message>
        <source>Region name</source>
        <translation>Region name</translation>
    </message>
    <message>
        <source>Scenario name</source>
        <translation>Scenario name</translation>
    </message>
    <message>
        <source>(None)</source>
        <translation>(None)</translation>
    </message>
    <message>
        <source>Region color</source>
        <translation>Region color</translation>
    </message>
    <message>
        <source>Map file</source>
        <translation>Map file</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>Import...</translation>
    </message>
    <message>
        <source>Export...</source>
        <translation>Export...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Default difficulty:</source>
        <translation>Default difficulty:</translation>
    </message>
    <message>
        <source>Prerequisites:</source>
        <translation>Prerequisites:</translation>
    </message>
    <message>
        <source>Region right-click text:</source>
        <translation>Region right-click text:</translation>
    </message>
</context>
</TS>
