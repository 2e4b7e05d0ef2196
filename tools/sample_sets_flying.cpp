// Game sets about flying: aircraft packs, campaigns, careers, cockpits and missions.
#include "sample_game_sets.h"

namespace vorlund::sample {
namespace {

using enum Motif;
using enum Hour;
using enum Season;

constexpr GameSet kAircraftPacks[] = {
    {"Better bombers", R"(New shapes for the heavies: rounder engines, turrets that turn.
The Liberator has its proper twin fins at last.
Needs about two megabytes. Load before any skin.
)",
     "mypic", kBombers, kMorning, kSummer,
     "PBB17.3dz;Pb24a.3DZ;pb26a.3dz;PB17wr.TPC;b24wr.tpc;turrets.dat;LOADOUTOFFSETS;readme.txt"},
    {"Early war 1940", R"(Turns the clock back: the late marks are replaced by what flew over Kent in 1940.
- Spitfire I and Hurricane I for the RAF
- Emil, Stuka and the slow Heinkel for the others
No American aircraft are left in this pack, so don't fly an 8th Air Force career with it.
)",
     "mypic", kFormation, kNoon, kSummer,
     "p109e.3dz;Phurr.3DZ;Psp2a.3dz;Pju87.3dz;EARLY40.DAT;ECAplanes.dat;ECA_names.dat;early40.spt;Loadout."
     "TAB"},
    {"Hedgehoppers",
     R"(Four low flyers with new shadows: Typhoon, Tempest, Mosquito and the ground-attack Focke-Wulf.
Shadows are drawn larger when the aircraft is low, which helps judging the height.
)",
     "SkinPic", kFormation, kAfternoon, kSpring, "Ptyph.3dz;Ptemp.3dz;Pmosq.3dz;P190f.3dz;SHADOWS.TPC"},
    {"Jets and rockets", R"(For the last winter of the war.
The turbine's whine is in the Sounds group, this pack has the shapes only.
Landing speeds are high: the revetted airfields in Targets have longer runways.
)",
     "shot.JPG", kOverSea, kFrost, kWinter, "P262a.3dz;p262nose.tpc;Pv1v1.3dz;JETS.DAT;Readme.TXT"},
    {"Naval visitors", R"(Carrier aircraft that came over for the landings in the south.
They use the slots of the Thunderbolt C and the early Lightning.
Author's note: wings do not fold.
)",
     "mypic", kOverSea, kNoon, kSummer, "Pp47c.3dz;Pp38h.3DZ;navy1.tpc;navy2.TPC;navy3.tpc;DECK.PIC"},
};

constexpr GameSet kCampaigns[] = {
    {"Battle of Britain", R"(Ten weeks from July to September 1940.
The front lies in the Channel, raids come by day and, from September, by night as well.
Start your career with "Early war 1940" loaded or the dates make no sense.
)",
     "mypic", kFront, kNoon, kSummer,
     "Camp40.dat;Front40.DAT;TARGETS.DAT;bob1.msn;BoB2.MSN;bob3.msn;CAMP40.STR"},
    {"Hürtgen winter", R"(Snow, low cloud and few flying days.
Expect to be sent against roads and bridges.
Best together with the terrain "Ardennes in snow".
)",
     "mypic", kFront, kFrost, kWinter, "camp44w.DAT;front44w.dat;Hürtgen.msn;WEATHER.DAT;hwinter.STR"},
    {"Overlord", R"(From the first week of June to the end of August 1944.
Bases move to the continent after day 10.
Squadrons carry recognition stripes: see the skins with "stripes" in their names.
)",
     "map.JPG", kFront, kMorning, kSpring,
     "Camp44.dat;FRONT44.DAT;targets.dat;OVER1.MSN;over2.msn;OVER3.MSN;bases44.dat"},
    {"Over the Reich", R"(The long one. January 1944 to April 1945, escort all the way.
Fuel matters: full tanks for everything that has two engines.
Made with the campaign builder, tested to the end twice.
)",
     "mypic", kBombers, kMorning, kSpring,
     "CAMPREI.DAT;frontrei.dat;Targets.dat;Reich01.msn;reich02.msn;REI.STR"},
    {"Rhône valley", R"(The other landing, August 1944.
Short campaign of 21 days with much ground attack between Marseille and Besançon.
)",
     "SkinPic", kRoute, kAfternoon, kSummer, "camprh.dat;FrontRh.dat;Rhône1.MSN;rhône2.msn;rhone.str"},
};

constexpr GameSet kCareers[] = {
    {"Dubois, 341 Squadron", R"(Sous-lieutenant Dubois, Free French, Spitfire IX.
22 missions, 4 victories.
Stopped in the middle of the Overlord campaign.
)",
     "mypic", kLogbook, kNoon, kSummer, "c0007.SVE;C0008.sve;Dubois.sve"},
    {"Harker, 611 Squadron", R"(Flight Lieutenant Harker. Spitfire IX, later XIV.
Started in March 1944, 47 missions flown, 9 victories confirmed.
Bailed out once, over the Channel, picked up the same evening.
This is the career I fly on Sundays: do not overwrite!
)",
     "mypic", kLogbook, kMorning, kSpring, "c0001.SVE;C0002.sve;c0003.SVE;HARKER.SVE"},
    {"Kessler, JG 26", R"(Oberleutnant Kessler, Fw 190A, then D from September.
61 missions, 14 victories, wounded twice.
)",
     "mypic", kLogbook, kOvercast, kAutumn, "c0004.sve;C0005.SVE"},
    {"Lindqvist, 4th Fighter Group", R"(First Lieutenant Lindqvist with the Mustang B.
Just begun, 3 missions.
)",
     "mypic", kLogbook, kDusk, kSpring, "c0006.SVE"},
    {"Wilson, 56th Fighter Group (finished)", R"(Captain Wilson came through: 100 missions in the Thunderbolt.
Kept for the final score and the medals.
)",
     "mypic", kLogbook, kAfternoon, kSummer, "c0009.sve;c0010.SVE;C0011.SVE;Wilson.sve"},
};

constexpr GameSet kCockpits[] = {
    {"Clear glass", R"(All cockpits without the scratches on the glass and with thinner frames.
Small files, no effect on speed.
)",
     "mypic", kReticle, kNoon, kSummer, "COCKSP.PIC;Cock109.pic;COCK51.PIC;cock47.pic"},
    {"German dials", R"(Instruments with German lettering for all slots of that side.
Dials repainted from photographs of museum panels; the compass now reads correctly.
)",
     "mypic", kDials, kNoon, kSummer,
     "ck109e.pic;CK109G.PIC;ck110.PIC;Ck190a.pic;CK262.PIC;dialsG.tpc;dials2G.TPC"},
    {"Night panel", R"(Dark panels with a green glow for night intruders.
Hard to read by day, so clear this row again before a day mission.
)",
     "mypic", kNightDials, kNight, kWinter, "ckmosq.pic;CKJ88C.PIC;NIGHT.PAL;glow.tpc"},
    {"Wide view Mustang", R"(Lower coaming and the sight moved left, as in the real thing.
For P-51B and P-51D.
)",
     "view.jpg", kReticle, kAfternoon, kSummer, "ck51b.PIC;ck51d.pic;VIEW51.DAT;SIGHT.PIC"},
    {"Worn and scratched", R"(Paint rubbed off to the metal, one cracked glass.
Nine cockpits so far, the twins are still missing.
Thanks to René for the photographs.
)",
     "SkinPic", kDials, kAfternoon, kAutumn,
     "Worn1.pic;worn2.PIC;WORN3.PIC;worn4.pic;worn5.pic;worn6.pic;wornRené.tpc"},
};

constexpr GameSet kMissions[] = {
    {"Channel convoys", R"(Five single missions over the Channel, 1940.
Fly high cover or go for the dive-bombers.
)",
     "mypic", kConvoy, kNoon, kSummer, "convoy1.msn;Convoy2.msn;CONVOY3.MSN;convoy4.msn;Convoy5.MSN"},
    {"Escort school", R"(Twelve short missions that teach escort flying one thing at a time.
Start with 01 and do not skip 07.
)",
     "mypic", kRoute, kMorning, kSpring, "School##.MSN*12;school.txt"},
    {"Night intruder", R"(Three missions in the dark. Fly the Mosquito, follow the river.
Load the night sky first.
)",
     "mypic", kSearchlights, kNight, kWinter, "intrud1.msn;Intrud2.msn;INTRUD3.MSN"},
    {"Railway week", R"(Cut the lines to the coast, seven days, seven yards.
Flak is heavy over the yards of Amiens and Orléans.
)",
     "SkinPic", kRailway, kAfternoon, kSpring,
     "rail_mo.msn;rail_tu.MSN;rail_we.msn;RAIL_TH.MSN;rail_fr.msn;rail_sa.msn;rail_su.msn"},
    {"Sunday patrol", R"(A quiet one for visitors who have never flown this before.
Nobody shoots for the first five minutes.
)",
     "mypic", kRoute, kAfternoon, kSummer, "Sunday.MSN"},
};

}  // namespace

std::vector<GameGroup> flying_groups() {
  return {{"Aircraft packs", kAircraftPacks},
          {"Campaigns", kCampaigns},
          {"Careers", kCareers},
          {"Cockpits", kCockpits},
          {"Missions", kMissions}};
}

}  // namespace vorlund::sample
