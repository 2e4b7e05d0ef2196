// Lays out the game folder whose installation is cut off.
#include "actions/game_under_fire.h"
#include "support/left_over.h"

#include <cstddef>

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr char kStore[] = "~Vorlund/GameStore/";
constexpr char kRecord[] = "~Vorlund/CurrentGameSet.txt";

/// The loader patch record that writes `bytes` from offset `first` on.
std::string patch_record(std::size_t first, const std::string& bytes) {
  const std::size_t last = first + bytes.size() - 1;
  std::string record;
  for (const std::size_t offset : {first, last}) {
    for (const unsigned shift : {0U, 8U, 16U}) record += static_cast<char>((offset >> shift) & 0xFF);
  }
  return record + bytes;
}

}  // namespace

GameUnderFire::GameUnderFire() {
  const std::string careers = kStore + "Careers/\u00C9t\u00E9 1940/"s;
  const std::string scenery = kStore + "SCENERY/W\u00FCste im Winter/"s;  // the record has it as "Scenery"

  stay("readme.txt", "Read me first\r\n");
  stay("Savedata/Default1.msn", made_bytes(1, 900));
  stay(careers + "contents.txt", "A summer\r\n");
  stay(scenery + "MyPic", made_bytes(2, 3000));
  stay(scenery + "ECA_old.tm", made_bytes(3, 700));

  create(careers + "mission1.msn", "Savedata/mission1.msn", made_bytes(4, 5000));
  replace("Savedata/c001.SVE", made_bytes(5, 9000), careers + "C001.sve", "Savedata/C001.sve",
          made_bytes(6, 9000));
  stay(scenery + "planes.dat", made_bytes(8, 8000));
  pass("planes.dat", made_bytes(8, 8000));
  go("~Vorlund/" + left_over_name(), made_bytes(19, 400));  // what an earlier crash has left
  go(left_over_name(), made_bytes(20, 400));
  stand_too("sky.Pal", made_bytes(21, 768));
  replace("SKY.PAL", made_bytes(9, 768), scenery + "sky.pal", "sky.pal", made_bytes(10, 768));
  replace("same.ter", made_bytes(11, 4000), scenery + "same.ter", "same.ter", made_bytes(11, 4000));
  replace("renamed.TER", made_bytes(12, 4000), scenery + "renamed.ter", "renamed.ter", made_bytes(12, 4000));
  create(scenery + "horizon.tpc", "horizon.tpc", made_bytes(13, 300000));
  create(scenery + "empty.fnt", "empty.fnt", "");
  replace("Music/Theme.bgm", made_bytes(14, 20000), kStore + "Sounds/Night/THEME.BGM"s, "Music/THEME.BGM",
          made_bytes(15, 26000));
  replace("Planes.dat", made_bytes(7, 8000), kStore + "Sounds/Night/Planes.DAT"s, "Planes.DAT",
          made_bytes(16, 7000));

  // A patch into the old executable, another executable, and two patches into that one that overlap; the
  // second makes it longer, and its file ends inside a record.
  const std::string old_game = made_bytes(17, 70000);
  const std::string patched = with(old_game, 16, "\x01\x02");
  const std::string new_game = made_bytes(18, 65000);
  const std::string once = with(new_game, 100, "AAAA");
  const std::string twice = with(with(once, 102, "BBBB"), 80000, "end");
  stay(kStore + "Patches/Fr\u00FCh/early.LDR"s, patch_record(16, "\x01\x02"));
  stay(scenery + "EAW.EXE", new_game);
  stay(kStore + "Patches/Sp\u00E4t/a first.ldr"s, patch_record(100, "AAAA"));
  stay(kStore + "Patches/Sp\u00E4t/B second.Ldr"s,
       patch_record(102, "BBBB") + patch_record(80000, "end") + patch_record(200, "cut").substr(0, 8));
  stand("Eaw.exe", old_game);
  for (const std::string& step : {patched, new_game, once}) pass("Eaw.exe", step);
  // A patch keeps the spelling that the copied executable brought along.
  appear("EAW.EXE", twice);

  // The record in the code page; what follows a second TAB is not kept.
  const std::string rows =
      "Folder group\tFolder name\r\n"
      "Patches\tFr\xFCh\r\n"
      "Careers\t\xC9t\xE9 1940\r\n"
      "Scenery\tW\xFCste im Winter\r\n"
      "Patches\tSp\xE4t\r\n"
      "Planes\t\r\n"
      "Sounds\tNight"s;
  stand(kRecord, rows + "\tnot kept\r\n");
  appear(kRecord, rows + "\r\n");
}

void GameUnderFire::replace(const std::string& old_name, const std::string& old_content,
                            const std::string& source, const std::string& name, const std::string& content) {
  stand(old_name, old_content);
  create(source, name, content);
}

}  // namespace vorlund::test
