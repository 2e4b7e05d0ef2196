// Matching skins to a flight model: what is found, what is counted, how often the disk is asked.
#include <algorithm>
#include <random>

#include "base/text.h"
#include "panes/aircraft_work.h"

namespace vorlund {
namespace {

class SkinMatching : public test::AircraftWork {
 protected:
  SkinMatching() { plane.set_flight_model_group("Late"); }

  void match(const std::string& flight_model) {
    folder.make_folder("~Vorlund/FlightModels/Late/" + flight_model);
    browser.DoFM();
    click(flight_model);
  }

  void click(const std::string& flight_model) {
    form.Option1_Click(static_cast<int>(PlaneOption::kMatchSkin));
    const auto at = std::find(form.plane.List2.items.begin(), form.plane.List2.items.end(), flight_model);
    form.List2_Click(static_cast<int>(at - form.plane.List2.items.begin()));
  }

  /// The search as it is defined: every group is opened again for every cut of the name.
  std::pair<std::vector<std::string>, std::string> search_as_defined(std::string name) {
    std::vector<std::string> found;
    std::size_t length = character_count(name);
    for (;;) {
      for (std::size_t group = 0; group < selection.Label1.size(); ++group) {
        form.Label1_Click(static_cast<int>(group));
        for (const Label& label : selection.SelLab) {
          const bool occurs = !label.caption.empty() && label.caption.find(name) != std::string::npos;
          if (occurs) found.push_back(selection.Label1[group].caption + "\\" + label.caption);
        }
      }
      if (!found.empty() || name.empty()) break;
      length = character_count(name);
      name = characters(name, 0, length - 1);
    }
    return {found, std::to_string(length)};
  }
};

TEST_F(SkinMatching, FindsTheLongestBeginningAndCountsOneMoreThanMatched) {
  make_skin("RAF/Spit Mk IX", {"psp09.3dz"});
  make_skin("RAF/Hurri", {});
  match("Spit9");
  EXPECT_EQ(skins.List4.items, std::vector<std::string>{"RAF\\Spit Mk IX"});
  EXPECT_EQ(skins.Label35.caption, "5");
  EXPECT_EQ(skins.Label38.caption, "Spit9");
  EXPECT_EQ(skins.List4.selected, 0);
  EXPECT_EQ(skins.Label32.caption, "Spit Mk IX");
  EXPECT_EQ(last_outcome(), "1 skin has \"Spit\" in the name");
}

TEST_F(SkinMatching, MakesTheSelectedSlotRowCurrentOnceOneWasSet) {
  make_skin("RAF/Spit Mk IX", {"psp09.3dz"});
  plane.G1.select(7, PlaneTable::kSlot);
  match("Spit9");
  EXPECT_EQ(plane.G1.current_row, 7) << "before a slot row was ever selected the current row stays";
  EXPECT_EQ(plane.G1.current_column, PlaneTable::kPlaneName);
  plane.set_option(PlaneOption::kEditMode);
  form.G1_MouseDown(20, PlaneTable::kFlyable);
  plane.set_option(PlaneOption::kMatchSkin);
  form.G1_MouseDown(3, PlaneTable::kFlyable);
  click("Spit9");
  EXPECT_EQ(plane.G1.current_row, 20) << "the row last clicked in edit mode, not the one that is current";
  form.Image4_Click();
  form.G1_MouseDown(3, PlaneTable::kFlyable);
  click("Spit9");
  EXPECT_EQ(plane.G1.current_row, kSpitfireRow) << "the row that the skin went into";
}

struct MatchCase {
  std::string flight_model;
  std::vector<std::string> found;
  std::string count;
};

TEST_F(SkinMatching, TakesTheNameAnywhereWithExactCase) {
  for (const char* skin : {"B/My Spit9 blue", "B/Été 1940", "A/Hurri", "A/spit9", "C/Emil"})
    make_skin(skin, {});
  const MatchCase cases[] = {
      {"Spit9", {"B\\My Spit9 blue"}, "5"},
      {"emil", {"B\\My Spit9 blue"}, "2"},
      {"Hurricane", {"A\\Hurri"}, "6"},
      {"Étendard", {"B\\Été 1940"}, "3"},
      {"Ju87", {"A\\Hurri", "A\\spit9", "B\\My Spit9 blue", "B\\Été 1940", "C\\Emil"}, "1"},
  };
  for (const MatchCase& given : cases) {
    match(given.flight_model);
    std::vector<std::string> found = skins.List4.items;
    EXPECT_EQ(found, given.found) << given.flight_model;
    EXPECT_EQ(skins.Label35.caption, given.count) << given.flight_model;
  }
}

TEST_F(SkinMatching, ShowsThePaneInFrontWithTheSlotRowCurrent) {
  make_skin("RAF/Spit9", {"psp09.3dz"});
  folder.write("~Vorlund/SelPic", "default");
  plane.G1.select(3, PlaneTable::kSide);
  plane.Frame1.visible = true;
  form.desk.labels.SkinLab3.caption = "7";
  match("Spit9");
  EXPECT_TRUE(skins.Frame4.visible);
  EXPECT_FALSE(plane.Frame1.visible);
  EXPECT_FALSE(selection.Frame3.visible);
  EXPECT_GT(skins.Frame4.depth, selection.Frame3.depth);
  EXPECT_EQ(plane.G1.current_row, 3);
  EXPECT_EQ(plane.G1.current_column, PlaneTable::kPlaneName);
  EXPECT_EQ(*skins.Image4.fallback.bytes, "default");
  EXPECT_EQ(selection.current_group, "RAF");
}

TEST_F(SkinMatching, LeavesTheCountAndThePaneWhereTheStoreHasNoSkin) {
  folder.make_folder("~Vorlund/SkinStore/Empty");
  form.desk.labels.SkinLab3.caption = "7";
  match("Spit9");
  EXPECT_TRUE(skins.List4.items.empty());
  EXPECT_EQ(skins.Label35.caption, "");
  EXPECT_EQ(form.desk.labels.SkinLab3.caption, "");
  EXPECT_FALSE(skins.Frame4.visible);
  EXPECT_EQ(last_outcome(), "The skin store has no skin to match with \"Spit9\"");
}

TEST_F(SkinMatching, SaysThatTheGroupsAreGoneWhereAnotherCommandHasRemovedThem) {
  make_skin("RAF/Spit9", {"psp09.3dz"});
  match("Typhoon");
  skins.Frame4.visible = false;
  selection.remove_group_labels();
  click("Typhoon");
  EXPECT_FALSE(skins.Frame4.visible);
  EXPECT_EQ(last_outcome(),
            "Skins are matched in the aircraft settings alone: open them from the menu first");
}

TEST_F(SkinMatching, ListsEachGroupOnceHoweverOftenTheNameIsCut) {
  for (int group = 0; group < 4; ++group) make_skin("Group " + std::to_string(group) + "/Emil", {});
  folder.make_folder("~Vorlund/FlightModels/Late/_____________");
  browser.DoFM();
  files.clear();
  click("_____________");
  EXPECT_EQ(skins.List4.items.size(), 4U);
  for (int group = 0; group < 4; ++group) {
    const std::string listing = "list " + folder.path("~Vorlund\\SkinStore\\Group ") + std::to_string(group);
    EXPECT_EQ(std::count(files.log().begin(), files.log().end(), listing), 1) << listing;
  }
}

TEST_F(SkinMatching, ComesToTheSameAsOpeningEveryGroupForEveryCut) {
  std::mt19937 random(1940);
  const auto pick = [&](int count) { return static_cast<int>(random() % static_cast<unsigned>(count)); };
  const auto name = [&] {
    std::string text;
    for (int length = 1 + pick(4); length > 0; --length) text += "abé"[pick(2)];
    return text;
  };
  for (int round = 0; round < 60; ++round) {
    const std::string game_folder = "round " + std::to_string(round);
    for (int group = 1 + pick(4); group > 0; --group) {
      const std::string path = game_folder + "/~Vorlund/SkinStore/G" + std::to_string(pick(9));
      folder.make_folder(path);
      for (int skin = pick(3); skin > 0; --skin) folder.make_folder(path + "/" + name());
    }
    const std::string flight_model = name() + (pick(2) == 0 ? "" : "z" + name());
    folder.make_folder(game_folder + "/~Vorlund/FlightModels/Late/" + flight_model);
    form.desk.directory.Label16.caption = folder.path(game_folder);
    browser.DoFM();
    const std::string left_over = pick(3) == 0 ? "" : name();
    selection.SelLab.resize(1);
    selection.SelLab[0].caption = left_over;
    const auto [found, count] = search_as_defined(flight_model);
    const std::string group_defined = selection.current_group;
    std::vector<std::string> labels_defined;
    for (const Label& label : selection.SelLab) labels_defined.push_back(label.caption);

    selection.SelLab.resize(1);
    selection.SelLab[0].caption = left_over;
    skins.Label35.caption = "none";
    click(flight_model);
    std::vector<std::string> captions;
    for (const Label& label : selection.SelLab) captions.push_back(label.caption);
    EXPECT_EQ(skins.List4.items, found) << flight_model << " in round " << round;
    EXPECT_EQ(skins.Label35.caption, found.empty() ? "none" : count) << flight_model << " in round " << round;
    EXPECT_EQ(selection.current_group, group_defined) << round;
    EXPECT_EQ(captions, labels_defined) << round;
  }
}

TEST_F(SkinMatching, IsLeftToTheAircraftWork) {
  make_skin("RAF/Spit9", {});
  folder.make_folder("~Vorlund/FlightModels/Late/Spit9");
  browser.DoFM();
  for (const PaneMode mode : {PaneMode::kGameSet, PaneMode::kFlightModelGroup}) {
    selection.mode = mode;
    click("Spit9");
    EXPECT_FALSE(skins.Frame4.visible);
    EXPECT_EQ(plane.G1.flight_model_group, "Late");
    EXPECT_EQ(selection.current_group, "");
  }
}

TEST_F(SkinMatching, AChosenSkinTakesTheFlightModelWithIt) {
  make_skin("RAF/Spit9", {"psp09.3dz"});
  std::string oaw = "Spitfire IX\r\n11\r\n0\r\n0\r\n0\r\n5\r\n1\r\n";
  for (int line = 8; line <= 169; ++line) oaw += "0\r\n";
  folder.write("~Vorlund/FlightModels/Late/Spit9/spit9.oaw", oaw);
  match("Spit9");
  form.Image4_Click();
  browser.apply_matched_skin();
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 RAF Spit9 11 Spit9 Spitfire IX British Yes Fighter 100");
  EXPECT_TRUE(plane.Frame1.visible);
  EXPECT_EQ(last_outcome(), "Slot SP09 now wears \"Spit9\"\nSlot SP09 now flies \"Spit9\"");
  EXPECT_TRUE(form.plane.List2.visible);
  EXPECT_TRUE(plane.is_set(PlaneOption::kMatchSkin));
  EXPECT_FALSE(plane.is_set(PlaneOption::kFindFlightModel));
}

TEST_F(SkinMatching, AChosenSkinComesAloneWhileNothingWasMatched) {
  make_skin("RAF/Spit9", {"psp09.3dz"});
  folder.make_folder("~Vorlund/FlightModels/Late/Spit9");
  browser.DoFM();
  form.Option1_Click(static_cast<int>(PlaneOption::kEditMode));
  form.plane.List2.selected = 0;
  skins.List4.items = {"RAF\\Spit9"};
  skins.List4.selected = 0;
  form.Image4_Click();
  browser.apply_matched_skin();
  EXPECT_EQ(row_text(kSpitfireRow), "SP09 RAF Spit9 11 - - - - - -");
  EXPECT_TRUE(plane.is_set(PlaneOption::kEditMode));
}

}  // namespace
}  // namespace vorlund
