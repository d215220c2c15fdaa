// The names of the artifacts.
#include "tools/sample_game/names.h"

namespace sample::names {

QStringList artifacts()
{
    return lines(R"(
Grimoire
Sealed Verse
The Sunken Crown
Siege Ram
Camp Kitchen Cart
Signal Kite Reel
Carpenter's Wagon
Miller's Axe
Blade of First Frost
Ploughshare Sword
Thresher's Flail
Quarryman's Maul
Sabre of the Low Road
Widow's Needle
Bridge-Breaker
Barrel-Lid Shield
Shield of the Toll House
Heron-Feather Shield
Shield of Pressed Reeds
Gatekeeper's Buckler
Mirror of Glassmere
Kettle Helm
Helm of Nine Rivets
Crown of Rowan
Beekeeper's Veil
Stag-Horn Helm
Night Watchman's Hood
Ferryman's Coat
Mail of Fish Scales
Breastplate of Bog Iron
Quilted Coat of the Karrun
Bell-Bronze Plate
Coat of Autumn Leaves
Robe of the Last Scribe
Lantern of the Ford
Lantern of Blue Oil
Amulet of the Second Moon
Locket of the Absent Queen
Necklace of River Teeth
Pendant of Cold Ash
Pendant of Still Water
Pendant of the Night Nurse
Pendant of the Deaf Monk
Ring of Small Debts
Ring of Hasty Steps
Ring of the Patient Angler
Ring of Knotted Hair
Ring of the Ninth Wave
Boots of Dry Crossing
Boots of the Long Drove
Sandals of the Salt Pilgrim
Spurs of the Night Post
Cloak of Marsh Fog
Cloak of the Highroad
Cape of Storm-Gull Down
Moth-Silk Mantle
Bird-Catcher's Gloves
Gauntlets of the Mill Wheel
Gloves of Nimble Theft
Tinker's Spectacles
Surveyor's Chain
Surveyor's Spyglass
Map of Vanished Fords
Compass of the Drowned
Astrolabe of Glassmere
Hourglass of Red Sand
Candle That Burns Down
Candle That Burns Up
Drum of the Plains
Horn of the Valley
Pipe of the Goatherd
Bell Without a Tongue
Fiddle of the Wake
Banner of the Reed Levy
Banner of Two Herons
Standard of Thornvale
Pennant of the Ember Court
Flag of Honest Trade
Purse of the Tax Farmer
Sack That Mends Itself
Cask of Winter Ale
Ever-Full Inkwell
Ever-Burning Coal
Salt Warrant
Timber Warrant
Amber Warrant
Dyer's Copper
Moonglass Lens
Amber Sieve
Chest of Mint Crowns
Key to the Old Mint
Deed to a Ruined Mill
Charter of the Ferrymen
Treaty of the Seven Weirs
Letter Never Sent
Book of River Verses
Book of Ash
Book of Winds
Book of Roots
Tome of Common Errors
Scroll Case of the Envoy
Quill of the Forger
Seal of the Regent
Sceptre of the Lower Court
Globe of Cloudy Glass
Globe of Quiet Snow
Globe of the Kiln
Globe of the River Bed
Staff of the Lock-Keeper
Rod of Straight Furrows
Wand of Small Mercies
Wand of the Fen
Dowsing Fork
Charm Against Wolves
Charm Against Witches
Charm Against Fever
Charm Against Bad Beer
Horseshoe of Lucky Jorin
Four-Leaf Brooch
Dice of the Smugglers
Cards of the Blind Innkeeper
Coin With Two Heads
Tooth of the Ossuary Wyrm
Scale of the Leaf Serpent
Feather of the Elder Roc
Eye of the Hydrake
Horn of the Slag Bull
Heart of Frost
Heart of Ember
Heart of Wind
Heart of Stone
Glove Thrown Down
Glove Picked Up
Anchor of the Salt Fleet
Figurehead of the Merry Otter
Net of the Tide Caller
Sextant of Saltharbour
Saddle of the Heron Riders
Harness of the Mist Stag
Whetstone of the Watch
Bowstring of Widow's Hair
Quiver of the Kite Archers
Fletcher's Thimble
Ration Bread of Rivermark
)");
}

QStringList addedArtifacts()
{
    return lines(R"(
Regalia of the River Kings
Oath of Two Herons
Armoury of the Bog
Voice of the Plains
Wardrobe of the Last Scribe
The Four Hearts
Pilgrim's Provision
Diving Bell of Saltharbour
Coral Diadem
Gloves of the Master Harpooner
Leviad's Tear
Pressure Gauge
Boots of Springs
Brass Lung
Goggles of the Gyro Ace
Clocktower Key
Governor's Spare Wheel
Blueprint of the Dreadwheel
Vial of Midnight Oil
Café Owner's Ladle
Rivet of Destiny
Naïve Painter's Brush
)");
}

} // namespace sample::names
