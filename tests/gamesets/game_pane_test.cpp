// Event handlers of the game pane.
#include "gamesets/game_pane.h"

#include <gtest/gtest.h>

#include <string>

#include "support/sample_environment.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

/// Notes the caption that is seen at each repaint.
class CaptionWatcher : public test::RecordingStatus {
 public:
  void repaint() override { captions.push_back(label->caption); }
  const Label* label = nullptr;
  std::vector<std::string> captions;
};

TEST(GamePane, ProcessInstallsHidesThePaneRecordsAndSaysWhatWasDone) {
  const test::TemporaryFolder folder;
  folder.make_folder("Savedata");
  folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
  const auto files = make_platform_file_system();
  test::SampleEnvironment sample(*files, folder.path());
  CaptionWatcher watcher;
  Environment environment{*files, sample.directory, watcher, sample.frames, sample.labels};
  GamePane pane(environment);
  watcher.label = &pane.GameLoad;
  pane.table.G2.add_row({"Sky", "Dusk"});
  pane.GameFrame.visible = true;

  pane.GameLoad_Click();

  EXPECT_EQ(folder.read("sky.pal"), "dusk");
  EXPECT_EQ(folder.read("~Vorlund/CurrentGameSet.txt"), "Folder group\tFolder name\r\nSky\tDusk\r\n");
  EXPECT_FALSE(pane.GameFrame.visible);
  EXPECT_TRUE(sample.labels.Label2.visible);
  EXPECT_EQ(watcher.captions, (std::vector<std::string>{"..working!", "Process!"}));
  EXPECT_EQ(watcher.outcomes, (std::vector<std::string>{"1 folder, 1 file copied"}));
}

class GamePaneState : public ::testing::Test {
 protected:
  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  test::SampleEnvironment environment{*files, folder.path()};
  GamePane pane{environment};
};

TEST_F(GamePaneState, RowCommandsTouchNoFile) {
  pane.table.G2.add_row({"Sky", "Dusk"});
  pane.table.G2.add_row({"Sounds", "Guns"});
  pane.G2_Click(1);
  pane.Label29_Click();
  pane.Label28_Click("Tweaks");
  EXPECT_EQ(pane.table.G2.cell(2, GameTable::kFolder), "");
  EXPECT_TRUE(folder.tree().empty());
}

TEST_F(GamePaneState, HideShowsTheLabelThatBringsTheTableBack) {
  pane.GameFrame.visible = true;
  environment.labels.GroupLabel = {"Sky", true};
  environment.labels.Label44.visible = true;
  pane.Label10_Click();
  EXPECT_FALSE(pane.GameFrame.visible);
  EXPECT_TRUE(environment.labels.Label2.visible);
  EXPECT_EQ(environment.labels.GroupLabel.caption, "");
  EXPECT_FALSE(environment.labels.GroupLabel.visible);
  EXPECT_FALSE(environment.labels.Label44.visible);
}

TEST_F(GamePaneState, AnyButtonDragsThePaneAndBringsItToTheFront) {
  Frame other;
  environment.frames.bring_to_front(other);
  const Place before = pane.GameFrame.place;
  pane.GameFrame_MouseDown({MouseButton::kMiddle, 0, 100, 200});
  pane.GameFrame_MouseUp({MouseButton::kMiddle, 0, 700, -300});
  EXPECT_EQ(pane.GameFrame.place.left, before.left + 600);
  EXPECT_EQ(pane.GameFrame.place.top, before.top - 500);
  EXPECT_GT(pane.GameFrame.depth, other.depth);
}

}  // namespace
}  // namespace vorlund
