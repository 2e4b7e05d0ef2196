// Start-up: what the window object loads from the folder in which the program was started.
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using Start = test::FormFixture;

TEST_F(Start, TakesTheGameDirectoryFromTheCurrentFolder) {
  start();
  EXPECT_EQ(form->desk.directory.Label16.caption, folder.path());
  EXPECT_EQ(form->desk.directory.Dir6.path, folder.path());
  EXPECT_TRUE(form->desk.directory.Dir6.visible);
}

TEST_F(Start, PlacesTheWindowAThousandTwipsFromTheCorner) {
  start();
  EXPECT_EQ(form->place.left, 1000);
  EXPECT_EQ(form->place.top, 1000);
}

TEST_F(Start, ShowsTheVersionWithOneBlankAndNoPadding) {
  start();
  EXPECT_EQ(form->Label26.caption, "Version 1.0.7");
}

TEST_F(Start, FillsTheGameTableFromItsRecordAndHidesClearedRows) {
  start();
  ASSERT_EQ(form->game.G2.row_count(), 4);
  EXPECT_TRUE(form->game.G2.is_hidden(1));
  EXPECT_FALSE(form->game.G2.is_hidden(2));
  EXPECT_TRUE(form->WhatsLoaded.visible);
}

TEST_F(Start, FillsThePlaneTableFromItsRecord) {
  folder.write(
      "~Vorlund/CurrentPlaneSet.txt",
      "Standard\r\nSlot\tRegion\r\nP38H\tUSAAF\tSilver\t0\tP38H\tLightning\tAmerican\tYes\tFighter\t100\r\n");
  start();
  EXPECT_EQ(form->plane.Label25[0].caption, "Standard");
  EXPECT_EQ(form->plane.Label25[1].caption, "Standard");
  EXPECT_EQ(form->plane.G1.row_count(), 2);
  EXPECT_EQ(form->plane.G1.cell(1, PlaneTable::kSkinFolder), "Silver");
}

TEST_F(Start, OfAPlaneRecordOfOneLineSetsTheFlightModelAlone) {
  folder.write("~Vorlund/CurrentPlaneSet.txt", "Standard");
  start();
  EXPECT_EQ(form->plane.G1.flight_model_group, "Standard");
  EXPECT_EQ(form->plane.G1.row_count(), 1);
}

TEST_F(Start, LoadsTheThreePicturesAndSizesThePanePictureEvenWithoutOne) {
  folder.write("~Vorlund/Fr2Pic", "window picture");
  folder.write("~Vorlund/FORMPIC", "pane picture");
  start();
  EXPECT_EQ(*form->background.picture.bytes, "window picture");
  EXPECT_EQ(*form->load_pane.Image2.picture.bytes, "pane picture");
  EXPECT_EQ(*form->selection.Image3.picture.bytes, "pane picture");
}

TEST_F(Start, WithoutPicturesShowsNoneButSizesThePanePicture) {
  start();
  EXPECT_EQ(form->background.picture.bytes, nullptr);
  EXPECT_EQ(form->load_pane.Image2.place.width, form->load_pane.Frame2.place.width);
  EXPECT_EQ(form->load_pane.Image2.place.height, form->load_pane.Frame2.place.height);
}

TEST_F(Start, ListsSavedataAndTheSavedSetUps) {
  folder.write("Savedata/DEFAULT1.MSN", "");
  folder.write("Savedata/default.msn", "");
  folder.write("Savedata/other.msn", "");
  folder.write("~Vorlund/GameSetFiles/Spring 1944", "");
  folder.write("~Vorlund/PlaneSetFiles/Summer", "");
  start();
  EXPECT_EQ(form->SavDatFile.names, (std::vector<std::string>{"default.msn", "DEFAULT1.MSN"}));
  EXPECT_EQ(form->load_pane.File3.names, (std::vector<std::string>{"Spring 1944"}));
  EXPECT_EQ(form->load_pane.File2.names, (std::vector<std::string>{"Summer"}));
}

TEST_F(Start, RebuildsTheSkinList) {
  folder.write("~Vorlund/SkinStore/RAF/Spit92/psp09.3dz", "");
  start();
  EXPECT_EQ(folder.read("~Vorlund/SkinStore/SkinList.txt"), "RAF\\Spit92\\SP09\r\n");
}

TEST_F(Start, ShowsNoPane) {
  start();
  for (const Frame* frame :
       {&form->game.GameFrame, &form->plane.Frame1, &form->selection.Frame3, &form->possible_skins.Frame4,
        &form->load_pane.Frame2, &form->save_pane.SaveFrame, &form->menu_editor.PMenFrame}) {
    EXPECT_FALSE(frame->visible) << frame->caption;
  }
  for (const Label& label : form->selection.Label1) {
    EXPECT_FALSE(label.visible);
    EXPECT_EQ(label.text_colour, kWhite);
  }
  EXPECT_TRUE(form->plane.List2.items.empty());
}

TEST(StartElsewhere, OutsideAGameFolderGivesEmptyTablesAndNoPictures) {
  const test::TemporaryFolder folder;
  const auto platform = make_platform_file_system();
  test::StartedInFolder files(*platform, folder.path());
  Status window;
  Form1 form(files, window, {1, 0, 60});
  form.Form_Load();
  EXPECT_EQ(form.game.G2.row_count(), 1);
  EXPECT_EQ(form.plane.G1.flight_model_group, "");
  ASSERT_EQ(form.plane.G1.row_count(), 31);
  for (int row = 1; row <= 30; ++row) {
    for (int column = PlaneTable::kRegion; column < form.plane.G1.columns; ++column) {
      EXPECT_EQ(form.plane.G1.cell(row, column), "");
    }
  }
  for (const Picture* picture : {&form.background, &form.load_pane.Image2, &form.selection.Image3}) {
    EXPECT_EQ(picture->picture.bytes, nullptr);
  }
  EXPECT_FALSE(form.WhatsLoaded.visible);
  EXPECT_TRUE(folder.tree().empty()) << "start-up must not make anything in a folder without a store";
}

TEST_F(Start, ChangingTheDirectoryMovesThePathsButKeepsWhatWasLoaded) {
  const test::TemporaryFolder other;
  other.make_folder("EAW 2/~Vorlund/GameStore/Elsewhere");
  start();
  form->desk.directory.Dir6.path = other.path();
  form->desk.directory.Dir6.names = {"EAW 2"};
  form->Dir6_DblClick(0);
  EXPECT_EQ(form->desk.directory.Label16.caption, other.path("EAW 2"));
  EXPECT_EQ(form->desk.directory.Dir4.names, (std::vector<std::string>{"~Vorlund"}));
  EXPECT_EQ(form->game.G2.row_count(), 4);
  EXPECT_EQ(form->SavDatFile.path, folder.path("Savedata"));
  form->Label9_MouseUp(1, test::left());
  EXPECT_EQ(form->selection.Label1[0].caption, "Elsewhere");
}

TEST_F(Start, ConfirmingHidesTheDirectoryControlsWithoutAnyCheck) {
  start();
  EXPECT_EQ(form->desk.directory.Label17.caption, "Please confirm your EAW directory:");
  form->Label17_Click();
  EXPECT_FALSE(form->desk.directory.Label17.visible);
  EXPECT_FALSE(form->desk.directory.Label16.visible);
  EXPECT_FALSE(form->desk.directory.Dir6.visible);
  EXPECT_EQ(form->desk.directory.Label16.caption, folder.path());
}

TEST_F(Start, TheParentFolderCanBeOpenedUpToTheRoot) {
  start();
  for (int step = 0; step < 40; ++step) form->Dir6_DblClick(-2);
  const std::string root = form->desk.directory.Label16.caption;
  EXPECT_TRUE(root == "/" || root == "C:\\" || root == "Z:\\") << root;
  form->Dir6_DblClick(-1);
  EXPECT_EQ(form->desk.directory.Label16.caption, root);
}

}  // namespace
}  // namespace vorlund
