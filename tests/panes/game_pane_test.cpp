// Event handlers of the game pane.
#include "panes/game_pane.h"

#include <gtest/gtest.h>

#include <string>

#include "support/form_in_folder.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

class GamePaneState : public ::testing::Test {
 protected:
  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  test::FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  GamePane& pane = form.game;
};

TEST_F(GamePaneState, ProcessInstallsHidesThePaneRecordsAndSaysWhatWasDone) {
  folder.make_folder("Savedata");
  folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
  std::string seen;
  work.status.on_repaint = [&] { seen = pane.GameLoad.caption; };
  pane.G2.add_row({"Sky", "Dusk"});
  pane.GameFrame.visible = true;

  form.GameLoad_Click();

  EXPECT_EQ(folder.read("sky.pal"), "dusk");
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"), "Folder group\tFolder name\r\nSky\tDusk\r\n");
  EXPECT_FALSE(pane.GameFrame.visible);
  EXPECT_TRUE(form.desk.labels.Label2.visible);
  EXPECT_EQ(seen, "..working!");
  EXPECT_EQ(pane.GameLoad.caption, "Process!");
  EXPECT_EQ(work.said(), "1 folder, 1 file copied");
}

TEST_F(GamePaneState, RowCommandsTouchNoFile) {
  pane.G2.add_row({"Sky", "Dusk"});
  pane.G2.add_row({"Sounds", "Guns"});
  form.G2_Click(1);
  form.Label29_Click();
  form.Label28_Click();
  EXPECT_EQ(pane.G2.cell(2, GameTable::kFolder), "");
  EXPECT_TRUE(folder.tree().empty());
}

TEST_F(GamePaneState, HideShowsTheLabelThatBringsTheTableBack) {
  pane.GameFrame.visible = true;
  form.desk.labels.GroupLabel = {"Sky", true};
  form.desk.labels.Label44.visible = true;
  form.Label10_Click(1);
  EXPECT_FALSE(pane.GameFrame.visible);
  EXPECT_TRUE(form.desk.labels.Label2.visible);
  EXPECT_EQ(form.desk.labels.GroupLabel.caption, "");
  EXPECT_FALSE(form.desk.labels.GroupLabel.visible);
  EXPECT_FALSE(form.desk.labels.Label44.visible);
}

TEST_F(GamePaneState, AnyButtonDragsThePaneAndBringsItToTheFront) {
  Frame other;
  form.desk.bring_to_front(other);
  const Place before = pane.GameFrame.place;
  form.GameFrame_MouseDown({MouseButton::kMiddle, 0, 100, 200});
  form.GameFrame_MouseUp({MouseButton::kMiddle, 0, 700, -300});
  EXPECT_EQ(pane.GameFrame.place.left, before.left + 600);
  EXPECT_EQ(pane.GameFrame.place.top, before.top - 500);
  EXPECT_GT(pane.GameFrame.depth, other.depth);
}

}  // namespace
}  // namespace vorlund
