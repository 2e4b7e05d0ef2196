// Game sets about the game itself: hangar screens, music, patches, sounds and tweaks.
#include "sample_game_sets.h"

namespace vorlund::sample {
namespace {

using enum Motif;
using enum Hour;
using enum Season;

constexpr GameSet kHangarScreens[] = {
    {"Café du Terrain", R"(Menus in the mess of a French airfield, autumn 1944.
The barman is my grandfather.
)",
     "mypic", kHangar, kAfternoon, kAutumn, "MAINMENU.PIC;café.pic;options.PIC;mess.pal"},
    {"Evening in the hangar", R"(Warm light and two fighters under the roof.
Replaces the main menu, the career screen and the loading picture.
)",
     "mypic", kHangar, kDusk, kSummer, "mainmenu.pic;CAREER.PIC;loading.pic;HANGAR.PAL"},
    {"Morning readiness", R"(Early mist, engines warm, telephones silent.
)",
     "mypic", kHangar, kMorning, kSpring, "MainMenu.pic;career.pic;Loading.PIC;hangar.pal"},
    {"Winter maintenance", R"(Snow outside, stove inside.
The clock on the wall is wrong, sorry.
)",
     "HANGAR.JPG", kHangar, kFrost, kWinter, "mainmenu.PIC;Career.pic;LOADING.PIC;hangar.PAL;clock.pcx"},
};

constexpr GameSet kMusic[] = {
    {"Big band 1944", R"(Swing for the menus, a slow number for the debriefing.
All pieces written for this set, nothing borrowed.
)",
     "mypic", kScore, kNoon, kSummer, "THEME.BGM;menu.bgm;Debrief.BGM;medals.bgm"},
    {"Marches", R"(Brass for medals and promotions.
)",
     "mypic", kScore, kNoon, kSummer, "medals.BGM;Promote.bgm;march1.bgm;MARCH2.BGM"},
    {"Piano in the mess", R"(Somebody always plays a little out of tune.
Quiet, good for long evenings.
)",
     "mypic", kScore, kDusk, kSummer, "theme.bgm;Menu.BGM;debrief.bgm"},
    {"Silence", R"(One second of nothing under every name the game looks for.
For those who have their own music on.
)",
     "SkinPic", kWave, kNight, kWinter, "theme.BGM;MENU.BGM;debrief.BGM;medals.bgm;promote.bgm"},
    {"Strings for the briefing", R"(Three slow pieces, the second is the best.
)",
     "mypic", kScore, kMorning, kSpring, "Brief1.bgm;brief2.BGM;BRIEF3.bgm"},
};

constexpr GameSet kPatches[] = {
    {"Bullets that carry farther", R"(Doubles the distance at which rounds are followed.
Two values in the game's program. Load "Original values" to go back.
)",
     "mypic", kBytes, kNoon, kSummer, "bullets.ldr"},
    {"No intro film", R"(Straight to the menu. Saves fourteen seconds at each start.
)",
     "mypic", kBytes, kNoon, kSummer, "NOINTRO.LDR;readme.txt"},
    {"Original values", R"(Writes back everything that the other patches of this group change.
Always safe. Load it before you report a fault!
)",
     "mypic", kBytes, kNoon, kSummer, ""},
    {"Radio chatter off", R"(For those who know it by heart.
)",
     "SkinPic", kWave, kNoon, kSummer, "radio.Ldr"},
    {"See farther", R"(Objects show at twice the distance, clouds at one and a half.
Needs a fast machine. Three patches, applied in the order of their names.
)",
     "mypic", kBytes, kNoon, kSummer, "see_1.LDR;see_2.LDR;See_3.ldr;notes.txt"},
    {"Storm front turbulence", R"(Shakes the aircraft below broken cloud.
Belongs to the sky of the same name.
)",
     "mypic", kBytes, kNoon, kSummer, "shake.ldr;SHAKE.DAT"},
};

constexpr GameSet kSounds[] = {
    {"Browning and Hispano", R"(Guns of the RAF recorded anew; eight rifles sound like eight, not like one.
)",
     "mypic", kWave, kNoon, kSummer, "GUN303.SND;gun20.snd;Gun20b.SND"},
    {"Cockpit noise", R"(Wind, rattles, the canopy sliding shut, gear up and down.
Turn the volume down at first.
)",
     "mypic", kWave, kNoon, kSummer, "wind.snd;Rattle.SND;CANOPY.SND;gearup.snd;geardn.snd;flaps.snd"},
    {"Fifty calibre", R"(Deeper and drier than the game's own.
)",
     "mypic", kWave, kNoon, kSummer, "gun50.snd;GUN50X6.SND"},
    {"MG and Kanone", R"(German guns: MG 17, MG 131, 2 cm and 3 cm.
Größte Datei zuletzt, takes a moment to copy.
)",
     "SkinPic", kWave, kNoon, kSummer, "MG17.SND;mg131.snd;MG151.SND;mk108.snd"},
    {"Real engines", R"(Merlin, Griffon, Daimler-Benz, Double Wasp and the turbine, each from two microphones.
The Merlin crackles when you close the throttle, as it should.
)",
     "mypic", kWave, kNoon, kSummer,
     "merlin.snd;Griffon.SND;DB605.SND;jumo213.snd;R2800.SND;jumo004.snd;engines.dat"},
    {"Stuka siren", R"(Only for the dive-bomber, and only when it dives.
)",
     "mypic", kWave, kNoon, kSummer, "SIREN.SND"},
};

constexpr GameSet kTweaks[] = {
    {"Fewer messages", R"(No more "You have been hit" when you can see it.
)",
     "mypic", kSliders, kNoon, kSummer, "messages.str;MSGFONT.FNT"},
    {"Longer contrails", R"(Trails stay for two minutes.
Pretty over the Reich, dear for old machines.
)",
     "mypic", kBombers, kNoon, kWinter, "TRAILS.DAT;trail1.tpc;Trail2.TPC"},
    {"Medals like they were", R"(Repainted medals, correct ribbons, the right order.
Loads with anything.
)",
     "mypic", kLogbook, kNoon, kSummer, "medals.pic;Ribbons.PIC;MEDALS.PAL;medals.STR"},
    {"Quicker debriefing", R"(Skips the page of losses. Three clicks less each evening.
)",
     "SkinPic", kSliders, kNoon, kSummer, "debrief.dat;Debrief.spt"},
    {"Sharper gun sight", R"(A thin amber ring instead of the thick one.
All slots. Can be loaded together with the other tweaks, rows of this group add up.
)",
     "mypic", kReticle, kMorning, kSummer, "SIGHT.PIC;sight.pal;Ring.tpc"},
    {"Weather by the calendar", R"(November is wet, May is fair, February is what you fear.
Table of 365 days, one byte each.
)",
     "mypic", kSliders, kOvercast, kAutumn, "weather.dat;Weather.bin"},
};

}  // namespace

std::vector<GameGroup> game_groups() {
  return {{"Hangar screens", kHangarScreens},
          {"Music", kMusic},
          {"Patches", kPatches},
          {"Sounds", kSounds},
          {"Tweaks", kTweaks}};
}

}  // namespace vorlund::sample
