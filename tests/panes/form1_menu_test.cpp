// The main menu and the command labels: each step of a release, and the common dragging.
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using test::left;
using Menu = test::FormFixture;

MouseEvent with(MouseButton button, int x = 10, int y = 10) {
  return {button, 0, x, y};
}

std::vector<std::string> shown_groups(const Form1& form) {
  std::vector<std::string> captions;
  for (const Label& label : form.selection.Label1) {
    if (label.visible) captions.push_back(label.caption);
  }
  return captions;
}

TEST_F(Menu, HasTheFourEntries) {
  start();
  EXPECT_EQ(form->Label9[0].caption, "Make Aircraft Settings");
  EXPECT_EQ(form->Label9[1].caption, "Make Game Settings");
  EXPECT_EQ(form->Label9[2].caption, "Set the Flight Model");
  EXPECT_EQ(form->Label9[3].caption, "Load saved set-ups");
}

TEST_F(Menu, MakeGameSettingsShowsTheGroupsOfTheStore) {
  start().Label9_MouseUp(1, left());
  EXPECT_EQ(shown_groups(*form), (std::vector<std::string>{"Careers", "Sky", "Tweaks"}));
  EXPECT_EQ(form->selection.mode, PaneMode::kGameSet);
  EXPECT_EQ(form->desk.labels.Label2.caption, "Show Game Table");
  EXPECT_TRUE(form->desk.labels.Label2.visible);
  EXPECT_TRUE(form->selection.Label41.visible);
}

TEST_F(Menu, ReplacesTheGroupsOfTheEntryBefore) {
  folder.make_folder("~Vorlund/SkinStore/RAF");
  start().Label9_MouseUp(1, left());
  form->Label9_MouseUp(0, left());
  EXPECT_EQ(shown_groups(*form), (std::vector<std::string>{"RAF"}));
  EXPECT_EQ(form->desk.labels.Label2.caption, "Show Plane Table");
  form->Label9_MouseUp(2, left());
  EXPECT_EQ(shown_groups(*form), (std::vector<std::string>{"Standard"}));
  EXPECT_EQ(form->desk.labels.Label2.caption, "");
  EXPECT_FALSE(form->selection.Label41.visible);
}

TEST_F(Menu, AStoreWithoutGroupsShowsNoGroupLabel) {
  start().Label9_MouseUp(0, left());
  EXPECT_TRUE(shown_groups(*form).empty());
}

TEST_F(Menu, SaysWhatToDoNext) {
  folder.make_folder("~Vorlund/SkinStore/RAF");
  folder.write("~Vorlund/CurrentPlaneSet.txt", "Standard\r\nSlot\r\n");
  folder.write("eaw.exe", "MZ");
  start();
  EXPECT_EQ(form->desk.status_line.caption, "Confirm the game folder, then choose from the menu on the left");
  form->Label17_Click();
  EXPECT_FALSE(form->desk.directory.Label17.visible);
  EXPECT_EQ(form->desk.status_line.caption, "Choose from the menu on the left");
  form->Label9_MouseUp(0, left());
  EXPECT_EQ(form->desk.status_line.caption, "Choose a group of skins, then a skin");
  form->Label9_MouseUp(1, left());
  EXPECT_EQ(form->desk.status_line.caption, "Choose a group, then one of its folders");
  form->Label9_MouseUp(2, left());
  EXPECT_EQ(form->desk.status_line.caption, "Choose the group that all flight models are taken from");
  form->Label9_MouseUp(3, left());
  EXPECT_EQ(form->desk.status_line.caption, "Choose a game set, an aircraft set, or both");
}

TEST_F(Menu, SaysWhereTheStoreHasNothingToChooseFrom) {
  start().Label9_MouseUp(0, left());
  EXPECT_EQ(form->desk.status_line.caption,
            "There is nothing to choose from in \"~Vorlund\\SkinStore\"\nNo flight-model group is set: the "
            "flight models are the folders of \"~Vorlund\\FlightModels\" itself");
  EXPECT_EQ(form->plane.List2.items, std::vector<std::string>{"Standard"});
}

TEST_F(Menu, TheTitleVanishesAtTheFirstUse) {
  start();
  EXPECT_TRUE(form->Label6.visible);
  form->Label9_MouseUp(1, with(MouseButton::kMiddle));
  EXPECT_FALSE(form->Label6.visible);
  EXPECT_FALSE(form->Label26.visible);
}

TEST_F(Menu, AClickOnTheTitleHidesItAndTheVersion) {
  start().Label6_MouseUp();
  EXPECT_FALSE(form->Label6.visible);
  EXPECT_FALSE(form->Label26.visible);
}

TEST_F(Menu, ShiftHidesTheEntryAndOpensNothingWhateverTheButton) {
  start();
  for (const MouseButton button : {MouseButton::kLeft, MouseButton::kRight, MouseButton::kMiddle}) {
    form->Label9[1].visible = true;
    form->desk.labels.FolderLabel.visible = true;
    form->Label9_MouseUp(1, {button, MouseEvent::kShiftKey, 10, 10});
    EXPECT_FALSE(form->Label9[1].visible);
    EXPECT_FALSE(form->desk.labels.FolderLabel.visible);
    EXPECT_TRUE(shown_groups(*form).empty());
  }
}

TEST_F(Menu, ShiftTogetherWithAnotherKeyOpensTheEntry) {
  start().Label9_MouseUp(1, left(3));
  EXPECT_TRUE(form->Label9[1].visible);
  EXPECT_FALSE(shown_groups(*form).empty());
}

TEST_F(Menu, ARightButtonDragMovesAnEntryAndOpensNothing) {
  start();
  const Place before = form->Label9[3].place;
  form->Label_MouseDown(with(MouseButton::kRight, 100, 50));
  form->Label9_MouseUp(3, with(MouseButton::kRight, 400, -30));
  EXPECT_EQ(form->Label9[3].place.left, before.left + 300);
  EXPECT_EQ(form->Label9[3].place.top, before.top - 80);
  EXPECT_FALSE(form->load_pane.Frame2.visible);
}

TEST_F(Menu, AMiddleClickOpensTheSavedSetUpsButNoOtherEntry) {
  start();
  for (const int index : {0, 1, 2}) {
    form->Label9_MouseUp(index, with(MouseButton::kMiddle));
    EXPECT_TRUE(shown_groups(*form).empty()) << index;
  }
  form->Label9_MouseUp(3, with(MouseButton::kMiddle));
  EXPECT_TRUE(form->load_pane.Frame2.visible);
}

TEST_F(Menu, LoadSavedSetUpsKeepsThePaneModeAndRemovesTheGroups) {
  start().Label9_MouseUp(1, left());
  form->Label9_MouseUp(3, left());
  EXPECT_EQ(form->selection.mode, PaneMode::kGameSet);
  EXPECT_EQ(form->selection.Label1.size(), 1U);
  EXPECT_FALSE(form->selection.Label1[0].visible);
}

TEST_F(Menu, ExitEndsTheProgramWithoutSavingEvenWithUnsavedEdits) {
  start();
  form->G2_Click(2);
  form->Label29_Click();
  const auto before = folder.tree();
  form->ExitButton_MouseUp(left());
  EXPECT_TRUE(form->ended);
  EXPECT_EQ(folder.tree(), before);
}

TEST_F(Menu, FlyStartsTheGameInItsFolderAndMinimises) {
  start().Label18_MouseUp(left());
  EXPECT_EQ(files.started, (std::vector<std::string>{folder.path("eaw.exe")}));
  EXPECT_EQ(files.started_in, (std::vector<std::string>{folder.path()}));
  EXPECT_TRUE(form->minimise_wanted);
}

TEST_F(Menu, CommandLabelsAreDraggedWithTheRightButtonAndIgnoreTheMiddleOne) {
  using Release = void (Form1::*)(const MouseEvent&);
  folder.write("loose.dat", "loose");
  folder.write("Savedata/Default.msn", "mission");
  start();
  const std::vector<std::pair<Label*, Release>> commands = {{&form->Label18, &Form1::Label18_MouseUp},
                                                            {&form->DelMSN, &Form1::DelMSN_MouseUp},
                                                            {&form->Label5, &Form1::Label5_MouseUp},
                                                            {&form->Label7, &Form1::Label7_MouseUp},
                                                            {&form->ExitButton, &Form1::ExitButton_MouseUp}};
  for (const auto& [label, release] : commands) {
    const Place before = label->place;
    form->Label_MouseDown(with(MouseButton::kRight, 10, 20));
    ((*form).*release)(with(MouseButton::kRight, 40, 80));
    EXPECT_EQ(label->place.left, before.left + 30) << label->caption;
    EXPECT_EQ(label->place.top, before.top + 60) << label->caption;
    ((*form).*release)(with(MouseButton::kMiddle));
  }
  EXPECT_FALSE(form->ended);
  EXPECT_FALSE(form->minimise_wanted);
  EXPECT_TRUE(files.started.empty());
  EXPECT_TRUE(folder.has("loose.dat"));
  EXPECT_TRUE(folder.has("Savedata/Default.msn"));
}

TEST_F(Menu, MinimiseAsksForItOnce) {
  start().Label7_MouseUp(left());
  EXPECT_TRUE(form->minimise_wanted);
}

TEST_F(Menu, AnyButtonOnTheBackgroundMovesTheWindow) {
  start().Form_MouseDown(with(MouseButton::kMiddle, 100, 100));
  form->Form_MouseUp(with(MouseButton::kMiddle, 250, 40));
  EXPECT_EQ(form->place.left, 1150);
  EXPECT_EQ(form->place.top, 940);
}

TEST_F(Menu, WhatsLoadedShowsBothTables) {
  start().WhatsLoaded_Click();
  EXPECT_TRUE(form->game.GameFrame.visible);
  EXPECT_TRUE(form->plane.Frame1.visible);
}

TEST_F(Menu, GroupLabelsGoDownInStepsAndThenIntoANewColumn) {
  for (int index = 0; index < 500; ++index) {
    folder.make_folder("~Vorlund/GameStore/Group " + std::to_string(1000 + index));
  }
  start();
  form->selection.screen = {0, 0, 19200, 10800};
  form->Label9_MouseUp(1, left());
  const std::vector<Label>& labels = form->selection.Label1;
  ASSERT_EQ(labels.size(), 503U);
  for (std::size_t index = 1; index < labels.size(); ++index) {
    const Place& before = labels[index - 1].place;
    const Place& place = labels[index].place;
    if (before.top + 500 <= 10800 - 2000) {
      EXPECT_EQ(place.left, before.left);
      EXPECT_EQ(place.top, before.top + 500);
    } else {
      EXPECT_EQ(place.left, before.left + 3000);
      EXPECT_EQ(place.top, labels.front().place.top);
    }
  }
}

}  // namespace
}  // namespace vorlund
