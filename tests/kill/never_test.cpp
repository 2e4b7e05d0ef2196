// What the program never does, watched at its system calls: no network, no settings, no folder, no other
// program, nothing written outside the game folder, nothing deleted but what the clean-up may delete.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <set>

#include "disk/file_system.h"
#include "kill/traced_program.h"
#include "kill/watched_calls.h"
#include "support/temporary_folder.h"

#ifdef WINDOW_ACTION

namespace vorlund::test {
namespace {

using namespace std::string_literals;

std::string upper(std::string text) {
  for (char& character : text)
    character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
  return text;
}

/// True for what the clean-up's masks name, spelled out here so as not to trust the program's own.
bool is_loose(const std::string& name) {
  static const std::set<std::string> kEndings = {
      ".BAT", ".BGM", ".SMK", ".FNT", ".WSD", ".FSP", ".PAL", ".BAK", ".TCO", ".PCO", ".BCO",
      ".HM",  ".JPG", ".PCX", ".TXT", ".MNU", ".DAT", ".MPC", ".WSP", ".PIC", ".SPT", ".STR",
      ".TER", ".TM",  ".TPC", ".FLT", ".3DZ", ".SND", ".BIL", ".BIN", ".CPT"};
  const std::string whole = upper(name);
  if (std::set<std::string>{"DSG.ICO", "EXTRA.SPT", "CHATLINE.TXT", "HOF.DAT"}.contains(whole)) return false;
  if (std::set<std::string>{"MYPIC", "PLANEPIC", "SKINPIC"}.contains(whole)) return true;
  const std::size_t dot = whole.rfind('.');
  return dot != std::string::npos && kEndings.contains(whole.substr(dot));
}

bool is_career_or_default_mission(const std::string& name) {
  const std::string whole = upper(name);
  return (whole.starts_with("C") && whole.ends_with(".SVE")) ||
         (whole.starts_with("DEFAULT") && whole.ends_with(".MSN"));
}

class NeverDone : public testing::Test {
 protected:
  explicit NeverDone(std::string action = "everything") : action_(std::move(action)) {}

  void SetUp() override {
    if (!TracedProgram::can_trace()) {
      GTEST_SKIP() << "strace is not installed or may not watch programs here: nothing was watched";
    }
    lay_out_game();
    folder.make_folder("home");
    folder.make_folder("run");
    folder.make_folder("trace");
    folder.write("bait.dat", "not ours");
    std::filesystem::permissions(here("run"), std::filesystem::perms::owner_all);
    // Whatever the libraries want to keep for the user goes where it is seen.
    ::setenv("HOME", here("home").c_str(), 1);
    ::setenv("XDG_RUNTIME_DIR", here("run").c_str(), 1);
    for (const char* name : {"XDG_CACHE_HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME"}) {
      ::unsetenv(name);
    }
    before = folder.tree();
    const Ending ending =
        TracedProgram({WINDOW_ACTION, action_}, here("trace/calls")).run_watched(here("game"));
    ASSERT_EQ(ending.exit_code, 0);
    calls = read_watched_calls(here("trace/calls"));
  }

  std::string here(const std::string& name) const { return folder.path() + "/" + name; }

  void lay_out_game() {
    const std::string store = "game/~Vorlund/";
    for (const char* name : {"game/Music", "game/~Vorlund/GameStore/Careers/Camp"}) folder.make_folder(name);
    for (const char* name : {"eaw.exe", "HOF.DAT", "chatline.txt", "game.cdf", "Savedata/m1.sve"}) {
      folder.write("game/"s + name, std::string(200, 'x'));
    }
    for (const char* name : {"old.pal", "mypic", "Savedata/Default1.msn", "Savedata/c1.sve"}) {
      folder.write("game/"s + name, "loose");
    }
    folder.write("game/pnames.str", names_file());
    folder.write("game/picplnb.mnu", std::string(35, '\0') + std::string(9 * 20, '\1'));
    for (const char* name : {"sky.pal", "mission.msn", "theme.bgm", "shot.jpg", "contents.txt"}) {
      folder.write(store + "GameStore/Sky/Dusk/" + name, "dusk");
    }
    folder.write(store + "GameStore/Sky/Dusk/fix.ldr", "\x10\0\0\x11\0\0!!"s);
    folder.write(store + "GameStore/Sky/Dusk/c2.sve", "career");
    std::string model = "Lightning\r\n";
    for (int line = 0; line < 168; ++line) model += "1\r\n";
    folder.write(store + "FlightModels/Standard/P38/model.oaw", model);
    folder.write(store + "FlightModels/Standard/P38/model.flt", "flight");
    folder.write(store + "FlightModels/Standard/P38/model.lo1", "title\r\n1\r\n");
    folder.write(store + "SkinStore/USAAF/P38 silver/pp38h.3dz", "shape");
    folder.write(store + "SkinStore/USAAF/P38 silver/contents.txt", "Silver\r\n");
    const std::string game_set = "Folder group\tFolder name\r\nCareers\tCamp\r\nSky\tDusk\r\n";
    const std::string plane_set =
        "Standard\r\nSlot\r\nP38H\tUSAAF\tP38 silver\t0\tP38\tLightning\tAmerican\tYes\tFighter\t100\r\n";
    folder.write(store + "CurrentGameSet.txt", game_set);
    folder.write(store + "CurrentPlaneSet.txt", plane_set);
    folder.write(store + "GameSetFiles/Spring", game_set);
    folder.write(store + "PlaneSetFiles/Spring", plane_set);
  }

  static std::string names_file() {
    std::string bytes = {static_cast<char>(150), 0, 0, 0, 30, 0, 0, 0};
    for (int name = 0; name < 30; ++name) bytes += {static_cast<char>(120 + name), 0, 0, 0};
    return bytes + std::string(30, '\0');
  }

  /// Where the platform's own libraries may keep things: font caches, and the user's runtime folder.
  bool is_platforms_own(const std::string& path) const {
    return path.starts_with(here("home/.cache/fontconfig")) || path.starts_with(here("run")) ||
           path.starts_with("/var/cache/fontconfig") ||
           (path.starts_with("/dev/") && !path.starts_with(here("")));
  }

  TemporaryFolder folder;
  std::map<std::string, std::string> before;
  WatchedCalls calls;

 private:
  std::string action_;
};

class NeverDoneByALook : public NeverDone {
 protected:
  NeverDoneByALook() : NeverDone("look") {}
};

TEST_F(NeverDone, InARunThatDoesEverything) {
  const std::string game = here("game") + "/";
  // The run has read, written and deleted what it was to.
  EXPECT_EQ(folder.read("game/~Vorlund/GameStore/Careers/Camp/c1.sve"), "loose");
  EXPECT_FALSE(folder.has("game/sky.pal"));
  EXPECT_FALSE(folder.has("game/Savedata/Default1.msn"));
  for (const char* name : {"sky.pal", "P38H.flt", "pp38h.3dz", "Planes.dat", "loadout.dat", "pnames.str",
                           "picplnb.mnu", "eaw.exe", "Savedata/mission.msn", "Savedata/c2.sve",
                           "Music/theme.bgm", "~Vorlund/CurrentGameSet.txt", "~Vorlund/CurrentPlaneSet.txt",
                           "~Vorlund/GameSetFiles/Spring", "~Vorlund/SkinStore/SkinList.txt"}) {
    EXPECT_NE(std::find(calls.written.begin(), calls.written.end(), game + name), calls.written.end())
        << name;
  }
  for (const char* name : {"old.pal", "mypic", "sky.pal", "Savedata/Default1.msn", "Savedata/c1.sve"}) {
    EXPECT_NE(std::find(calls.deleted.begin(), calls.deleted.end(), game + name), calls.deleted.end())
        << name;
  }

  for (const std::string& path : calls.written) {
    EXPECT_TRUE(path.starts_with(game) || is_platforms_own(path)) << "written: " << path;
  }
  for (const std::string& path : calls.deleted) {
    if (is_platforms_own(path)) continue;
    ASSERT_TRUE(path.starts_with(game)) << "deleted: " << path;
    const std::string name = path.substr(game.size());
    const bool in_game = name.find('/') == std::string::npos;
    const std::string bare = name.substr(name.rfind('/') + 1);
    EXPECT_TRUE(is_staging_name(bare) || (in_game && is_loose(name)) ||
                (name.starts_with("Savedata/") && is_career_or_default_mission(bare)))
        << "deleted: " << name;
  }
  for (const std::string& path : calls.folders) EXPECT_TRUE(is_platforms_own(path)) << "folder: " << path;
  EXPECT_EQ(calls.links, std::vector<std::string>());
  EXPECT_EQ(calls.other_changes, std::vector<std::string>());
  EXPECT_EQ(calls.programs, std::vector<std::string>{WINDOW_ACTION});
  // Sockets of the machine's own: the C library asks its name service for the user's home.
  for (const std::string& family : calls.networks) EXPECT_EQ(family, "AF_UNIX");
}

TEST_F(NeverDoneByALook, AnythingIsWrittenButTheSkinListOfTheStart) {
  const std::string store = here("game/~Vorlund/SkinStore/");
  for (const std::string& path : calls.written) {
    const bool is_skin_list = path == store + "SkinList.txt" ||
                              (path.starts_with(store) && is_staging_name(path.substr(store.size())));
    EXPECT_TRUE(is_skin_list || is_platforms_own(path)) << "written: " << path;
  }
  for (const std::string& path : calls.deleted) {
    EXPECT_TRUE(is_platforms_own(path) || is_staging_name(path.substr(path.rfind('/') + 1)))
        << "deleted: " << path;
  }
  EXPECT_EQ(calls.other_changes, std::vector<std::string>());
  EXPECT_EQ(calls.programs, std::vector<std::string>{WINDOW_ACTION});
  std::map<std::string, std::string> after = folder.tree();
  std::erase_if(after, [this](const auto& file) {
    return file.first.starts_with("trace/") || file.first.ends_with("SkinList.txt") ||
           is_platforms_own(here(file.first));
  });
  std::map<std::string, std::string> untouched = before;
  std::erase_if(untouched, [this](const auto& file) {
    return file.first.starts_with("trace/") || is_platforms_own(here(file.first));
  });
  EXPECT_EQ(after, untouched);
}

TEST_F(NeverDone, NoFileAppearsThatIsNoGameFileRecordOrSkinList) {
  std::vector<std::string> appeared;
  for (const auto& [name, bytes] : folder.tree()) {
    const bool seen = before.contains(name) || name.starts_with("trace/") || is_platforms_own(here(name));
    if (!seen && !name.ends_with('/')) appeared.push_back(name);
  }
  EXPECT_EQ(appeared, (std::vector<std::string>{"game/Music/theme.bgm", "game/Savedata/mission.msn",
                                                "game/~Vorlund/GameStore/Careers/Camp/c1.sve",
                                                "game/~Vorlund/GameStore/Careers/Camp/c2.sve",
                                                "game/~Vorlund/SkinStore/SkinList.txt"}));
  EXPECT_EQ(folder.read("bait.dat"), "not ours");
}

TEST_F(NeverDone, NoSettingsAreReadFromTheUsersHome) {
  for (const std::string& path : calls.read) {
    EXPECT_FALSE(path.starts_with(here("home/")) && !is_platforms_own(path)) << "read: " << path;
  }
}

}  // namespace
}  // namespace vorlund::test

#endif
