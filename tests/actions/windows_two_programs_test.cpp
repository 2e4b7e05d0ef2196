// In the midst of each action another program, really another one, is to do each action in the same folder:
// it says that the folder is in use and changes nothing. Where system calls can be watched a sweep does so at
// many of them; here the first program is stopped at a file operation.
#include <gtest/gtest.h>

#include <cstdlib>
#include <iostream>

#include "actions/actions.h"
#include "support/another_program.h"
#include "support/started_in_folder.h"

namespace vorlund::test {
namespace {

constexpr wchar_t kActionMark[] = L"VORLUND_TEST_ACTION";
constexpr char kSaid[] = "said.txt";

/// The test program starts itself as the other one, which acts in its current folder and leaves there what it
/// says.
const bool kStartedAsOther = [] {
  wchar_t number[8];
  if (GetEnvironmentVariableW(kActionMark, number, 8) == 0) return false;
  const auto files = make_platform_file_system();
  Status nobody;
  Form1 form(*files, nobody, {1, 0, 60});
  const ActionOfProgram& action = actions().at(static_cast<std::size_t>(number[0] - L'0'));
  prepare(action, form);
  act(action, form);
  files->replace_file(kSaid, form.desk.status_line.caption, Durability::kCached);
  std::_Exit(0);
}();

/// Counts the operations that change a file, and does something in the midst of them.
class StoppedFileSystem : public StartedInFolder {
 public:
  using StartedInFolder::StartedInFolder;

  int changes = 0;
  int stop_at = 0;
  std::function<void()> meanwhile;

 protected:
  bool before(const Operation& operation) override {
    const bool changing = operation.effect == Effect::kWriting || operation.effect == Effect::kChanging;
    if (changing && ++changes == stop_at) meanwhile();
    return true;
  }
};

class WindowsTwoPrograms : public testing::TestWithParam<ActionOfProgram> {
 protected:
  /// Does the action in a new folder and returns how many changes it made; before the change of that number
  /// it does something else.
  int done(const TemporaryFolder& folder, int stop_at, const std::function<void()>& meanwhile) const {
    lay_out_for_all(folder);
    StoppedFileSystem files(*platform_, folder.path());
    Status nobody;
    Form1 form(files, nobody, {1, 0, 60});
    prepare(GetParam(), form);
    files.changes = 0;
    files.stop_at = stop_at;
    files.meanwhile = meanwhile;
    act(GetParam(), form);
    return files.changes;
  }

  std::unique_ptr<FileSystem> platform_ = make_platform_file_system();
};

TEST_P(WindowsTwoPrograms, OneActsAndTheOtherChangesNothing) {
  const TemporaryFolder undisturbed;
  const int changes = done(undisturbed, 0, [] {});
  ASSERT_GT(changes, 0);
  const Tree alone = undisturbed.tree();
  for (int other = 0; other < kActionCount; ++other) {
    SCOPED_TRACE(actions().at(static_cast<std::size_t>(other)).name);
    const TemporaryFolder folder;
    bool refused = false;
    done(folder, 1 + changes * (other + 1) / (kActionCount + 1), [&] {
      const std::wstring number = std::to_wstring(other);
      EXPECT_EQ(AnotherProgram(kActionMark, number.c_str(), folder.path()).wait(), 0U);
      refused = folder.read(kSaid).find("another program is at work in ") != std::string::npos;
    });
    EXPECT_TRUE(refused);
    Tree found = folder.tree();
    found.erase(kSaid);
    EXPECT_TRUE(found == alone);
  }
}

std::string name_of(const testing::TestParamInfo<ActionOfProgram>& action) {
  return name_in_tests(action.param);
}

INSTANTIATE_TEST_SUITE_P(Actions, WindowsTwoPrograms, testing::ValuesIn(actions()), name_of);

}  // namespace
}  // namespace vorlund::test
