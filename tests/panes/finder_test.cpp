// What was typed to find an entry, and when it is forgotten.
#include "panes/finder.h"

#include <gtest/gtest.h>

#include "panes/lists.h"
#include "support/form_in_folder.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

TEST(Finder, TakesTheLastCharacterBackWholeAndThenNothing) {
  Finder finder;
  finder.add("sp\u00E9");
  finder.erase_last();
  EXPECT_EQ(finder.typed, "sp");
  finder.erase_last();
  finder.erase_last();
  finder.erase_last();
  EXPECT_EQ(finder.typed, "");
}

TEST(Finder, SaysWhetherThereWasAnythingToForget) {
  Finder finder;
  EXPECT_FALSE(finder.clear());
  finder.add("x");
  EXPECT_TRUE(finder.clear());
  EXPECT_EQ(finder.typed, "");
}

class FoundFolders : public ::testing::Test {
 protected:
  FoundFolders() {
    for (const char* name : {"Sky/Dusk", "Sky/Dawn", "Terrain/Alps"}) {
      folder.make_folder(std::string("~Vorlund/GameStore/") + name);
    }
    form.Label9_MouseUp(1, MouseEvent());
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  test::FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  SelectionPane& pane = form.selection;
};

TEST_F(FoundFolders, WhatWasTypedIsForgottenWithTheLabelsItWasTypedFor) {
  pane.found_groups.add("sky");
  form.Label1_Click(0);
  EXPECT_EQ(pane.found_groups.typed, "sky");
  pane.found_folders.add("dusk");
  form.Label1_Click(1);
  EXPECT_EQ(pane.found_folders.typed, "");
  form.Label9_MouseUp(1, MouseEvent());
  EXPECT_EQ(pane.found_groups.typed, "");
}

TEST_F(FoundFolders, TheSheetIsShownWhileNeitherPictureNorDescriptionIs) {
  form.Label1_Click(0);
  EXPECT_TRUE(pane.shows_sheet());
  EXPECT_EQ(pane.viewed, -1);
  form.SelLab_Click(1);
  EXPECT_FALSE(pane.shows_sheet());
  EXPECT_EQ(pane.viewed, 1);
  form.Label27_Click(1);
  form.Label27_Click(0);
  EXPECT_FALSE(pane.shows_sheet()) << "the description has all the room now";
  form.Label27_Click(1);
  EXPECT_TRUE(pane.shows_sheet());
}

TEST_F(FoundFolders, AStepBackEmptiesThenLeavesTheSelectionThenHides) {
  form.Label1_Click(0);
  form.SelLab_Click(0);
  form.Label27_Click(1);
  pane.found_folders.add("d");
  form.step_back_in_selection();
  EXPECT_EQ(pane.found_folders.typed, "");
  EXPECT_FALSE(pane.shows_sheet());
  form.step_back_in_selection();
  EXPECT_TRUE(pane.shows_sheet());
  EXPECT_TRUE(pane.Frame3.visible);
  form.step_back_in_selection();
  EXPECT_FALSE(pane.Frame3.visible);
}

}  // namespace
}  // namespace vorlund
