// The program is killed at its system calls during an action, or they fail: no file may be left half written,
// and no career save may be lost.
#include <gtest/gtest.h>

#include <iostream>
#include <set>
#include <tuple>

#include "actions/actions.h"
#include "kill/traced_program.h"

namespace vorlund::test {
namespace {

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

/// An action, and which share of its calls is a test's own.
class ActionUnderFire : public testing::TestWithParam<std::tuple<ActionOfProgram, int>> {
 protected:
  void SetUp() override {
    if (!TracedProgram::can_trace()) {
      GTEST_SKIP() << "strace is not installed or may not watch programs here: nothing was killed";
    }
  }

  /// Kills the action at each call of this share, checks what is left, and then does it again.
  void kill_at_each_call(const std::string& program_file) const {
    const TracedProgram program({program_file, action()}, traces_.path() + "/trace");
    const Trace trace = undisturbed(program);
    ASSERT_FALSE(trace.during.empty());
    const int kills = at_each_call(trace, [&](const std::string& call, int number, int& offset) {
      kill_at(program, call, number, offset);
    });
    std::cout << "killed " << kills << " times\n";
    testing::Test::RecordProperty("kills", kills);
  }

  /// The calls that the action makes about files, by name.
  std::map<std::string, int> calls() const {
    return undisturbed(TracedProgram({HEADLESS_ACTION, action()}, traces_.path() + "/trace")).during;
  }

  /// How the action ends whose flush of that number has that result.
  int exit_code(int flush, const std::string& result) const {
    const TemporaryFolder folder;
    game_folder_->lay_out(folder);
    const TracedProgram program({HEADLESS_ACTION, action()}, traces_.path() + "/trace");
    return program.run_failed(folder.path(), "fsync", flush, result).exit_code;
  }

  /// Lets each call of this share fail, checks what is left, and then does the action again.
  void fail_each_call(const std::string& program_file) const {
    const TracedProgram program({program_file, action()}, traces_.path() + "/trace");
    const Trace trace = undisturbed(program);
    ASSERT_FALSE(trace.during.empty());
    int errors = 0;
    int failures = 0;
    at_each_call(trace, [&](const std::string& call, int number, int offset) {
      for (const std::string& result : results_of(call)) {
        SCOPED_TRACE(result);
        const TemporaryFolder folder;
        game_folder_->lay_out(folder);
        const Ending ending = program.run_failed(folder.path(), call, number + offset, result);
        ASSERT_TRUE(ending.exit_code == 0 || ending.exit_code == 1);
        // Where there is no right to look, what is asked for is taken for missing, and its step is left out.
        const bool ended = ending.exit_code == 1;
        Tree found = folder.tree();
        ASSERT_EQ(ended ? game_folder_->damage(found) : game_folder_->strays(found), "");
        if (!ended && tells_nothing(result)) {
          // A left-over that can't be deleted is left to the next run.
          std::erase_if(found, [](const auto& file) {
            return is_staging_name(file.first.substr(file.first.rfind('/') + 1));
          });
          ASSERT_EQ(game_folder_->difference(found), "");
        }
        errors += ending.exit_code;
        ++failures;
        ASSERT_EQ(program.run(folder.path()).exit_code, 0);
        ASSERT_EQ(game_folder_->difference(folder.tree()), "");
      }
    });
    std::cout << "failed " << failures << " times, of which " << errors << " ended the action\n";
    testing::Test::RecordProperty("failures", failures);
    EXPECT_GT(errors, 0);
  }

  std::string action() const { return std::get<0>(GetParam()).name; }

  /// One call in so many is taken. The calls of a loading are those of both installations.
  virtual int stride() const { return action() == "load" ? 3 : 1; }

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
        if (calls++ % (kShares * stride()) != std::get<1>(GetParam())) continue;
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
    game_folder_->lay_out(folder);
    Trace trace;
    const Ending ending = program.run_traced(folder.path(), trace);
    EXPECT_EQ(ending.exit_code, 0);
    EXPECT_TRUE(trace.begun && trace.ended);
    EXPECT_EQ(game_folder_->difference(folder.tree()), "");
    return trace;
  }

  /// `offset` is how many calls of that name come before the action. A window may make a few more or
  /// fewer of them from run to run: then it is corrected and the kill repeated.
  void kill_at(const TracedProgram& program, const std::string& call, int number, int& offset) const {
    constexpr int kAttempts = 20;
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      const TemporaryFolder folder;
      game_folder_->lay_out(folder);
      Trace trace;
      const Ending ending = program.run_killed(folder.path(), call, number + offset, trace);
      ASSERT_EQ(game_folder_->damage(folder.tree()), "");
      const int met = trace.begun ? trace.during[call] : 0;
      if (ending.killed && !trace.ended && met == number && trace.last_is_about_files) {
        ASSERT_EQ(program.run(folder.path()).exit_code, 0);
        ASSERT_EQ(game_folder_->difference(folder.tree()), "");
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
  std::unique_ptr<FolderUnderFire> game_folder_ = std::get<0>(GetParam()).folder();
};

std::string name_of(const testing::TestParamInfo<ActionUnderFire::ParamType>& share) {
  return name_in_tests(std::get<0>(share.param)) + std::to_string(std::get<1>(share.param));
}

TEST_P(ActionUnderFire, KilledLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(HEADLESS_ACTION);
}

// Calls that fail one by one, as on a disk that goes bad.
TEST_P(ActionUnderFire, WithAFailingCallLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  fail_each_call(HEADLESS_ACTION);
}

INSTANTIATE_TEST_SUITE_P(Sweep, ActionUnderFire,
                         testing::Combine(testing::ValuesIn(actions()), testing::Range(0, kShares)), name_of);

class WatchedCleanUp : public ActionUnderFire {};

// Whether a save was copied, respelled or just the same at home: it is on the disk before it is deleted.
TEST_P(WatchedCleanUp, FlushesEverySaveAndRecordWithItsFolder) {
  constexpr int kSaves = 4;
  constexpr int kRecords = 2;
  EXPECT_EQ(calls().at("fsync"), 2 * (kSaves + kRecords));
}

/// Each save and record is flushed, and then its folder.
TEST_P(WatchedCleanUp, GoesOnWhereAFolderCannotBeFlushedButNotWhereAFileCannot) {
  for (const char* result : {"error=EINVAL", "error=EOPNOTSUPP"}) {
    for (const int folder_flush : {2, 4, 12}) EXPECT_EQ(exit_code(folder_flush, result), 0) << result;
  }
  for (const char* result : {"error=EIO", "error=ENOSPC"}) {
    for (const int flush : {1, 2, 3, 11}) EXPECT_EQ(exit_code(flush, result), 1) << result;
  }
}

INSTANTIATE_TEST_SUITE_P(Whole, WatchedCleanUp,
                         testing::Combine(testing::Values(*action_of_name("clean-up")), testing::Values(0)),
                         name_of);

#ifdef WINDOW_ACTION

/// The calls are those that are made without the window, which takes ten times as long for each.
class ActionInTheRealWindow : public ActionUnderFire {
  int stride() const override { return action() == "install" || action() == "install-aircraft" ? 8 : 3; }
};

TEST_P(ActionInTheRealWindow, KilledLeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  kill_at_each_call(WINDOW_ACTION);
}

/// What is clicked: all but the start, of whose calls most are Qt's.
std::vector<ActionOfProgram> clicked_actions() {
  return {actions().begin() + 1, actions().end()};
}

INSTANTIATE_TEST_SUITE_P(Sweep, ActionInTheRealWindow,
                         testing::Combine(testing::ValuesIn(clicked_actions()), testing::Range(0, kShares)),
                         name_of);

#endif

}  // namespace
}  // namespace vorlund::test
