// The calls that each action makes to Windows fail one by one, and the program is ended at each of them: no
// file may be left half written, no career save may be lost, and the next run makes it good.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <tuple>

#include "actions/actions.h"
#include "base/action_error.h"
#include "support/another_program.h"
#include "support/started_in_folder.h"
#include "support/watched_windows_calls.h"

namespace vorlund::test {
namespace {

constexpr wchar_t kEndedMark[] = L"VORLUND_TEST_ENDED";
constexpr int kNone = 0;

/// Does the action in a folder with that call struck; true when it ended with an error.
bool ends_with_error(FileSystem& files, const ActionOfProgram& action, int number = kNone,
                     DWORD error = WatchedWindowsCalls::kEnds) {
  Status nobody;
  Form1 form(files, nobody, {1, 0, 60});
  prepare(action, form);
  const WatchedWindowsCalls watched(number, error);
  try {
    act(action, form);
  } catch (const ActionError& ended) {
    EXPECT_FALSE(ended.reason().empty());
    return true;
  }
  return false;
}

/// The test program starts itself as the one that is ended in its current folder. It is told the action's
/// place in the table and the number of the call.
const bool kStartedToBeEnded = [] {
  wchar_t words[32];
  if (GetEnvironmentVariableW(kEndedMark, words, 32) == 0) return false;
  wchar_t* number = nullptr;
  const ActionOfProgram& action = actions().at(std::wcstoul(words, &number, 10));
  const auto files = make_platform_file_system();
  ends_with_error(*files, action, static_cast<int>(std::wcstol(number, nullptr, 10)));
  std::_Exit(0);
}();

std::string folder_of(const std::string& name) {
  return name.substr(0, name.rfind('/') + 1);
}

bool is_neighbour(const std::string& name) {
  return is_staging_name(name.substr(folder_of(name).size()));
}

Tree without_neighbours(Tree found) {
  std::erase_if(found, [](const auto& file) { return is_neighbour(file.first); });
  return found;
}

/// The calls of a loading are those of both installations.
int stride(const ActionOfProgram& action) {
  return std::string_view(action.name) == "load" ? 3 : 1;
}

/// How calls fail in a test, and one in how many of them does.
struct Failure {
  const char* name;
  DWORD error;
  int stride;
};

void PrintTo(const Failure& failure, std::ostream* out) {
  *out << failure.name;
}

class FailingWindowsCalls : public testing::TestWithParam<std::tuple<ActionOfProgram, Failure>> {};

TEST_P(FailingWindowsCalls, LeaveWholeFilesAndAreMadeGoodByTheNextRun) {
  const auto& [action, failure] = GetParam();
  const std::unique_ptr<FolderUnderFire> game = action.folder();
  const std::unique_ptr<FileSystem> platform = make_platform_file_system();
  int failures = 0;
  int errors = 0;
  for (int number = 1;; number += std::max(stride(action), failure.stride)) {
    const TemporaryFolder folder;
    game->lay_out(folder);
    StartedInFolder started(*platform, folder.path());
    const bool ended = ends_with_error(started, action, number, failure.error);
    const std::string function = WatchedWindowsCalls::struck();
    SCOPED_TRACE("call " + std::to_string(number) + ", " + function);
    const Tree found = folder.tree();
    ASSERT_EQ(ended ? game->damage(found) : game->strays(found), "");
    // Where there is no right to look, what is asked for is taken for missing, and its step is left out. This
    // process still runs: what it leaves behind is for another to delete.
    if (!ended && (function.empty() || failure.error != ERROR_ACCESS_DENIED)) {
      ASSERT_EQ(game->difference(without_neighbours(found)), "");
    }
    if (function.empty()) break;
    ++failures;
    errors += ended ? 1 : 0;
    ASSERT_FALSE(ends_with_error(started, action));
    ASSERT_EQ(game->difference(without_neighbours(folder.tree())), "");
  }
  std::cout << "failed " << failures << " times, of which " << errors << " ended the action\n";
  EXPECT_GT(errors, 0);
}

std::string name_of(const testing::TestParamInfo<FailingWindowsCalls::ParamType>& failing) {
  return name_in_tests(std::get<0>(failing.param)) + std::get<1>(failing.param).name;
}

INSTANTIATE_TEST_SUITE_P(Sweep, FailingWindowsCalls,
                         testing::Combine(testing::ValuesIn(actions()),
                                          testing::Values(Failure{"", ERROR_IO_DEVICE, 1},
                                                          Failure{"ForWantOfRight", ERROR_ACCESS_DENIED, 3},
                                                          Failure{"ForUseElsewhere", ERROR_SHARING_VIOLATION,
                                                                  3})),
                         name_of);

class EndedAction : public testing::TestWithParam<int> {
 protected:
  const ActionOfProgram& action() const { return actions().at(static_cast<std::size_t>(GetParam())); }

  /// How many calls the action makes.
  int calls() const {
    const TemporaryFolder folder;
    game_->lay_out(folder);
    StartedInFolder started(*platform_, folder.path());
    EXPECT_FALSE(ends_with_error(started, action()));
    return WatchedWindowsCalls::count();
  }

  /// What is wrong with a folder in which the action was ended. Where Wine passes over a rename that changes
  /// nothing but case, the file takes a step over a staging name, and may stand there, whole.
  std::string damage(Tree found) const {
    for (const auto& [name, content] : Tree(found)) {
      if (!is_neighbour(name)) continue;
      for (const auto& [missing, before] : game_->before()) {
        const bool may_be_it = folder_of(missing) == folder_of(name) && game_->may_hold(missing, content);
        if (may_be_it && game_->damage(found).find(missing + " is gone") != std::string::npos)
          found[missing] = content;
      }
    }
    return game_->damage(found);
  }

  std::unique_ptr<FolderUnderFire> game_ = action().folder();
  std::unique_ptr<FileSystem> platform_ = make_platform_file_system();
};

TEST_P(EndedAction, LeavesWholeFilesAndIsMadeGoodByTheNextRun) {
  const int count = calls();
  ASSERT_GT(count, 0);
  int kills = 0;
  for (int number = 1; number <= count; number += stride(action())) {
    SCOPED_TRACE("call " + std::to_string(number) + " of " + std::to_string(count));
    const TemporaryFolder folder;
    game_->lay_out(folder);
    const std::wstring words = std::to_wstring(GetParam()) + L" " + std::to_wstring(number);
    ASSERT_EQ(AnotherProgram(kEndedMark, words.c_str(), folder.path()).wait(), kEndedCode);
    ASSERT_EQ(damage(folder.tree()), "");
    StartedInFolder started(*platform_, folder.path());
    ASSERT_FALSE(ends_with_error(started, action()));
    ASSERT_EQ(game_->difference(folder.tree()), "");
    ++kills;
  }
  std::cout << "ended " << kills << " times\n";
}

INSTANTIATE_TEST_SUITE_P(Sweep, EndedAction, testing::Range(0, kActionCount),
                         [](const testing::TestParamInfo<int>& place) {
                           return name_in_tests(actions().at(static_cast<std::size_t>(place.param)));
                         });

}  // namespace
}  // namespace vorlund::test
