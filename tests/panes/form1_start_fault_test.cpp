// Each file operation of start-up is failed in turn: the action ends, and the disk stays whole.
#include "base/action_error.h"
#include "panes/form_fixture.h"
#include "support/faulty_file_system.h"

namespace vorlund {
namespace {

using test::FaultKind;
using test::FaultSpan;

class StartFaults : public test::FormFixture,
                    public ::testing::WithParamInterface<std::pair<FaultKind, FaultSpan>> {};

TEST_P(StartFaults, EndStartUpAndLeaveEveryFileWhole) {
  const auto [kind, span] = GetParam();
  folder.write("~Vorlund/Fr2Pic", "window picture");
  folder.write("~Vorlund/FormPic", "pane picture");
  folder.write("~Vorlund/CurrentPlaneSet.txt", "Standard\r\n");
  folder.write("~Vorlund/SkinStore/SkinList.txt", "old list\r\n");
  folder.write("~Vorlund/SkinStore/RAF/Spit92/psp09.3dz", "");
  const auto before = folder.tree();
  int number = 1;
  for (bool struck = true; struck; ++number) {
    folder.write("~Vorlund/SkinStore/SkinList.txt", "old list\r\n");
    test::FaultyFileSystem faulty(files);
    Form1 form_under_fault(faulty, window, {1, 0, 60});
    faulty.arm({number, kind, span});
    bool ended_with_error = false;
    try {
      form_under_fault.Form_Load();
    } catch (const ActionError& error) {
      ended_with_error = true;
      EXPECT_FALSE(std::string(error.what()).empty());
    }
    struck = faulty.struck();
    SCOPED_TRACE("operation " + std::to_string(number) + ": " + faulty.struck_operation());
    EXPECT_EQ(ended_with_error, faulty.failed());
    for (const auto& [name, bytes] : folder.tree()) {
      if (is_staging_name(name.substr(name.rfind('/') + 1))) continue;
      if (name == "~Vorlund/SkinStore/SkinList.txt") {
        EXPECT_TRUE(bytes == "old list\r\n" || bytes == "RAF\\Spit92\\SP09\r\n") << bytes;
        continue;
      }
      const auto old = before.find(name);
      EXPECT_TRUE(old != before.end() && old->second == bytes) << name << " was touched";
    }
  }
  RecordProperty("faults", number - 2);
  EXPECT_GT(number, kind == FaultKind::kError ? 15 : 1);
}

INSTANTIATE_TEST_SUITE_P(Sweep, StartFaults, testing::ValuesIn(test::kEveryFault));

}  // namespace
}  // namespace vorlund
