// Two programs at once: one is stopped at a system call of its action, another acts in the same folder
// meanwhile, and the first goes on. Whatever either says it did must be done, and nothing may be lost.
#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <tuple>

#include "actions/actions.h"
#include "kill/traced_program.h"
#include "kill/waiting_program.h"

namespace vorlund::test {
namespace {

/// About so many times the first action of a pair is stopped: of the thousands of interleavings of all pairs
/// hundreds are run. A start waits two seconds for the other's action, and gets fewer.
int wanted_stops(const std::string& second) {
  return second == "start" ? 3 : 12;
}

/// Calls of an action, by name and number, spread over all that it makes.
std::vector<std::pair<std::string, int>> stops(const Trace& trace, int wanted) {
  int calls = 0;
  for (const auto& [call, count] : trace.during) calls += count;
  const int step = std::max(1, calls / wanted);
  std::vector<std::pair<std::string, int>> chosen;
  int at = step / 2;
  for (const auto& [call, count] : trace.during) {
    for (int number = 1; number <= count; ++number) {
      if (at++ % step == 0) chosen.emplace_back(call, number);
    }
  }
  return chosen;
}

class TwoProgramsAtOnce : public testing::TestWithParam<std::tuple<ActionOfProgram, ActionOfProgram>> {
 protected:
  void SetUp() override {
    if (!TracedProgram::can_trace()) {
      GTEST_SKIP() << "strace is not installed or may not watch programs here: nothing was stopped";
    }
  }

  /// What the folder holds after these actions, one after the other.
  Tree after(const std::vector<std::string>& actions) const {
    const TemporaryFolder folder;
    lay_out_for_all(folder);
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
  const std::string first = std::get<0>(GetParam()).name;
  const std::string second = std::get<1>(GetParam()).name;
  const TracedProgram program({HEADLESS_ACTION, first}, traces_.path() + "/trace");
  const Tree alone = after({first});
  const Tree one_by_one = after({first, second});
  const Tree other_way = after({second, first});
  Trace trace;
  {
    const TemporaryFolder folder;
    lay_out_for_all(folder);
    ASSERT_EQ(program.run_traced(folder.path(), trace).exit_code, 0);
  }
  int refused = 0;
  int in_turn = 0;
  for (const auto& [call, number] : stops(trace, wanted_stops(second))) {
    SCOPED_TRACE(call + " number " + std::to_string(number));
    const TemporaryFolder folder;
    lay_out_for_all(folder);
    WaitingProgram other({HEADLESS_ACTION, second, "wait"}, folder.path());
    bool stopped = false;
    int other_ended = -1;
    const Ending ending = program.run_stopped(folder.path(), call, trace.before[call] + number, stopped,
                                              [&] { other_ended = other.act(); });
    ASSERT_EQ(ending.exit_code, 0);
    if (!stopped) continue;
    ASSERT_EQ(other_ended, 0);
    const Tree found = folder.tree();
    if (other.said().find("another program is at work in ") != std::string::npos) {
      ++refused;
      ASSERT_TRUE(found == alone);
    } else {
      ++in_turn;
      ASSERT_TRUE(found == one_by_one || found == other_way) << other.said();
    }
  }
  std::cout << "stopped " << refused + in_turn << " times: the other was refused " << refused << " times\n";
  testing::Test::RecordProperty("refused", refused);
  testing::Test::RecordProperty("in_turn", in_turn);
  EXPECT_GT(refused, 0);
}

std::string name_of(const testing::TestParamInfo<TwoProgramsAtOnce::ParamType>& pair) {
  return name_in_tests(std::get<0>(pair.param)) + "Then" + name_in_tests(std::get<1>(pair.param));
}

INSTANTIATE_TEST_SUITE_P(Pairs, TwoProgramsAtOnce,
                         testing::Combine(testing::ValuesIn(actions()), testing::ValuesIn(actions())),
                         name_of);

}  // namespace
}  // namespace vorlund::test
