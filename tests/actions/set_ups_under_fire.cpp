// Lays out the game folders in which a start, a deletion of missions, a saving and a loading are cut off.
#include "actions/set_ups_under_fire.h"

#include "support/left_over.h"

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr char kGameRecord[] = "~Vorlund/CurrentGameSet.txt";
constexpr char kPlaneRecord[] = "~Vorlund/CurrentPlaneSet.txt";
constexpr char kSkins[] = "~Vorlund/SkinStore/";
constexpr char kSavedGames[] = "~Vorlund/GameSetFiles/Fr\u00FChling 1944";
constexpr char kSavedPlanes[] = "~Vorlund/PlaneSetFiles/Fr\u00FChling 1944";
constexpr char kRows[] = "Folder group\tFolder name\r\nCareers\t\r\nSKY\tD\xE4mmerung am See\r\n";

}  // namespace

StartUnderFire::StartUnderFire() {
  stay("eaw.exe", made_bytes(1, 900));
  stay("Savedata/Default1.msn", made_bytes(2, 900));
  stay("~Vorlund/Fr2Pic", made_bytes(3, 70000));
  stay("~Vorlund/FormPic", made_bytes(4, 30000));
  stay(kGameRecord, kRows);
  stay(kPlaneRecord, "1944\r\nSlot\tRegion\r\n");
  stay(kSavedGames, kRows);
  stay(kSkins + "USAAF/Silver/PP38H.3dz"s, made_bytes(5, 3000));
  stay(kSkins + "W\u00FCste/Sand und Staub/pp47c.tpc"s, made_bytes(6, 3000));
  stay(kSkins + "W\u00FCste/No plane/readme.txt"s, "None");
  go("~Vorlund/" + left_over_name(), made_bytes(7, 400));  // what an earlier crash has left
  go(kSkins + left_over_name(), made_bytes(8, 400));
  stand(kSkins + "SkinList.txt"s, "USAAF\\Silver\\P38H\r\nUSAAF\\Gone\\P38J\r\n");
  appear(kSkins + "SkinList.txt"s,
         "USAAF\\Silver\\P38H\r\nW\xFCste\\No plane\\\r\nW\xFCste\\Sand und Staub\\P47C\r\n");
}

MissionsUnderFire::MissionsUnderFire() {
  for (const char* name : {"eaw.exe", "Default0.msn", "Savedata/c001.sve", "Savedata/Default.sve",
                           "Savedata/My Default.msn", "Savedata/m001.msn"}) {
    stay(name, "stays: "s + name);
  }
  for (const char* name : {"Default.msn", "default2.MSN", "Default \u00C9t\u00E9.msn", "DEFAULT1.MSN"}) {
    go("Savedata/"s + name, "the game's own");
  }
  go("Savedata/" + left_over_name(), made_bytes(1, 400));
  stay(kGameRecord, kRows);
}

SaveUnderFire::SaveUnderFire() {
  stay("eaw.exe", made_bytes(1, 900));
  stay(kGameRecord, kRows);
  stay(kSavedPlanes, "1944\r\n");
  stand(kSavedGames, made_bytes(2, 3000));
  appear(kSavedGames, kRows);
}

LoadUnderFire::LoadUnderFire() {
  stay(kSavedPlanes, before().at(kPlaneRecord));
  stay(kSavedGames, kRows);
  stand(kGameRecord, "Folder group\tFolder name\r\nSKY\tNoon\r\n");
  appear(kGameRecord, kRows);

  const std::string sky = "~Vorlund/GameStore/Sky/D\u00E4mmerung am See/";
  stand("SKY.dat", made_bytes(101, 4000));
  create(sky + "Sky.dat", "Sky.dat", made_bytes(102, 5000));
  stand("Music/Dusk.bgm", made_bytes(103, 900));
  create(sky + "Dusk.bgm", "Music/Dusk.bgm", made_bytes(104, 90000));
  create(sky + "c900.sve", "Savedata/c900.sve", made_bytes(105, 3000));
  stay(sky + "contents.txt", "An evening\r\n");
}

}  // namespace vorlund::test
