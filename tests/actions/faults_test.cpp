// Each file operation of each action is failed in turn: the action ends, what it leaves is whole, and doing
// it again makes it good.
#include <gtest/gtest.h>

#include <functional>
#include <iostream>
#include <tuple>

#include "actions/actions.h"
#include "base/action_error.h"
#include "support/faulty_file_system.h"
#include "support/started_in_folder.h"

namespace vorlund::test {
namespace {

using Faults = std::pair<FaultKind, FaultSpan>;

class ActionFaults : public testing::TestWithParam<std::tuple<ActionOfProgram, Faults>> {
 protected:
  const ActionOfProgram& action() const { return std::get<0>(GetParam()); }

  /// Does the action; true when it ended with an error.
  bool ends_with_error(
      FileSystem& files, const std::function<void()>& begins = [] {}) const {
    Status nobody;
    Form1 form(files, nobody, {1, 0, 60});
    prepare(action(), form);
    begins();
    try {
      act(action(), form);
    } catch (const ActionError& error) {
      EXPECT_FALSE(std::string(error.what()).empty());
      return true;
    }
    return false;
  }

  /// What is not there though the record says so.
  std::string broken_promise(Tree found) const {
    const auto record = found.find(action().record);
    if (record == found.end() || record->second != game_->finished().at(action().record)) return "";
    if (record->second == game_->before().at(action().record)) return "";
    std::erase_if(found, [](const auto& file) {
      return is_staging_name(file.first.substr(file.first.rfind('/') + 1));
    });
    return game_->difference(found);
  }

  std::unique_ptr<FolderUnderFire> game_ = action().folder();
  std::unique_ptr<FileSystem> platform_ = make_platform_file_system();
};

TEST_P(ActionFaults, LeaveEveryFileWholeAndAreMadeGoodByTheNextRun) {
  const auto [kind, span] = std::get<1>(GetParam());
  int number = 1;
  int errors = 0;
  for (bool struck = true; struck; ++number) {
    const TemporaryFolder folder;
    game_->lay_out(folder);
    StartedInFolder started(*platform_, folder.path());
    FaultyFileSystem faulty(started);
    const bool ended = ends_with_error(faulty, [&, fault = Fault{number, kind, span}] { faulty.arm(fault); });
    struck = faulty.struck();
    SCOPED_TRACE("operation " + std::to_string(number) + ": " + faulty.struck_operation());
    // After a save the game table is marked anew, with what can be listed: a look that fails ends nothing. An
    // action may refuse its work where what it asks for is not there.
    const bool was_a_look =
        std::string_view(action().name) == "save" && faulty.struck_operation().starts_with("list ");
    ASSERT_TRUE(ended == faulty.failed() || (ended && kind == FaultKind::kNoRight) || was_a_look);
    // Where there is no right to look, what is asked for is taken for missing, and its step is left out.
    const Tree found = folder.tree();
    ASSERT_EQ(ended ? game_->damage(found) : game_->strays(found), "");
    if (ended) {
      ASSERT_EQ(broken_promise(found), "");
    }
    errors += ended ? 1 : 0;
    ASSERT_FALSE(ends_with_error(started));
    ASSERT_EQ(game_->difference(folder.tree()), "");
  }
  std::cout << "failed " << number - 2 << " operations, of which " << errors << " ended the action\n";
  RecordProperty("faults", number - 2);
}

std::string name_of(const testing::TestParamInfo<ActionFaults::ParamType>& faults) {
  static constexpr std::array<const char*, 4> kKinds = {"Error", "NoRight", "ShortWrite", "DiskFull"};
  const auto [kind, span] = std::get<1>(faults.param);
  return name_in_tests(std::get<0>(faults.param)) + kKinds.at(static_cast<std::size_t>(kind)) +
         (span == FaultSpan::kOnce ? "Once" : "FromThereOn");
}

INSTANTIATE_TEST_SUITE_P(Sweep, ActionFaults,
                         testing::Combine(testing::ValuesIn(actions()), testing::ValuesIn(kEveryFault)),
                         name_of);

}  // namespace
}  // namespace vorlund::test
