// Game sets about the world below and above: horizons, scenery, skies, targets and terrain.
#include "sample_game_sets.h"

namespace vorlund::sample {
namespace {

using enum Motif;
using enum Hour;
using enum Season;

constexpr GameSet kHorizons[] = {
    {"Alpine haze", R"(Mountains stand on the southern horizon on clear days.
Pale blue, hardly there before noon.
)",
     "mypic", kHorizon, kMorning, kSpring, "HORIZ1.PIC;horiz2.pic;horiz.PAL"},
    {"Autumn mist", R"(The far hills drown in milk.
Goes well with the terrain "Harvest and stubble".
)",
     "mypic", kHorizon, kOvercast, kAutumn, "horiz1.pic;Horiz2.pic;HORIZ.PAL"},
    {"Red evening", R"(Low sun and long ridges; the last mission of the day looks as it should.
All campaigns, all theatres.
)",
     "mypic", kHorizon, kDusk, kSummer, "HORIZ1.PIC;Horiz2.PIC;horiz.pal;SUN.TPC"},
    {"Snow line", R"(White hills under a cold sky.
)",
     "SNOW.BMP", kHorizon, kFrost, kWinter, "horiz1.PIC;horiz2.PIC;Horiz.pal"},
    {"Thunder in the west", R"(Dark bands with a bright slit where the front has passed.
Frightening in the afternoon.
)",
     "mypic", kHorizon, kStorm, kSummer, "HORIZ1.PIC;horiz2.pic;Horiz.PAL;flash.tpc"},
};

constexpr GameSet kScenery[] = {
    {"Châteaux and villages",
     R"(Sixty villages between the Seine and the Somme get a church, a square and a château.
Made from postcards of the twenties.
Costs a little speed over Normandy.
)",
     "mypic", kFields, kNoon, kSummer, "village##.3dz*14;chât##.tpc*6;VILLAGE.DAT"},
    {"Eastern rivers", R"(The great rivers of the plains with their sand banks and ferries.
File names are as the author spelt them, keep them so.
)",
     "mypic", kCoast, kMorning, kSpring, "Wisła.ter;oder.TER;neiße.ter;rivers1.TM;Rivers2.tm;FERRY.3DZ"},
    {"Harbours of the Channel", R"(Dover, Calais, Boulogne, Cherbourg and Le Havre with cranes and moles.
Ships in port are targets like any other.
)",
     "mypic", kConvoy, kAfternoon, kSummer, "port##.3dz*9;crane.3DZ;MOLE.TPC;ports.dat;quay.tpc"},
    {"Hedgerow country", R"(Bocage. Every field gets its hedge, every lane its trees.
)",
     "SkinPic", kFields, kMorning, kSpring, "hedge##.tpc*8;HEDGES.DAT;trees.3dz;Lane.tpc"},
    {"Railways rebuilt", R"(Double tracks, signal boxes and marshalling yards in 31 towns.
Trains run on time until you arrive.
)",
     "yard.JPG", kRailway, kNoon, kAutumn, "yard##.3dz*7;RAILS.TPC;train.3dz;Train2.3DZ;railway.dat"},
    {"Western Europe, every tile", R"(The big one: every tile between Cornwall and the Oder, redrawn by hand.
3,000 files. Installing takes a while, have a cup of tea.
Later sets of this group go on top of it, so load it first.
Version 4, with the missing tiles of the Frisian islands.
)",
     "mypic", kCoast, kNoon, kSummer, "euro####.tm*1700;GRND####.TPC*900;hmap####.HM*400"},
};

constexpr GameSet kSkies[] = {
    {"Big summer cumulus", R"(Towers of white cloud from noon on.
Larger than the game's own by half, and you can hide in them.
)",
     "mypic", kSky, kNoon, kSummer, "SKY.PAL;clouds1.tpc;Clouds2.TPC;clouds3.tpc;sky.dat"},
    {"Clear and cold", R"(Deep blue overhead, almost white at the edge.
Contrails show from 7,000 metres.
)",
     "mypic", kSky, kFrost, kWinter, "sky.pal;Clouds1.TPC;CLOUDS2.TPC;Sky.dat"},
    {"Dusk and dawn", R"(Colours for the first and the last hour of the day.
The set I fly with most of the time.
)",
     "mypic", kSky, kDusk, kSummer, "Sky.PAL;clouds1.TPC;Clouds2.tpc;SUNGLOW.TPC;sky.dat"},
    {"Moonlight", R"(A bright night with broken cloud; rivers and coasts can be seen.
)",
     "SkinPic", kSearchlights, kNight, kWinter, "sky.pal;MOON.TPC;stars.tpc;Sky.DAT"},
    {"Solid overcast", R"(Ten tenths at 1,500 feet. Nothing for beginners.
)",
     "mypic", kSky, kOvercast, kAutumn, "Sky.pal;clouds1.tpc;clouds2.tpc;sky.DAT"},
    {"Storm front", R"(Black to the west, and the wind to go with it.
Turbulence is part of the patch with the same name in Patches.
)",
     "mypic", kSky, kStorm, kAutumn, "SKY.PAL;Storm1.tpc;storm2.TPC;Storm3.tpc;SKY.DAT"},
};

constexpr GameSet kTargets[] = {
    {"Airfields with revetments", R"(Dispersals, blast walls, huts and a tower with windows.
Parked aircraft stand at odd angles instead of in a row.
)",
     "mypic", kAirfield, kNoon, kSpring, "field##.3dz*6;TOWER.3DZ;huts.tpc;AIRF.DAT"},
    {"Convoys with escorts", R"(Twelve merchantmen, four escorts, wakes that show from height.
)",
     "mypic", kConvoy, kMorning, kSummer, "ship##.3dz*5;Escort.3DZ;WAKE.TPC;smoke.tpc"},
    {"Factories that burn", R"(Smoke that lasts until the end of the mission.
If your machine is slow, use the light version inside (rename the .xpc files).
)",
     "mypic", kSearchlights, kNight, kWinter,
     "factory1.3dz;Factory2.3dz;smoke1.TPC;smoke1.xpc;SMOKE2.TPC;smoke2.xpc;run.bat"},
    {"Ramps in the woods", R"(Launching ramps near the coast, well hidden.
Look for the bare strip among the trees.
)",
     "SkinPic", kFields, kMorning, kAutumn, "ramp.3dz;RAMP2.3DZ;noball.dat;ramp.tpc"},
    {"Yards and junctions", R"(The eight marshalling yards of the transport plan.
)",
     "mypic", kRailway, kOvercast, kSpring, "junct##.3dz*8;JUNCT.DAT"},
};

constexpr GameSet kTerrain[] = {
    {"Ardennes in snow", R"(Snow on the fields, dark woods, frozen ponds.
Roads stay visible so that you find home.
)",
     "mypic", kFields, kFrost, kWinter, "ARDEN##.TM*16;arden.PAL;arden.ter;Arden.BIL"},
    {"Desert for visitors", R"(Sand from horizon to horizon. The game's map stays what it is, of course,
but the Channel coast makes a fair Cyrenaica.
)",
     "SAND.BMP", kMountains, kNoon, kDesert, "sand##.tm*12;SAND.PAL;sand.ter"},
    {"Harvest and stubble", R"(August. Gold, ochre and the first ploughed fields.
)",
     "mypic", kFields, kAfternoon, kSummer, "Harv##.TM*18;harvest.pal;HARVEST.TER;harv.hm"},
    {"High Alps", R"(Heights that you have to fly around. Needs the new height map (included).
)",
     "mypic", kMountains, kMorning, kSpring, "alps##.TM*10;ALPS.HM;alps.TER;Alps.bil"},
    {"Spring greens", R"(Fresh green, hedges in flower, rivers high.
Spring 1944 as it was meant to be.
)",
     "mypic", kFields, kMorning, kSpring, "spring##.tm*18;SPRING.PAL;spring.TER;readme.txt"},
    {"Nordküste", R"(Mud flats, islands and the long white beaches of the German Bight.
)",
     "mypic", kCoast, kOvercast, kSummer, "Küste##.tm*9;küste.ter;KÜSTE.PAL;watt.tm"},
};

}  // namespace

std::vector<GameGroup> world_groups() {
  return {{"Horizons", kHorizons},
          {"Scenery", kScenery},
          {"Sky and clouds", kSkies},
          {"Targets", kTargets},
          {"Terrain", kTerrain}};
}

}  // namespace vorlund::sample
