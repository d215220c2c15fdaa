// The names of the creatures.
#include "tools/sample_game/names.h"

namespace sample::names {

QStringList lines(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

QStringList creatures()
{
    return lines(R"(
Reed Levy
Reed Warden
Slinghand
Brass Slinghand
Toll Hound
Bridge Hound
Ferry Guard
Ferry Captain
Lantern Brother
Lantern Prior
Heron Rider
Silver Heron
Dawnkeeper
High Dawnkeeper
Moss Runner
Elder Moss Runner
Acorn Thrower
Oak Thrower
Briar Cat
Thorn Cat
Glade Singer
Grove Singer
Antler Knight
Crown Antler
Bark Elder
Ironbark Elder
Leaf Serpent
Autumn Serpent
Glass Imp
Mirror Imp
Chalk Servant
Marble Servant
Vial Tosser
Vial Master
Page of Letters
Scribe of Letters
Clockwork Owl
Gilded Owl
Prism Djal
Rainbow Djal
Lens Giant
Star-Lens Giant
Cinderling
Soot Cinderling
Coal Spitter
Ember Spitter
Ash Jackal
Furnace Jackal
Kiln Keeper
Kiln Tyrant
Smoke Dancer
Flame Dancer
Slag Bull
Molten Bull
Vulcan Regent
Crater Regent
Bone Picker
Bone Collector
Drift Shade
Pale Shade
Barrow Sleeper
Barrow Waker
Candle Ghoul
Tallow Ghoul
Veiled Widow
Crowned Widow
Hearse Rider
Black Hearse Rider
Ossuary Wyrm
Cathedral Wyrm
Cave Cricket
Blind Cricket
Fungus Herder
Spore Herder
Stalactite Bat
Crystal Bat
Pit Lurker
Pit Stalker
Basalt Minder
Obsidian Minder
Echo Mother
Echo Queen
Lode Dragon
Motherlode Dragon
Dust Runner
Dust Reaver
Yak Drover
Yak Rider
Kite Archer
Storm Archer
Drum Shaman
Thunder Shaman
Hill Brute
Scarred Brute
Roc of Karrun
Elder Roc of Karrun
Mammoth Tribe
Mammoth Chief
Mud Newt
Bog Newt
Eel Spearman
Eel Champion
Marsh Lamp
Marsh Beacon
Reedback Turtle
Ironback Turtle
Heron Witch
Raven Witch
Snapjaw
Great Snapjaw
Five-Eyed Hydrake
Nine-Eyed Hydrake
Gale Heart
Boulder Heart
Ember Heart
Frost Heart
Bell Golem
Old Automaton
Spring Breeze
Summer Breeze
Sky Ferryman
Storm Ferryman
Ledger Clerk
Deep Frost Heart
Ledger Judge
Mountain Heart
Broken Automaton
Great Gale Heart
Drifting Log
Great Ember Heart
Bottled Storm
Unbottled Storm
Wandering Tinker
Moon Moth
Orchard Giant
Smugglers' Crew
Salt Pilgrim
Highroad Bandit
Peddler's Mule
Snow Lynx
River Trold
Mist Stag
Cattle Drover
Village Elder
Royal Falcon
Battering Sledge
Camp Kitchen
Signal Kite
Ferry Raft
Gate Lantern
)");
}

QStringList addedCreatures()
{
    return lines(R"(
Signal Mast
Foam Nymph
Harbour Chain
Dock Hand
Dock Master
Gull Rider
Storm-Gull Rider
Harpoon Crew
Master Harpooner
Pearl Nymph
Cask Golem
Iron-Hooped Golem
Reef Crab
Coral Crab
Siren Choir
Lighthouse Keeper
Great Leviad
Amber Colossus
Frozen Pilgrim
Masked Duellist
Golden Carp
Rivet Boy
Rivet Foreman
Boiler Hound
Pressure Hound
Spanner Guard
Brass Spanner Guard
Gear Wright
Master Gear Wright
Piston Ram
Steam Ram
Gyro Pilot
Gyro Ace
Dreadwheel
Imperial Dreadwheel
Clocktower Titan
)");
}

} // namespace sample::names
