// Lays out the game folder whose clean-up is cut off, and looks after its career saves.
#include "actions/careers_under_fire.h"

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr char kHome[] = "~Vorlund/GameStore/Careers/\u00C9t\u00E9 1940/";
constexpr char kGameRecord[] = "~Vorlund/CurrentGameSet.txt";
constexpr char kPlaneRecord[] = "~Vorlund/CurrentPlaneSet.txt";

}  // namespace

CareersUnderFire::CareersUnderFire() {
  for (const char* name : {"eaw.exe", "game.cdf", "Hof.dat", "CHATLINE.TXT", "Music/Theme.bgm",
                           "Savedata/Default1.msn", "Savedata/m001.sve", "Savedata/planes.dat"}) {
    stay(name, "stays: "s + name);
  }
  stay(kHome + "contents.txt"s, "A summer\r\n");
  stay(kHome + "c900.sve"s, made_bytes(1, 3000));
  for (const char* name : {"Planes.dat", "SKY.PAL", "mypic", "old.BAK", "readme.txt"}) go(name, "loose");

  save("C001.sve", made_bytes(2, 9000));
  save("c002.SVE", made_bytes(3, 200000));
  save("c003.sve", made_bytes(4, 4000));
  save("c004.sve", "");
  stand(kHome + "c001.SVE"s, made_bytes(5, 8000));
  stand(kHome + "c003.sve"s, made_bytes(4, 4000));

  // The records in the code page: rows and slots stay, what they name goes.
  stand(kGameRecord,
        "Folder group\tFolder name\r\nCareers\tlost\r\nSky\tDusk\r\nCareers\t\xC9t\xE9 1940\r\n");
  appear(kGameRecord, "Folder group\tFolder name\r\nCareers\t\r\nSky\t\r\nCareers\t\r\n");
  const std::string head =
      "Standard\r\nSlot\tRegion\tSkinFolder\tPlnDat\tScriptFolder\tPName$\tSide\tFlyable\tRole\tFuel %\r\n";
  stand(kPlaneRecord, head + "P38H\tUSAAF\tSilver\t0\tP38H\tLightning\tAmerican\tYes\tFighter\t100\r\n");
  std::string emptied = head + "P38H\t\t\t\t\t\t\t\t\t\r\n";
  for (int slot = 2; slot <= 30; ++slot) emptied += "\t\t\t\t\t\t\t\t\t\r\n";
  appear(kPlaneRecord, emptied);
}

void CareersUnderFire::save(const std::string& name, const std::string& content) {
  go("Savedata/" + name, content);
  appear(kHome + name, content);
  saves_[name] = content;
}

std::string CareersUnderFire::strays(const Tree& found) const {
  std::string report = FolderUnderFire::strays(found);
  for (const auto& [name, content] : saves_) {
    const auto in_game = found.find("Savedata/" + name);
    const auto at_home = found.find(kHome + name);
    const bool safe = (in_game != found.end() && in_game->second == content) ||
                      (at_home != found.end() && at_home->second == content);
    if (!safe) report += "the career save " + name + " is lost; ";
  }
  return report;
}

}  // namespace vorlund::test
