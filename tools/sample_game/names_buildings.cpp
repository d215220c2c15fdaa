// The names of the buildings, town by town.
#include "tools/sample_game/names.h"

namespace sample::names {

namespace {

constexpr int kTextTowns = 9;
constexpr int kTiers = 7;

// Seven dwellings for each of the towns 0 to 8, seven for no town, seven each for 9 and 10.
QStringList plainDwellings()
{
    return lines(R"(
Reed Camp
Sling Yard
Kennels
Ferry House
Lantern Chapel
Heronry
Dawn Spire
Moss Hollow
Oak Platform
Briar Den
Singers' Glade
Antler Stables
Whispering Grove
Serpent Arch
Glass Cupboard
Chalk Pit
Vial Cellar
Hall of Letters
Owl Workshop
Prism Garden
Lens Tower
Soot Nest
Coal Cellar
Ash Kennel
Great Kiln
Smoke Theatre
Slag Pen
Crater Throne
Bone Heap
Shade Walk
Barrow Row
Tallow House
Widow's Parlour
Hearse Stables
Ossuary
Cricket Crevice
Fungus Garden
Bat Ceiling
Lurker's Pit
Basalt Court
Echo Chamber
Lode Cavern
Dust Camp
Yak Corral
Kite Mast
Drum Tent
Brute Hut
Roc Cliff
Mammoth Ground
Newt Puddle
Eel Weir
Lamp Islet
Turtle Bank
Witch House
Snapjaw Hole
Hydrake Pool
Wind Arch
Tide Basin
Frost Shrine
Ember Shrine
Boulder Shrine
Ferry of the Sky
Bottle of Storms
Tinker's Stall
Village Green
Moth Lantern
Orchard
Smugglers' Cove
Pilgrim Hostel
Lynx Lair
Docks
Gull Perch
Harpoon Loft
Nymph Grotto
Cooper's Yard
Crab Reef
Leviad Deep
Rivet Shed
Boiler Kennel
Spanner Barracks
Gear Hall
Piston Works
Gyro Hangar
Clocktower
)");
}

QStringList sevenFrom(int group)
{
    return plainDwellings().mid(group * kTiers, kTiers);
}

// The upgraded dwelling of a town is called like the plain one, with the town's own honour.
QStringList withUpgrades(const QStringList &plain, const QString &honour)
{
    QStringList all = plain;
    for (const QString &name : plain)
        all += honour + QLatin1Char(' ') + name;
    return all;
}

QStringList honours()
{
    return lines("Royal\nElder\nGilded\nBlazing\nHaunted\nDeep\nChieftain's\nSunken\nStormblessed\n"
                 "Far\nAdmiral's\nImperial");
}

} // namespace

QStringList towns()
{
    return lines("Rivermark\nThornvale\nGlassmere\nCinderhall\nBarrowdeep\nGloamhold\nKarrun\n"
                 "Fenwatch\nStormspire\nSaltharbour\nBrasshollow");
}

QStringList resources()
{
    return lines("Salt\nTimber\nBog Iron\nAmber\nMoonglass\nDyes\nCrowns");
}

QStringList neutralBuildings()
{
    return lines(R"(
Scholars' House, First Floor
Scholars' House, Second Floor
Scholars' House, Third Floor
Scholars' House, Fourth Floor
Scholars' House, Fifth Floor
Inn
Boatyard
Council House
Assembly Hall
Treasury
Royal Mint
Palisade
Town Wall
High Keep
Market
Smithy
)");
}

QStringList specialBuildings()
{
    return lines(R"(
Flood Gauge
Heron Feeding Yard
Great Heron Feeding Yard
Weir of Seven Gates
Barge School
River Court
Mill of the Commons
Water Meadow
Charcoal Burners' Clearing
Cat Hollow
Great Cat Hollow
Honey Terraces
Bark Archive
Elder Saplings
Great Elder Saplings
Circle of Antlers
Sand Quay
Chalk Heap
Vial Washery
Great Vial Washery
Lens Grinders' Row
Furnace of Clear Glass
Map Room
The Great Telescope
Coal Stairs
Jackal Run
Great Jackal Run
Bellows House
Potters' Court
Hot Springs
Kiln Apprentices
Great Kiln Apprentices
Chimney of the Ember Court
Yew Avenue
Candle Makers' Row
Bone Sorters
Great Bone Sorters
Hearse House
Mourners' Guild
Night School
Tomb of the Absent Queen
Rope Lift
Lamp Oil Store
Cricket Terraces
Great Cricket Terraces
Assay Office
Echo Post
Underground Lake
Glow-Worm Dome
Signal Fires
Kite Masters' Field
Runners' Kitchen
Great Runners' Kitchen
Felt Makers' Tents
Horse Fair
Wrestling Ring
The Great Drum
Causeway
Eel Smokehouse
Spawning Pond
Great Spawning Pond
Peat Store
Fog Bell
Stilt Market
The Drowned Belfry
Kite Strings
Rain Cistern
Cloud Pier
Weather Loom
Hall of Barometers
Garden of Breezes
Eye of the Storm
Exchange House
Curio Dealer
Drill Yard, First Rank
Drill Yard, Second Rank
Drill Yard, Closed
Drill Yard, Third Rank
Drill Yard, Fourth Rank
Drill Yard, Fifth Rank
Wonder of the Town
)");
}

QStringList dwellings()
{
    QStringList all;
    const QStringList honour = honours();
    // The group behind the nine towns belongs to none.
    for (int group = 0; group <= kTextTowns; ++group)
        all += withUpgrades(sevenFrom(group), honour.at(group));
    return all;
}

QStringList addedDwellings(int town)
{
    return withUpgrades(sevenFrom(town + 1), honours().at(town + 1));
}

QStringList addedSpecials(int town)
{
    if (town == 8)
        return {QStringLiteral("Moulting Tower")};
    if (town == 9) {
        return lines("Gull Feeding Ground\nGull Nest\nGull Great Nest\nQuay of Ropes\n"
                     "Anchor Smithy\nSmugglers' Cellar\nPearl Divers' Guild\nReef Nursery\n"
                     "Reef Great Nursery\nThe Great Lighthouse");
    }
    return lines(
        "Scrap Sorters\nBoiler Pups' Pen\nBoiler Pups' Great Pen\nRiveted Dry Dock\n"
        "Patent Office\nTesting Range\nSteam Baths\nFoundry\nGreat Foundry\nPerpetual Engine");
}

} // namespace sample::names
