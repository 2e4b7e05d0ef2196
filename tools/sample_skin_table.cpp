// The skins of the sample store, ordered by region.
#include "sample_skins.h"

namespace vorlund::sample {
namespace {

using enum Camouflage;
using enum SkinFiles;

constexpr Paint kRafDay = {kWaves, 0x6E7B80, 0x4C5A42, 0xA7AFB2, 0xC6D6CE, 0xC6D6CE, true, false};
constexpr Paint kRafDayF = {kWaves, 0x6A777E, 0x4A5844, 0xA7AFB2, 0x2C4C8C, 0xC6D6CE, true, false};
constexpr Paint kRafStripes = {kWaves, 0x6E7B80, 0x4C5A42, 0xA7AFB2, 0xC6D6CE, 0xC6D6CE, true, true};
constexpr Paint kRafEarth = {kWaves, 0x6F5D43, 0x465139, 0xB9CBB4, 0x2A2A2A, 0xC6D6CE, false, false};
constexpr Paint kRafHigh = {kPlain, 0x7C8B96, 0x7C8B96, 0x8FB0C2, 0x2C4C8C, 0xD8DEE0, true, false};
constexpr Paint kRafNight = {kWaves, 0x7E8A8E, 0x4C5A42, 0x2A2C2E, 0x2A2C2E, 0x7E8A8E, false, false};
constexpr Paint kCoastal = {kPlain, 0x66717A, 0x66717A, 0xE6E8E6, 0xD8D8D4, 0xE6E8E6, false, false};
constexpr Paint kSeaBlue = {kPatches, 0x38587C, 0x5E7286, 0x9DB6C4, 0xB23A30, 0xE4E4DC, false, false};
constexpr Paint kPrBlue = {kPlain, 0x5D86A8, 0x5D86A8, 0x5D86A8, 0x466A8A, 0x5D86A8, false, false};
constexpr Paint kDesertF = {kWaves, 0xC2A06A, 0x7B5F40, 0x7FA8C8, 0xA83A2E, 0xE8E4D6, false, false};
constexpr Paint kTrainer = {kSplinter, 0xD9B233, 0x6B5638, 0xE2C24A, 0x2A2A2A, 0xB23A30, true, false};
constexpr Paint kOlive = {kPlain, 0x5A5B40, 0x5A5B40, 0x8B9397, 0x5A5B40, 0xD8B63C, false, false};
constexpr Paint kOliveWhite = {kPlain, 0x585A42, 0x585A42, 0x8B9397, 0xEEEEE8, 0xEEEEE8, true, false};
constexpr Paint kOliveRed = {kPatches, 0x56593E, 0x67694A, 0x8B9397, 0xB8342A, 0xB8342A, true, false};
constexpr Paint kOliveStripes = {kPlain, 0x55583E, 0x55583E, 0x8B9397, 0x2C4C8C, 0xD8B63C, true, true};
constexpr Paint kMetalRed = {kMetal, 0xB9BDBE, 0xB9BDBE, 0xB9BDBE, 0xB8342A, 0xB8342A, true, false};
constexpr Paint kMetalBlue = {kMetal, 0xB9BDBE, 0xB9BDBE, 0xB9BDBE, 0x27488F, 0x27488F, true, false};
constexpr Paint kMetalYellow = {kMetal, 0xB6BABB, 0xB6BABB, 0xB6BABB, 0xE0B42E, 0xE0B42E, true, false};
constexpr Paint kMetalBlack = {kMetal, 0xB2B6B7, 0xB2B6B7, 0xB2B6B7, 0x26282A, 0x26282A, true, false};
constexpr Paint kMetalPutty = {kMetal, 0xA8ACA6, 0xA8ACA6, 0xA8ACA6, 0x6C7468, 0x6C7468, true, false};
constexpr Paint kGrey = {kPlain, 0x98A2A6, 0x98A2A6, 0xB4BEC2, 0x3A3E40, 0xE8E8E4, false, false};
constexpr Paint kMottleYellow = {kMottle, 0x8A959A, 0x58636A, 0xA3B4BE, 0x2E3436, 0xE0B42E, true, false};
constexpr Paint kMottleRed = {kMottle, 0x87929A, 0x535E66, 0xA3B4BE, 0x26282A, 0xB8342A, true, false};
constexpr Paint kMottleWhite = {kMottle, 0x808E92, 0x4E5A58, 0xA3B4BE, 0x5A6660, 0xECECE6, true, false};
constexpr Paint kWinter = {kPatches, 0x68735F, 0xE9EDEE, 0xA3B4BE, 0x4A5A44, 0xE0B42E, true, false};
constexpr Paint kSplinterYellow = {kSplinter, 0x4F5B46, 0x6D7760, 0x9DB3C2, 0xE0B42E, 0xE0B42E, true, false};
constexpr Paint kSplinterGreen = {kSplinter, 0x47553F, 0x5F6D4C, 0x9DB3C2, 0x3C4A38, 0xE0B42E, true, false};
constexpr Paint kSplinterBlack = {kSplinter, 0x47553F, 0x5F6D4C, 0x26282A, 0x26282A, 0x5F6D4C, false, false};
constexpr Paint kSplinterGrey = {kSplinter, 0x59646A, 0x778186, 0xA3B4BE, 0xECECE6, 0xE0B42E, false, false};
constexpr Paint kGreensYellow = {kWaves, 0x3F5240, 0x6D7A4E, 0xA3B8C2, 0x26282A, 0xE0B42E, true, false};
constexpr Paint kGreensBlue = {kPatches, 0x455541, 0x6B5E48, 0xA3B8C2, 0x2A342A, 0x3A5C8E, true, false};
constexpr Paint kGreensRed = {kMottle, 0x54624A, 0x38462F, 0xA3B8C2, 0xECECE6, 0xB8342A, true, false};
constexpr Paint kParrot = {kWaves, 0x4B5B44, 0x6F7A52, 0xB8342A, 0x26282A, 0xB8342A, true, false};
constexpr Paint kNight = {kPlain, 0x2E3033, 0x2E3033, 0x26282A, 0x26282A, 0x6C2A26, false, false};
constexpr Paint kNightPale = {kMottle, 0xAEB6B8, 0x6E797E, 0xB9C2C6, 0x3A4042, 0xAEB6B8, false, false};

constexpr Skin kSkins[] = {
    {"Free French", "hurr", "desert, Bir Hakeim", kDesertF,
     "Sand and stone with blue undersides, flown in Libya in the summer of 1942.", "mypic"},
    {"Free French", "sp09", "Alsace, grey and green", kRafDayF,
     "The squadron's standard finish from the spring of 1944 on.", "mypic"},
    {"Free French", "sp09", "Île-de-France with stripes", kRafStripes,
     "As flown over the beaches; stripes put on in one night with brooms.", "SkinPic"},
    {"Free French", "sp14", "Vallée du Rhône", kRafHigh,
     "Grey-blue for high work, a light band around the fuselage.", "mypic"},
    {"Free French", "p47d", "Médoc, bare metal", kMetalBlue, "Bare metal with a deep blue nose.", "mypic"},
    {"Free French", "b26a", "Maroc", kOlive, "Olive above, faded by the sun almost to brown.", "mypic"},
    {"Luftwaffe East", "109g", "mottled grey, Kuban", kMottleYellow,
     "Grey with soft mottles, yellow wing tips and band.", "mypic"},
    {"Luftwaffe East", "109g", "winter white", kWinter,
     "Distemper over grey, worn through along the walkways.", "mypic"},
    {"Luftwaffe East", "190a", "Kurland, two greens", kGreensYellow,
     "Two greens above, as painted in the last workshop before the retreat.", "mypic"},
    {"Luftwaffe East", "190a", "snow and soot", kWinter, "White with black exhaust trails. Very dirty.",
     "SNOW.JPG"},
    {"Luftwaffe East", "ju87", "winter", kWinter, "White blotches over dark green.", "mypic"},
    {"Luftwaffe East", "ju87", "summer splinter", kSplinterGreen, "Splinter in two greens, hard edges.",
     "SkinPic"},
    {"Luftwaffe East", "h111", "steppe", kSplinterGreen, "Two greens and pale blue below. Yellow band.",
     "mypic", kTexturesOnly},
    {"Luftwaffe East", "j88a", "white blotches", kWinter, "Whitewash by hand, no two alike.", "mypic"},
    {"Luftwaffe East", "110g", "Düna", kMottleYellow, "Night fighter sent east to do what it could by day.",
     "mypic"},
    {"Luftwaffe West", "109e", "yellow nose, Pas-de-Calais", kSplinterYellow,
     "Autumn 1940, yellow nose and rudder.", "mypic"},
    {"Luftwaffe West", "109e", "Jersey, sea grey", kMottleWhite, "High sides mottled against the sea.",
     "mypic"},
    {"Luftwaffe West", "109g", "Reich defence, red band", kMottleRed,
     "Grey mottle with a red band around the fuselage.", "mypic"},
    {"Luftwaffe West", "109g", "plain grey high flyer", kGrey, "Light grey all over for the high squadron.",
     "mypic"},
    {"Luftwaffe West", "109k", "last spring", kGreensBlue, "Late green over brown, parts left in primer.",
     "SkinPic"},
    {"Luftwaffe West", "109k", "Große Kurfürst", kGreensRed, "Dark greens, white spiral left out on purpose.",
     "mypic"},
    {"Luftwaffe West", "110c", "Zerstörer, day", kSplinterGreen,
     "As escort over England, before it needed one itself.", "mypic"},
    {"Luftwaffe West", "110g", "night, pale", kNightPale,
     "Pale grey with fine mottles: better than black, the crews found.", "mypic"},
    {"Luftwaffe West", "110g", "night, black", kNight, "All black, early 1941.", "mypic"},
    {"Luftwaffe West", "m410", "hornet grey", kMottleWhite, "Heavy fighter, two greys.", "mypic"},
    {"Luftwaffe West", "190a", "Abbeville, yellow cowl", kMottleYellow, "Lower cowl and rudder yellow.",
     "mypic"},
    {"Luftwaffe West", "190a", "Sturm, grey", kMottleRed, "Assault group, armoured glass, red band.",
     "mypic"},
    {"Luftwaffe West", "190a", "low level, black sides", kSplinterGrey,
     "Soot painted over so that it shows less.", "HALLE.BMP"},
    {"Luftwaffe West", "190d", "parrot", kParrot,
     "Underside in red with white lines, so that the own guns know it.", "mypic"},
    {"Luftwaffe West", "190d", "green over brown", kGreensBlue, "Standard late finish.", "mypic",
     kTexturesOnly},
    {"Luftwaffe West", "262a", "bare and putty", kMetalPutty, "Metal with grey putty along every joint.",
     "mypic"},
    {"Luftwaffe West", "262a", "night mottle", kNightPale, "Two-seater colours on the single-seater.",
     "mypic"},
    {"Luftwaffe West", "j88c", "night intruder", kNight, "Black below, mottled grey above.", "mypic"},
    {"Luftwaffe West", "h111", "blitz, black below", kSplinterBlack, "Washable black over the light blue.",
     "SkinPic"},
    {"Luftwaffe West", "v1v1", "dark green", kGreensBlue, "Green above, pale blue below.", "mypic"},
    {"RAF", "hurr", "Kent, summer 1940", kRafEarth, "Dark earth and dark green, sky below.", "mypic"},
    {"RAF", "hurr", "night fighter", kNight, "Sooty black, exhaust shields.", "mypic"},
    {"RAF", "hurr", "training yellow below", kTrainer, "Yellow undersides for the school.", "",
     kTexturesOnly},
    {"RAF", "sp2a", "Kent, summer 1940", kRafEarth, "Dark earth and dark green, edges sprayed soft.",
     "mypic"},
    {"RAF", "sp2a", "Biggin Hill, one wing black", kRafEarth, "The black wing of the first months.", "mypic"},
    {"RAF", "sp09", "dawn patrol", kRafDay, "Ocean grey and dark green, sky band.", "mypic"},
    {"RAF", "sp09", "Malta blue", kSeaBlue, "Overpainted with what the navy had left.", "mypic",
     kForeignShape},
    {"RAF", "sp09", "Normandy stripes", kRafStripes, "June 1944.", "mypic"},
    {"RAF", "sp09", "polished for racing", kMetalRed, "Never flew like this in the war. Fun, though.",
     "shot.jpg"},
    {"RAF", "sp14", "chasing bombs", kRafDay, "Standard finish, much polished for speed.", "mypic"},
    {"RAF", "sp14", "Silver, 1945", kMetalBlue, "Silver with black exhaust.", "mypic"},
    {"RAF", "typh", "Normandy stripes", kRafStripes, "Full stripes above and below.", "mypic"},
    {"RAF", "typh", "winter mud", kRafDay, "Volkel in the thaw.", "SkinPic"},
    {"RAF", "temp", "Newchurch", kRafDay, "Grey, green and a clean spinner.", "mypic"},
    {"RAF", "temp", "stripes, worn", kRafStripes, "Half washed off.", "TEMPEST.BMP"},
    {"RAF", "mosq", "intruder", kRafNight, "Grey and green above, black below.", "mypic"},
    {"RAF", "mosq", "coastal white", kCoastal, "White sides, sea grey above.", "mypic"},
    {"RAF", "mosq", "photographic blue", kPrBlue, "Blue all over.", "mypic"},
    {"USAAF 8th", "p38h", "olive, early", kOlive, "Olive and grey, autumn 1943.", "mypic"},
    {"USAAF 8th", "p38j", "bare metal, red spinners", kMetalRed, "Metal with black anti-glare panel.",
     "mypic"},
    {"USAAF 8th", "p38j", "photo bird, blue", kPrBlue, "Haze paint, no guns.", "SkinPic"},
    {"USAAF 8th", "p47c", "olive with white nose", kOliveWhite,
     "First over the Channel, white nose and tail bands.", "mypic"},
    {"USAAF 8th", "p47d", "checkers left out, black nose", kMetalBlack,
     "Metal, black nose, no checkers in this version.", "mypic"},
    {"USAAF 8th", "p47d", "green over grey", kOliveRed, "Painted in the field in British colours.", "mypic"},
    {"USAAF 8th", "p47d", "red ring", kOliveRed, "Red cowl ring.", "mypic", kTexturesOnly},
    {"USAAF 8th", "p51b", "olive with red nose", kOliveRed, "Debden, spring 1944.", "mypic"},
    {"USAAF 8th", "p51b", "bare, yellow nose", kMetalYellow, "Yellow nose and rudder.", "mypic"},
    {"USAAF 8th", "p51d", "blue nose", kMetalBlue, "Bodney. Deep blue to the windscreen.", "mypic"},
    {"USAAF 8th", "p51d", "green upper, stripes", kOliveStripes, "With the invasion stripes still below.",
     "mypic"},
    {"USAAF 8th", "p51d", "red tail", kMetalRed, "Escort that stayed with the bombers.", "mypic"},
    {"USAAF 8th", "bb17", "olive veteran", kOlive, "Twenty-five missions of patches.", "mypic"},
    {"USAAF 8th", "bb17", "metal, yellow tail", kMetalYellow, "New from the factory.", "mypic"},
    {"USAAF 8th", "b24a", "assembly ship", kTrainer, "Painted so that nobody could miss it.", "mypic"},
    {"USAAF 8th", "b24a", "olive", kOlive, "Standard finish.", "", kTexturesOnly},
    {"USAAF 9th", "p47d", "Rhine crossing", kMetalYellow, "Yellow tail, mud up to the windscreen.", "mypic"},
    {"USAAF 9th", "p38j", "train buster", kMetalBlack, "Worn metal.", "mypic"},
    {"USAAF 9th", "b26a", "stripes", kOliveStripes, "Stripes and eighty mission marks, left out here.",
     "mypic"},
    {"USAAF 9th", "b26a", "silver lady", kMetalRed, "Bare metal.", "SkinPic"},
    {"USAAF 9th", "p51d", "tactical", kMetalBlack, "Rocket stubs.", "mypic"},
    {"USAAF 9th", "p51b", "unfinished", kGrey, "Only a sketch so far, no game files worth the name.", "mypic",
     kNameless},
};

}  // namespace

std::span<const Skin> skins() {
  return kSkins;
}

}  // namespace vorlund::sample
