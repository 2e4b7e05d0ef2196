// Each file operation of a game-set installation is failed in turn: what it leaves is whole, and can be
// resumed.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "base/action_error.h"
#include "gamesets/game_record.h"
#include "support/faulty_file_system.h"
#include "support/form_in_folder.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using test::Fault;
using test::FaultKind;
using test::FaultSpan;
using Tree = std::map<std::string, std::string>;

/// A game folder with something for every rule of the installer.
class InstalledFolder {
 public:
  InstalledFolder() {
    folder.make_folder("Music");
    folder.write("Savedata/mission1.msn", "old mission");
    folder.write("eaw.exe", "0123456789ABCDEFGHIJ");
    folder.write("PLANES.DAT", "old planes");
    folder.write("same.dat", "same");
    folder.write("untouched.ico", "icon");
    store("A/One/planes.dat", "planes of one");
    store("A/One/same.dat", "same");
    store("A/One/readme.txt", "stays");
    store("A/One/fix.LDR", "\x10\0\0\x11\0\0xy"s);
    store("B/Two/Mission1.MSN", "new mission");
    store("B/Two/career.sve", "new save");
    store("B/Two/theme.bgm", "new music");
    store("B/Two/planes.dat", "planes of two");
    store("B/Two/more.ldr", "\x00\0\0\x00\0\0!\x00"s);
    folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nA\t\r\n");
  }

  void install(FileSystem& files) const {
    test::FormInFolder work(files, folder.path());
    GamePane& pane = work.form.game;
    pane.G2.add_row({"A", "One"});
    pane.G2.add_row({"B", "Two"});
    pane.G2.g2update();
    work.form.GameLoad_Click();
  }

  test::TemporaryFolder folder;

 private:
  void store(const std::string& name, std::string_view bytes) const {
    folder.write("~Vorlund/GameStore/" + name, bytes);
  }
};

bool is_neighbour(const std::string& name) {
  return is_staging_name(name.substr(name.rfind('/') + 1));
}

/// Every state that a file of the folder may be in: as before, as after any step, or not there yet.
std::map<std::string, std::vector<std::string>> whole_states() {
  return {{"eaw.exe",
           {"0123456789ABCDEFGHIJ", "0123456789ABCDEFxyIJ", "!123456789ABCDEFGHIJ", "!123456789ABCDEFxyIJ"}},
          {"PLANES.DAT", {"old planes"}},
          {"planes.dat", {"old planes", "planes of one", "planes of two"}},
          {"same.dat", {"same"}},
          {"untouched.ico", {"icon"}},
          {"Savedata/mission1.msn", {"old mission"}},
          {"Savedata/Mission1.MSN", {"old mission", "new mission"}},
          {"Savedata/career.sve", {"new save"}},
          {"Music/theme.bgm", {"new music"}},
          {"~Vorlund/CurrentGameSet.txt",
           {"Folder group\tFolder name\r\nA\t\r\n", "Folder group\tFolder name\r\nA\tOne\r\nB\tTwo\r\n"}}};
}

void expect_whole(const Tree& tree, const Tree& before) {
  const auto states = whole_states();
  for (const auto& [name, bytes] : tree) {
    if (is_neighbour(name) || name == "Music/") continue;
    if (const auto known = states.find(name); known != states.end()) {
      EXPECT_NE(std::find(known->second.begin(), known->second.end(), bytes), known->second.end())
          << name << " holds " << testing::PrintToString(bytes);
    } else {
      const auto old = before.find(name);
      EXPECT_TRUE(old != before.end() && old->second == bytes) << name << " was touched";
    }
  }
  EXPECT_TRUE(tree.contains("eaw.exe"));
  EXPECT_TRUE(tree.contains("PLANES.DAT") || tree.contains("planes.dat"));
  EXPECT_TRUE(tree.contains("Savedata/mission1.msn") || tree.contains("Savedata/Mission1.MSN"));
  EXPECT_TRUE(tree.contains("~Vorlund/CurrentGameSet.txt"));
}

class GameInstallerFaults : public ::testing::TestWithParam<std::pair<FaultKind, FaultSpan>> {};

TEST_P(GameInstallerFaults, LeaveEveryFileWholeAndCanBeResumed) {
  const auto [kind, span] = GetParam();
  const auto files = make_platform_file_system();
  const InstalledFolder undisturbed;
  undisturbed.install(*files);
  const Tree goal = undisturbed.folder.tree();
  int number = 1;
  for (bool struck = true; struck; ++number) {
    const InstalledFolder sample;
    const Tree before = sample.folder.tree();
    test::FaultyFileSystem faulty(*files);
    faulty.arm({number, kind, span});
    bool ended_with_error = false;
    try {
      sample.install(faulty);
    } catch (const ActionError&) {
      ended_with_error = true;
    }
    struck = faulty.struck();
    SCOPED_TRACE("operation " + std::to_string(number) + ": " + faulty.struck_operation());
    EXPECT_EQ(ended_with_error, faulty.failed());
    expect_whole(sample.folder.tree(), before);
    sample.install(*files);
    EXPECT_EQ(sample.folder.tree(), goal);
  }
  RecordProperty("faults", number - 2);
  EXPECT_GT(number, 9) << "the sweep must reach every file that is written";
}

INSTANTIATE_TEST_SUITE_P(Sweep, GameInstallerFaults, testing::ValuesIn(test::kEveryFault));

}  // namespace
}  // namespace vorlund
