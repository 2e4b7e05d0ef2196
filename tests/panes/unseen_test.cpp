// What there is no right to look at counts as missing; the status line names it for the whole of an action.
#include <cerrno>

#include "panes/form_fixture.h"
#include "support/failing_calls.h"

namespace vorlund {
namespace {

using Unseen = test::FormFixture;

TEST_F(Unseen, BothInstallationsOfALoadingNameTheirs) {
  for (const char* name : {"~Vorlund/GameStore/Sky/Closed", "~Vorlund/SkinStore/USAAF/Closed"}) {
    folder.make_folder(name);
  }
  folder.write("~Vorlund/GameSetFiles/Spring", "Folder group\tFolder name\r\nSky\tClosed\r\n");
  folder.write("~Vorlund/PlaneSetFiles/Spring",
               "Standard\r\nSlot\r\nP38H\tUSAAF\tClosed\t0\t\tLightning\tAllied\tYes\tFighter\t100\r\n");
  start().Label9_MouseUp(3, test::left());
  form->File2_Click(0);
  form->File3_Click(0);
  const test::FailingCall failing("fstatat", "Closed", EACCES);
  form->Label19_Click();
  const std::string& said = form->desk.status_line.caption;
  EXPECT_NE(said.find("Taken for missing, for want of the right to look: "), std::string::npos) << said;
  EXPECT_NE(said.find("SkinStore\\USAAF\\Closed"), std::string::npos) << said;
  EXPECT_NE(said.find("GameStore\\Sky\\Closed"), std::string::npos) << said;
}

}  // namespace
}  // namespace vorlund
