// The power is cut: only what the disk has been made to write out is there when it comes back. The files that
// the game can't be without must then be whole, and no record may promise what is not there.
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <iostream>

#include "actions/aircraft_under_fire.h"
#include "actions/careers_under_fire.h"
#include "actions/game_under_fire.h"
#include "base/text.h"
#include "kill/traced_program.h"
#include "power/image_disk.h"

namespace vorlund::test {
namespace {

constexpr std::array<DiskKind, 3> kKinds = {
    {{"ext4", "64M", "commit=600"}, {"xfs", "320M", "nouuid"}, {"btrfs", "128M", "commit=600"}}};

constexpr std::array<const char*, 9> kMustBeWhole = {"EAW.EXE",
                                                     "PLANES.DAT",
                                                     "LOADOUT.DAT",
                                                     "PNAMES.STR",
                                                     "PICPLNB.MNU",
                                                     "PICPLNA.MNU",
                                                     "PICPLNG.MNU",
                                                     "~VORLUND/CURRENTGAMESET.TXT",
                                                     "~VORLUND/CURRENTPLANESET.TXT"};

bool must_be_whole(const std::string& name) {
  const std::string upper = to_upper(name);
  return upper.ends_with(".SVE") ||
         std::find(kMustBeWhole.begin(), kMustBeWhole.end(), upper) != kMustBeWhole.end();
}

/// The file of that name in any spelling; null where there is none.
const std::string* file_in(const Tree& found, const std::string& name) {
  const auto same = std::find_if(found.begin(), found.end(),
                                 [&name](const auto& file) { return same_name(file.first, name); });
  return same == found.end() ? nullptr : &same->second;
}

/// What is wrong with the files that must be whole, "" when nothing is. Where the record is that of the
/// finished action, all that the action wrote before it must be there too.
std::string damage(const FolderUnderFire& game, const Tree& found, const std::string& record) {
  std::string report;
  for (const auto& [name, content] : found) {
    if (must_be_whole(name) && !game.may_hold(name, content)) {
      report += name + " holds " + std::to_string(content.size()) + " bytes, neither the old nor the new; ";
    }
  }
  for (const auto& [name, content] : game.before()) {
    if (must_be_whole(name) && !game.may_go(name) && file_in(found, name) == nullptr) {
      report += name + " is gone; ";
    }
  }
  const std::string* recorded = file_in(found, record);
  if (recorded == nullptr || *recorded != game.finished().at(record)) return report;
  for (const auto& [name, content] : game.finished()) {
    const std::string* there = file_in(found, name);
    if (must_be_whole(name) && (there == nullptr || *there != content)) {
      report += name + " is not the new one, though the record is; ";
    }
  }
  return report;
}

class PowerCut : public testing::TestWithParam<DiskKind> {
 protected:
  void SetUp() override {
    if (::geteuid() != 0) GTEST_SKIP() << "only root can mount image files";
    if (!laid_out_.make()) GTEST_SKIP() << "mkfs." << GetParam().name << " is not installed";
    if (!laid_out_.mount(game_.path())) GTEST_SKIP() << "no " << GetParam().name << " can be mounted here";
    laid_out_.unmount();
  }

  /// Cuts the power after the action and during it. `record` is what the action writes last.
  void cut(const FolderUnderFire& game, const std::string& action, const std::string& record) {
    ASSERT_TRUE(laid_out_.mount(game_.path()));
    game.lay_out(game_);
    laid_out_.unmount();
    const TracedProgram program({HEADLESS_ACTION, action}, images_.path() + "/trace");

    const Tree after = after_cut([&] { ASSERT_EQ(program.run(game_.path()).exit_code, 0); });
    EXPECT_EQ(damage(game, after, record), "");
    const std::string* recorded = file_in(after, record);
    ASSERT_NE(recorded, nullptr);
    EXPECT_EQ(*recorded, game.finished().at(record)) << "what was flushed last has reached the disk";

    if (!TracedProgram::can_trace())
      GTEST_SKIP() << "strace may not watch programs here: no cut in the midst";
    Trace trace;
    after_cut([&] { ASSERT_EQ(program.run_traced(game_.path(), trace).exit_code, 0); });
    int cuts = 0;
    for (const auto& during : trace.during) {
      const std::string& call = during.first;  // clang 14 captures no structured binding
      const int count = during.second;
      if (!call.starts_with("rename") && call != "fsync") continue;
      const int step = 1 + count / kCutsAtEachCall;
      for (int number = 1; number <= count; number += step, ++cuts) {
        SCOPED_TRACE(call + " number " + std::to_string(number) + " of " + std::to_string(count));
        Trace killed;
        const Tree found =
            after_cut([&] { program.run_killed(game_.path(), call, trace.before[call] + number, killed); });
        ASSERT_EQ(damage(game, found, record), "");
      }
    }
    EXPECT_GT(cuts, 0);
    std::cout << "cut " << cuts << " times in the midst\n";
  }

 private:
  static constexpr int kCutsAtEachCall = 12;

  /// What a disk holds on which this was done right before the power was cut.
  template <class Act>
  Tree after_cut(Act act) {
    ImageDisk disk(GetParam(), images_.path() + "/disk");
    ImageDisk cut_off(GetParam(), images_.path() + "/cut off");
    laid_out_.copy_to(disk);
    EXPECT_TRUE(disk.mount(game_.path()));
    act();
    disk.copy_to(cut_off);
    disk.unmount();
    EXPECT_TRUE(cut_off.mount(game_.path()));
    const Tree found = game_.tree();
    cut_off.unmount();
    return found;
  }

  TemporaryFolder images_;
  TemporaryFolder game_;
  ImageDisk laid_out_{GetParam(), images_.path() + "/laid out"};
};

TEST_P(PowerCut, AnInstalledGameSetIsWholeOrNotRecorded) {
  cut(GameUnderFire(), "install", "~Vorlund/CurrentGameSet.txt");
}

TEST_P(PowerCut, AnInstalledAircraftSetIsWholeOrNotRecorded) {
  cut(AircraftUnderFire(), "install-aircraft", "~Vorlund/CurrentPlaneSet.txt");
}

TEST_P(PowerCut, ACleanUpLosesNoSave) {
  cut(CareersUnderFire(), "clean-up", "~Vorlund/CurrentPlaneSet.txt");
}

std::string name_of(const testing::TestParamInfo<DiskKind>& disk) {
  return disk.param.name;
}

INSTANTIATE_TEST_SUITE_P(Disks, PowerCut, testing::ValuesIn(kKinds), name_of);

}  // namespace
}  // namespace vorlund::test
