// The names of heroes, skills and spells.
#include "tools/sample_game/names.h"

namespace sample::names {

QStringList heroes()
{
    return lines(R"(
Aldwen
Berrin
Corvane
Delmira
Edrasto
Fennick
Garrowe
Hestle
Ivarne
Jorin
Kelsambe
Luthard
Marwenna
Norrick
Ostrin
Pelham
Quilla
Rosmunde
Sorrelin
Tammas
Ulwyn
Verrith
Wendel
Yarrowa
Ashlane
Birchen
Cressida Moss
Dunnoch
Elowyn
Fernald
Gorsewyn
Haselin
Ilva
Juniper Thane
Kestrin
Linnet
Magister Ambrel
Benvolt
Calligra
Dottorin
Essenwald
Facetta
Glimmond
Horlogue
Inkwell Tam
Jessamy Prism
Kalkulo
Lenswright
Mirabeau Quill
Nonius
Opalina
Parchmain
Quadrille
Retorta
Askar
Brandulf
Cinnabar
Drosska
Emberlin
Furnand
Grell
Harrakesh
Ignace
Jorrum
Kilnara
Lavasse
Moldrak
Naphtha
Ochre
Pyrrhane
Quench
Ruddock
Sallow
Bierden
Cairnoch
Dolorette
Ebonwise
Fallowmere
Grimmet
Hollin
Isengrave
Jettina
Knell
Lychgate Ann
Mournival
Nettlecomb
Obsequa
Palloth
Quietus
Requa
Agatine
Boulderic
Chasmira
Drippen
Echolette
Feldspar
Gneissa
Hornfels
Ironwell
Jaspen
Karstin
Lodestar
Marlstone
Nickela
Oreward
Pyritte
Quartzen
Rubble
Arkhuun
Bolortai
Chagur
Dorjin
Erdemka
Furgai
Gantula
Hulan
Irgen
Jargal
Khasbat
Laajin
Mönkar
Naraya
Odgerel
Purev
Qorlan
Sarnai
Alderfen
Bogwin
Cattail Joan
Duckweed
Eelgrass Hob
Fenella Wick
Gallinule
Heronsby
Irisol
Jackdaw
Kingcup
Lapwing
Mireille
Natterjack
Otterly
Peatsmoke
Quagmar
Rushlight
Aurelo
Brisande
Cirrane
Drizzla
Élan
Föhnwald
Galewyn
Hailstan
Iceling
Jetstream Ro
Khamsin
Levanta
)");
}

QStringList addedHeroes()
{
    return lines(R"(
Mistralou
Nimbus Gray
Ozona
Zephrine
Anchora
Bosun Pell
Captain Thrale
Dorade
Ebba Tideswell
Fathom
Gannet
Halyard Nan
Îlette
Jib Marrow
Axleby
Boilerine
Cogsworthy Dane
Dynama
Escapement
Flywheel Gus
Gasketta
Hammerlin
)");
}

QStringList skills()
{
    return lines(R"(
Bowcraft
Ropework
Haggling
Riverlore
Rootlore
Kilnlore
Stormlore
Forced Marches
Camp Cooking
Hedge Surgery
Letters
Heraldry
Horse Sense
Night Watches
Fieldworks
Sapping
Tracking
Oratory
Bookkeeping
Bluffing
Swordplay
Pike Drill
Falconry
Stargazing
Brewing
Lockwork
Ferrying
Stubbornness
)");
}

QStringList addedSkills()
{
    return lines(R"(
Seamanship
Clockwork
Salt Trade
)");
}

QStringList adventureSpells()
{
    return lines(R"(
Ferryman's Whistle
Hawk's Errand
Cloak of Drizzle
Borrowed Boots
Dowsing
Weather Sense
Ice Bridge
Homeward Bell
Door in the Hillside
Night Post
)");
}

QStringList combatSpells()
{
    return lines(R"(
Good Cheer
Frost Needle
Kettle Burst
Lucky Coin
Coat of Bark
Loosen Straps
Falling Ash
Whetstone
Hurry
Mend
Knee-Deep Mud
Candle Flash
Ring of Rime
Steady Hand
Hornets
Black Cat
Shield of Reeds
Sour Milk
Wake the Bones
Second Wind
Tripwire
Bolt of Noon
Ward of Feathers
Bull's Temper
Dawdle
Cleanse
Hedge of Thorns
Heavy Boots
Whisper of Graves
Rain of Embers
Ward of Roots
Sharp Ears
Ghost Lantern
Rust
Rolling Boulder
Step Aside
Ward of Cinders
Low Spirits
Marsh Gas
Lullaby
Turn the Spell
Swap Places
Whirlpool
Red Mist
Ward of Rain
Forget-Me-Now
Splinter
Oath of the Ford
Call of Stones
Bottled Lightning
Mirror Twin
Sandstorm
Call of Waves
Quiet Word
Avalanche
Call of Winds
Star Hail
Call of Embers
The Long Dusk
Last Lantern
)");
}

QStringList creatureSpells()
{
    return lines(R"(
Petrifying Stare
Poisoned Sting
Binding Roots
Withering Touch
Swamp Fever
Stunning Bellow
)");
}

} // namespace sample::names
