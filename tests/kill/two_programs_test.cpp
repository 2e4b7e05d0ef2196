// Two programs at once: one is stopped at a system call of its action, another acts in the same folder
// meanwhile, and the first goes on. Whatever either says it did must be done, and nothing may be lost.
#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <iostream>
#include <tuple>

#include "kill/aircraft_under_fire.h"
#include "kill/game_under_fire.h"
#include "kill/traced_program.h"
#include "kill/waiting_program.h"

namespace vorlund::test {
namespace {

constexpr std::array<const char*, 3> kActions = {"install", "install-aircraft", "clean-up"};

/// A game folder in which each of the actions has something to do.
void lay_out(const TemporaryFolder& folder) {
  AircraftUnderFire().lay_out(folder);
  GameUnderFire().lay_out(folder);
  // A clean-up refuses two spellings of one save.
  std::filesystem::remove(folder.path() + "/Savedata/c001.SVE");
  folder.write("Savedata/c901.sve", made_bytes(901, 70000));
  folder.write("Savedata/C902.SVE", made_bytes(902, 3000));
}

/// At most about so many stops at the calls of one name.
constexpr int kStopsAtEachCall = 8;

class TwoProgramsAtOnce : public testing::TestWithParam<std::tuple<int, int>> {
 protected:
  void SetUp() override {
    if (!TracedProgram::can_trace()) {
      GTEST_SKIP() << "strace is not installed or may not watch programs here: nothing was stopped";
    }
  }

  /// What the folder holds after these actions, one after the other.
  Tree after(const std::vector<std::string>& actions) const {
    const TemporaryFolder folder;
    lay_out(folder);
    // Both have started, and so read the records, before the first acts.
    std::vector<std::unique_ptr<WaitingProgram>> programs;
    for (const std::string& action : actions) {
      programs.push_back(std::make_unique<WaitingProgram>(
          std::vector<std::string>{HEADLESS_ACTION, action, "wait"}, folder.path()));
    }
    for (const auto& program : programs) EXPECT_EQ(program->act(), 0);
    return folder.tree();
  }

  TemporaryFolder traces_;
};

TEST_P(TwoProgramsAtOnce, OneActsAndTheOtherChangesNothing) {
  const std::string first = kActions.at(static_cast<std::size_t>(std::get<0>(GetParam())));
  const std::string second = kActions.at(static_cast<std::size_t>(std::get<1>(GetParam())));
  const TracedProgram program({HEADLESS_ACTION, first}, traces_.path() + "/trace");
  const Tree alone = after({first});
  const Tree one_by_one = after({first, second});
  const Tree other_way = after({second, first});
  Trace trace;
  {
    const TemporaryFolder folder;
    lay_out(folder);
    ASSERT_EQ(program.run_traced(folder.path(), trace).exit_code, 0);
  }
  int refused = 0;
  int in_turn = 0;
  for (const auto& [call, count] : trace.during) {
    // Every call of the action would take minutes: a step that no rhythm of the action's shares.
    const int step = 1 + count / kStopsAtEachCall;
    for (int number = 1; number <= count; number += step) {
      SCOPED_TRACE(call + " number " + std::to_string(number) + " of " + std::to_string(count));
      const TemporaryFolder folder;
      lay_out(folder);
      WaitingProgram other({HEADLESS_ACTION, second, "wait"}, folder.path());
      bool stopped = false;
      int other_ended = -1;
      const Ending ending = program.run_stopped(folder.path(), call, trace.before[call] + number, stopped,
                                                [&] { other_ended = other.act(); });
      ASSERT_EQ(ending.exit_code, 0);
      if (!stopped) continue;
      ASSERT_EQ(other_ended, 0);
      const Tree found = folder.tree();
      if (other.said().starts_with("Nothing was done: another program is at work in ")) {
        ++refused;
        ASSERT_TRUE(found == alone);
      } else {
        ++in_turn;
        ASSERT_TRUE(found == one_by_one || found == other_way) << other.said();
      }
    }
  }
  std::cout << "stopped " << refused + in_turn << " times: the other was refused " << refused << " times\n";
  testing::Test::RecordProperty("refused", refused);
  testing::Test::RecordProperty("in_turn", in_turn);
  EXPECT_GT(refused, in_turn);
}

std::string name_of(const testing::TestParamInfo<std::tuple<int, int>>& pair) {
  static constexpr std::array<const char*, 3> kNames = {"Install", "AircraftInstall", "CleanUp"};
  return std::string(kNames.at(static_cast<std::size_t>(std::get<0>(pair.param)))) + "Then" +
         kNames.at(static_cast<std::size_t>(std::get<1>(pair.param)));
}

INSTANTIATE_TEST_SUITE_P(Pairs, TwoProgramsAtOnce,
                         testing::Combine(testing::Range(0, 3), testing::Range(0, 3)), name_of);

}  // namespace
}  // namespace vorlund::test
