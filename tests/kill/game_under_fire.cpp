// Lays out the game folder whose installation is cut off, and tells whole files from halves.
#include "kill/game_under_fire.h"

#include <cstdint>
#include <string_view>

#include "core/file_system.h"

namespace vorlund::test {

namespace {

using namespace std::string_literals;

constexpr char kStore[] = "~Vorlund/GameStore/";
constexpr char kRecord[] = "~Vorlund/CurrentGameSet.txt";

/// Bytes without a pattern, others for each seed.
std::string made(std::uint32_t seed, std::size_t size) {
  std::string bytes(size, '\0');
  std::uint32_t state = seed * 2654435761U + 1;
  for (char& byte : bytes) {
    state = state * 1664525U + 1013904223U;
    byte = static_cast<char>(state >> 24);
  }
  return bytes;
}

/// The loader patch record that writes `bytes` from offset `first` on.
std::string patch_record(std::size_t first, const std::string& bytes) {
  const std::size_t last = first + bytes.size() - 1;
  std::string record;
  for (const std::size_t offset : {first, last}) {
    for (const unsigned shift : {0U, 8U, 16U}) record += static_cast<char>((offset >> shift) & 0xFF);
  }
  return record + bytes;
}

std::string with(std::string content, std::size_t offset, const std::string& bytes) {
  if (content.size() < offset + bytes.size()) content.resize(offset + bytes.size(), '\0');
  return content.replace(offset, bytes.size(), bytes);
}

std::string lower(std::string name) {
  for (char& character : name) {
    if (character >= 'A' && character <= 'Z') character = static_cast<char>(character - 'A' + 'a');
  }
  return name;
}

bool is_neighbour(const std::string& name) {
  return name.substr(name.find_last_of('/') + 1) == neighbour_name("any");
}

}  // namespace

GameUnderFire::GameUnderFire() {
  const std::string careers = "Careers/\u00C9t\u00E9 1940/"s;
  const std::string scenery = "Scenery/W\u00FCste im Winter/"s;

  stay("readme.txt", "Read me first\r\n");
  stay("Savedata/Default1.msn", made(1, 900));
  stay(kStore + careers + "contents.txt", "A summer\r\n");
  stay(kStore + scenery + "MyPic", made(2, 3000));
  stay(kStore + scenery + "ECA_old.tm", made(3, 700));

  create(careers + "mission1.msn", "Savedata/mission1.msn", made(4, 5000));
  replace("Savedata/c001.SVE", made(5, 9000), careers + "C001.sve", "Savedata/C001.sve", made(6, 9000));
  replace("Planes.dat", made(7, 8000), scenery + "planes.dat", "planes.dat", made(8, 8000));
  replace("SKY.PAL", made(9, 768), scenery + "sky.pal", "sky.pal", made(10, 768));
  replace("same.ter", made(11, 4000), scenery + "same.ter", "same.ter", made(11, 4000));
  replace("renamed.TER", made(12, 4000), scenery + "renamed.ter", "renamed.ter", made(12, 4000));
  create(scenery + "horizon.tpc", "horizon.tpc", made(13, 300000));
  create(scenery + "empty.fnt", "empty.fnt", "");
  replace("Music/Theme.bgm", made(14, 20000), "Sounds/Night/THEME.BGM", "Music/THEME.BGM", made(15, 26000));
  replace("Planes.dat", made(7, 8000), "Sounds/Night/Planes.DAT", "Planes.DAT", made(16, 7000));
  installed_.erase("planes.dat");

  // A patch into the old executable, another executable, and two patches into that one that overlap; the
  // second makes it longer, and its file ends inside a record.
  const std::string old_game = made(17, 70000);
  const std::string patched = with(old_game, 16, "\x01\x02");
  const std::string new_game = made(18, 65000);
  const std::string once = with(new_game, 100, "AAAA");
  const std::string twice = with(with(once, 102, "BBBB"), 80000, "end");
  stay(kStore + "Patches/Fr\u00FCh/early.LDR"s, patch_record(16, "\x01\x02"));
  stay(kStore + scenery + "EAW.EXE", new_game);
  stay(kStore + "Patches/Sp\u00E4t/a first.ldr"s, patch_record(100, "AAAA"));
  stay(kStore + "Patches/Sp\u00E4t/B second.Ldr"s,
       patch_record(102, "BBBB") + patch_record(80000, "end") + patch_record(200, "cut").substr(0, 8));
  before_["eaw.exe"] = old_game;
  installed_["eaw.exe"] = twice;
  steps_["eaw.exe"] = {old_game, patched, new_game, once, twice};

  // The record in the code page; what follows a second TAB is not kept.
  const std::string rows =
      "Folder group\tFolder name\r\n"
      "Patches\tFr\xFCh\r\n"
      "Careers\t\xC9t\xE9 1940\r\n"
      "Scenery\tW\xFCste im Winter\r\n"
      "Patches\tSp\xE4t\r\n"
      "Planes\t\r\n"
      "Sounds\tNight"s;
  before_[kRecord] = rows + "\tnot kept\r\n";
  installed_[kRecord] = rows + "\r\n";
  steps_[lower(kRecord)] = {before_[kRecord], installed_[kRecord]};
}

void GameUnderFire::stay(const std::string& name, const std::string& content) {
  before_[name] = content;
  installed_[name] = content;
  steps_[lower(name)] = {content};
}

void GameUnderFire::replace(const std::string& old_name, const std::string& old_content,
                            const std::string& source, const std::string& name, const std::string& content) {
  before_[old_name] = old_content;
  steps_[lower(old_name)].insert(old_content);
  create(source, name, content);
}

void GameUnderFire::create(const std::string& source, const std::string& name, const std::string& content) {
  stay(kStore + source, content);
  installed_[name] = content;
  steps_[lower(name)].insert(content);
}

void GameUnderFire::lay_out(const TemporaryFolder& folder) const {
  for (const auto& [name, content] : before_) folder.write(name, content);
}

std::string GameUnderFire::damage(const Tree& found) const {
  std::string report;
  std::map<std::string, int> spellings;
  for (const auto& [name, content] : found) {
    if (is_neighbour(name)) continue;
    const auto steps = steps_.find(lower(name));
    if (steps == steps_.end()) {
      report += name + " is new; ";
    } else if (!steps->second.contains(content)) {
      report += name + " holds " + std::to_string(content.size()) + " bytes, neither the old nor the new; ";
    }
    if (++spellings[lower(name)] > 1) report += name + " is there under two spellings; ";
  }
  for (const auto& [name, content] : before_) {
    if (!spellings.contains(lower(name))) report += name + " is gone; ";
  }
  return report;
}

}  // namespace vorlund::test
