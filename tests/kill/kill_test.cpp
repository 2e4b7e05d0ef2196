// The program is killed at its system calls during an action, or they fail: no file may be left half written,
// and no career save may be lost.
#include <gtest/gtest.h>

#include <iostream>
#include <set>

#include "kill/aircraft_under_fire.h"
#include "kill/careers_under_fire.h"
#include "kill/game_under_fire.h"
#include "kill/traced_program.h"

namespace vorlund::test {
namespace {

/// What a folder holds that differs from what was expected, by name.
std::string difference(const Tree& expected, const Tree& found) {
  std::string report;
  for (const auto& [name, content] : expected) {
    const auto other = found.find(name);
    if (other == found.end()) report += name + " is missing; ";
    if (other != found.end() && other->second != content) report += name + " differs; ";
  }
  for (const auto& [name, content] : found) {
    if (!expected.contains(name)) report += name + " is left over; ";
  }
  return report;
}

/// How a failing call may end: as on a bad disk, after a signal, and in the ways that the program answers in
/// its own manner. An open may find no descriptor left, or lack the right, to the file or to leave its time
/// of access alone; a look may lack memory or the right; a name may lead to another disk; a name that is to
/// go may be gone already, or be a folder's.
std::vector<std::string> results_of(const std::string& call) {
  std::vector<std::string> results = {"error=EIO", "error=EINTR"};
  const auto add = [&](const char* name, const std::vector<std::string>& further) {
    if (call.starts_with(name)) results.insert(results.end(), further.begin(), further.end());
  };
  add("open", {"error=EMFILE", "error=EACCES", "error=EPERM"});
  for (const char* look : {"newfstatat", "fstatat", "fstat", "stat", "lstat", "statx"}) {
    if (call == look) add(look, {"error=ENOMEM", "error=EACCES"});
  }
  add("rename", {"error=EXDEV"});
  add("unlink", {"error=ENOENT", "error=EISDIR", "error=EPERM"});
  add("write", {"error=ENOSPC", "retval=0"});
  return results;
}

/// True for results that say nothing of the file: no answer of the disk, so nothing may be made of it.
bool tells_nothing(const std::string& result) {
  static const std::set<std::string> kResults = {"error=EIO", "error=EMFILE", "error=ENOMEM"};
  return kResults.contains(result);
}

/// A long sweep is shared out among tests that run side by side.
constexpr int kShares = 4;

/// An action, and the folder that it is killed in. The parameter says which share of the calls is a test's
/// own.
template <class Folder>
class ActionUnderFire : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    if (!TracedProgram::can_trace()) {
      GTEST_SKIP() << "strace is not installed or may not watch programs here: nothing was killed";
    }
  }

  /// Kills the action at each call of this share, checks what is left, and then does it again.
  void kill_at_each_call(const std::string& program_file, const std::string& action) const {
    const TracedProgram program({program_file, action}, traces_.path() + "/trace");
    const Trace trace = undisturbed(program);
    ASSERT_FALSE(trace.during.empty());
    const int kills = at_each_call(trace, [&](const std::string& call, int number, int& offset) {
      kill_at(program, call, number, offset);
    });
    std::cout << "killed " << kills << " times\n";
    testing::Test::RecordProperty("kills", kills);
  }

  /// The calls that the action makes about files, by name.
  std::map<std::string, int> calls(const std::string& action) const {
    return undisturbed(TracedProgram({HEADLESS_ACTION, action}, traces_.path() + "/trace")).during;
  }

  /// How the action ends whose flush of that number has that result.
  int exit_code(const std::string& action, int flush, const std::string& result) const {
    const TemporaryFolder folder;
    game_folder_.lay_out(folder);
    const TracedProgram program({HEADLESS_ACTION, action}, traces_.path() + "/trace");
    return program.run_failed(folder.path(), "fsync", flush, result).exit_code;
  }

  /// Lets each call of this share fail, checks what is left, and then does the action again.
  void fail_each_call(const std::string& program_file, const std::string& action) const {
    const TracedProgram program({program_file, action}, traces_.path() + "/trace");
    const Trace trace = undisturbed(program);
    ASSERT_FALSE(trace.during.empty());
    int errors = 0;
    int failures = 0;
    at_each_call(trace, [&](const std::string& call, int number, int offset) {
      for (const std::string& result : results_of(call)) {
        SCOPED_TRACE(result);
        const TemporaryFolder folder;
        game_folder_.lay_out(folder);
        const Ending ending = program.run_failed(folder.path(), call, number + offset, result);
        ASSERT_TRUE(ending.exit_code == 0 || ending.exit_code == 1);
        // Where there is no right to look, what is asked for is taken for missing, and its step is left out.
        const bool ended = ending.exit_code == 1;
        const Tree found = folder.tree();
        ASSERT_EQ(ended ? game_folder_.damage(found) : game_folder_.strays(found), "");
        if (!ended && tells_nothing(result)) {
          ASSERT_EQ(difference(game_folder_.finished(), found), "");
        }
        errors += ending.exit_code;
        ++failures;
        ASSERT_EQ(program.run(folder.path()).exit_code, 0);
        ASSERT_EQ(difference(game_folder_.finished(), folder.tree()), "");
      }
    });
    std::cout << "failed " << failures << " times, of which " << errors << " ended the action\n";
    testing::Test::RecordProperty("failures", failures);
    EXPECT_GT(errors, 0);
  }

 private:
  /// Hands every call of this share to `act`: its name, its number in the action, and how many calls of the
  /// name came before. Returns how many there were.
  template <class Act>
  int at_each_call(const Trace& trace, Act act) const {
    int calls = 0;
    int own = 0;
    for (const auto& [call, count] : trace.during) {
      const auto before = trace.before.find(call);
      int offset = before == trace.before.end() ? 0 : before->second;
      for (int number = 1; number <= count; ++number) {
        if (calls++ % kShares != GetParam()) continue;
        SCOPED_TRACE(call + " number " + std::to_string(number) + " of " + std::to_string(count));
        act(call, number, offset);
        if (testing::Test::HasFailure()) return own;
        ++own;
      }
    }
    return own;
  }

  /// Runs the action to its end under strace and checks what it leaves.
  Trace undisturbed(const TracedProgram& program) const {
    const TemporaryFolder folder;
    game_folder_.lay_out(folder);
    Trace trace;
    const Ending ending = program.run_traced(folder.path(), trace);
    EXPECT_EQ(ending.exit_code, 0);
    EXPECT_TRUE(trace.begun && trace.ended);
    EXPECT_EQ(difference(game_folder_.finished(), folder.tree()), "");
    return trace;
  }

  /// `offset` is how many calls of that name come before the action. A window may make a few more or
  /// fewer of them from run to run: then it is corrected and the kill repeated.
  void kill_at(const TracedProgram& program, const std::string& call, int number, int& offset) const {
    constexpr int kAttempts = 20;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      const TemporaryFolder folder;
      game_folder_.lay_out(folder);
      Trace trace;
      const Ending ending = program.run_killed(folder.path(), call, number + offset, trace);
      ASSERT_EQ(game_folder_.damage(folder.tree()), "");
      const int met = trace.begun ? trace.during[call] : 0;
      if (ending.killed && !trace.ended && met == number && trace.last_is_about_files) {
        ASSERT_EQ(program.run(folder.path()).exit_code, 0);
        ASSERT_EQ(difference(game_folder_.finished(), folder.tree()), "");
        return;
      }
      if (!trace.begun) {
        ++offset;
      } else if (trace.ended || !ending.killed || met == number) {
        --offset;
      } else {
        offset += number - met;
      }
    }
    FAIL() << "in " << kAttempts << " attempts the program was never killed at this call";
  }

  TemporaryFolder traces_;
  Folder game_folder_;
};

using InstallUnderFire = ActionUnderFire<GameUnderFire>;
using AircraftInstallUnderFire = ActionUnderFire<AircraftUnderFire>;
using CleanUpUnderFire = ActionUnderFire<CareersUnderFire>;
class WatchedCleanUp : public CleanUpUnderFire {};

TEST_P(InstallUnderFire, KilledLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(HEADLESS_ACTION, "install");
}

TEST_P(AircraftInstallUnderFire, KilledLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(HEADLESS_ACTION, "install-aircraft");
}

TEST_P(CleanUpUnderFire, KilledLosesNoCareerSaveAndIsCompletedByTheNextRun) {
  kill_at_each_call(HEADLESS_ACTION, "clean-up");
}

// Whether a save was copied, respelled or just the same at home: it is on the disk before it is deleted.
TEST_P(WatchedCleanUp, FlushesEverySaveAndRecordWithItsFolder) {
  constexpr int kSaves = 4;
  constexpr int kRecords = 2;
  EXPECT_EQ(calls("clean-up").at("fsync"), 2 * (kSaves + kRecords));
}

// Calls that fail one by one, as on a disk that goes bad.
/// Each save and record is flushed, and then its folder.
TEST_P(WatchedCleanUp, GoesOnWhereAFolderCannotBeFlushedButNotWhereAFileCannot) {
  for (const char* result : {"error=EINVAL", "error=EOPNOTSUPP"}) {
    for (const int folder_flush : {2, 4, 12})
      EXPECT_EQ(exit_code("clean-up", folder_flush, result), 0) << result;
  }
  for (const char* result : {"error=EIO", "error=ENOSPC"}) {
    for (const int flush : {1, 2, 3, 11}) EXPECT_EQ(exit_code("clean-up", flush, result), 1) << result;
  }
}

TEST_P(InstallUnderFire, WithAFailingCallLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  fail_each_call(HEADLESS_ACTION, "install");
}

TEST_P(AircraftInstallUnderFire, WithAFailingCallLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  fail_each_call(HEADLESS_ACTION, "install-aircraft");
}

TEST_P(CleanUpUnderFire, WithAFailingCallLosesNoCareerSaveAndIsCompletedByTheNextRun) {
  fail_each_call(HEADLESS_ACTION, "clean-up");
}

#ifdef WINDOW_ACTION

TEST_P(InstallUnderFire, KilledInTheRealWindowLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(WINDOW_ACTION, "install");
}

TEST_P(AircraftInstallUnderFire, KilledInTheRealWindowLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(WINDOW_ACTION, "install-aircraft");
}

TEST_P(CleanUpUnderFire, KilledInTheRealWindowLosesNoCareerSaveAndIsCompletedByTheNextRun) {
  kill_at_each_call(WINDOW_ACTION, "clean-up");
}

#endif

INSTANTIATE_TEST_SUITE_P(Shares, InstallUnderFire, testing::Range(0, kShares));
INSTANTIATE_TEST_SUITE_P(Shares, AircraftInstallUnderFire, testing::Range(0, kShares));
INSTANTIATE_TEST_SUITE_P(Shares, CleanUpUnderFire, testing::Range(0, kShares));
INSTANTIATE_TEST_SUITE_P(Whole, WatchedCleanUp, testing::Values(0));

}  // namespace
}  // namespace vorlund::test
