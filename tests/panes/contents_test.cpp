// The lines and sentences that forecasts are told in, forecasts made by hand.
#include "panes/contents.h"

#include <gtest/gtest.h>

#include "support/forwarding_file_system.h"

namespace vorlund {
namespace {

using State = ForeseenFile::State;
using Words = std::vector<std::string>;

/// A disk with so much room.
class DiskWithRoom : public test::ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  std::optional<std::uint64_t> room;
  std::optional<std::uint64_t> free_room(std::string_view) override { return room; }
};

class ContentsOfForecasts : public testing::Test {
 protected:
  ContentsOfForecasts() {
    games_.add_row({"Sky", "Dawn"});
    games_.add_row({"Tweaks", "Smoke"});
    planes_.flight_model_group = "1944";
    planes_.set_row(2, {"SP09", "Free French", "Blue", "11", "Spitfire IX"});
  }

  Contents compose() { return contents_of(game_, forecasts_, {games_, planes_, names_, menu_}); }

  /// Of each line: the file, where it comes from, whom it wins over, its state.
  Words lines() {
    Words words;
    for (const ContentsLine& line : compose().lines)
      words.push_back(line.file + " | " + line.from + " | " + line.also + " | " + line.state);
    return words;
  }

  static ForeseenFile file(const std::string& name, State state, std::vector<ForeseenWrite> writes) {
    return {"C:\\Game", name, state, 1'500, std::move(writes)};
  }

  const std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  DiskWithRoom files_{*disk_};
  GameFolder game_{files_, "C:\\Game"};
  GameTable games_;
  PlaneTable planes_;
  PilotNames names_;
  PictureMenu menu_;
  Forecasts forecasts_;
};

TEST_F(ContentsOfForecasts, FilesOfTheAircraftSetNameTheSlotOrTheGroupThatTheyAreOf) {
  constexpr auto kWritten = CopyOutcome::kWritten;
  forecasts_.aircraft_set.files = {
      file("a.dat", State::kNew, {{0, "", kWritten, true}}),
      file("b.flt", State::kNew, {{0, "C:\\Game\\~Vorlund\\FlightModels\\1944\\b.flt", kWritten, true}}),
      file("c.3dz", State::kNew,
           {{2, "c:\\game\\~vorlund\\skinstore\\Free French\\Blue\\c.3dz", kWritten, true}}),
      file("d.flt", State::kNew,
           {{2, "C:\\Game\\~Vorlund\\FlightModels\\1944\\Spitfire IX\\d.flt", kWritten, true}})};
  EXPECT_EQ(lines(),
            (Words{"a.dat | the aircraft set |  | missing", "b.flt | flight-model group 1944 |  | missing",
                   "c.3dz | slot SP09: Free French\\Blue |  | missing",
                   "d.flt | slot SP09: Spitfire IX |  | missing"}));
}

TEST_F(ContentsOfForecasts, EachStateHasItsWords) {
  const std::vector<ForeseenWrite> written = {{1, "source", CopyOutcome::kWritten, true}};
  forecasts_.game_set.files = {file("a", State::kInPlace, written), file("b", State::kChanged, written),
                               file("c", State::kRespelled, written), file("d", State::kNew, written),
                               file("E", State::kDeleted, {})};
  EXPECT_EQ(lines(), (Words{"a | row 1: Sky\\Dawn |  | in place", "b | row 1: Sky\\Dawn |  | differs",
                            "c | row 1: Sky\\Dawn |  | spelled otherwise",
                            "d | row 1: Sky\\Dawn |  | missing", "E |  |  | another spelling, would go"}));
  EXPECT_EQ(
      compose().sentence,
      "Game set: 4 files chosen: 1 in place, 2 differ, 1 missing. \"Process!\" would write 3 files, 3.0 "
      "kB.\nAircraft set: no file is chosen.");
}

TEST_F(ContentsOfForecasts, AFileNamesAllWhomItWinsOver) {
  forecasts_.game_set.files = {file("a", State::kNew,
                                    {{1, "one", CopyOutcome::kWritten, false},
                                     {2, "two", CopyOutcome::kWritten, false},
                                     {1, "three", CopyOutcome::kWritten, true}})};
  EXPECT_EQ(lines(), Words{"a | row 1: Sky\\Dawn | row 1: Sky\\Dawn; row 2: Tweaks\\Smoke | missing"});
}

TEST_F(ContentsOfForecasts, TooLittleRoomIsToldOfWhereTheDiskSaysHowMuchThereIs) {
  forecasts_.game_set.files = {file("a", State::kNew, {{1, "source", CopyOutcome::kWritten, true}})};
  forecasts_.aircraft_set.files = {file("b", State::kChanged, {{0, "", CopyOutcome::kWritten, true}})};
  const std::string told =
      "The disk has room for 1.4 kB more, and 1.5 kB would be written; what is replaced gives some back, so "
      "this is an estimate";
  files_.room = 1'400;
  const Words short_of_room = lines();
  ASSERT_EQ(short_of_room.size(), 4U);
  EXPECT_EQ(short_of_room[1], "game set |  |  | " + told);
  EXPECT_EQ(short_of_room[3], "aircraft set |  |  | " + told);
  files_.room = 1'500;
  EXPECT_EQ(lines().size(), 2U);
  files_.room = std::nullopt;
  EXPECT_EQ(lines().size(), 2U);
}

TEST_F(ContentsOfForecasts, RecordsOfPatchesSayWhichBytesTheyAreAndWhoOverwritesThem) {
  forecasts_.game_set.patches = {{1, "fix.ldr", 7, 0, true, true, -1},
                                 {2, "more.ldr", 7, 3, false, false, -1},
                                 {2, "more.ldr", 20, 1, false, true, -1}};
  EXPECT_EQ(
      lines(),
      (Words{"eaw.exe, no byte | row 1: Sky\\Dawn\\fix.ldr |  | in place",
             "eaw.exe, bytes 7 to 9 | row 2: Tweaks\\Smoke\\more.ldr |  | overwritten by a later eaw.exe",
             "eaw.exe, bytes 20 to 20 | row 2: Tweaks\\Smoke\\more.ldr |  | not in place"}));
}

TEST_F(ContentsOfForecasts, WhatCouldNotBeLookedAtIsToldOfForEachAction) {
  forecasts_.clean_up.unseen = {"C:\\Game\\Savedata"};
  EXPECT_EQ(lines(),
            Words{"Clean Up |  |  | Taken for missing, for want of the right to look: C:\\Game\\Savedata"});
}

TEST_F(ContentsOfForecasts, OfTheStoreOnlySavesThatWouldGoHomeAreTold) {
  const std::string home = "C:\\Game\\~Vorlund\\GameStore\\Careers\\Camp1";
  forecasts_.clean_up.files = {
      {home, "c1.sve", State::kNew, 6, {{0, "C:\\Game\\Savedata\\c1.sve", CopyOutcome::kWritten, true}}},
      {home, "gone.sve", State::kDeleted, 6, {}},
      {"C:\\Game\\~Vorlund",
       "CurrentGameSet.txt",
       State::kChanged,
       6,
       {{0, "", CopyOutcome::kWritten, true}}},
      {"C:\\Game\\Savedata", "c1.sve", State::kDeleted, 6, {}}};
  EXPECT_EQ(lines(), Words{"Savedata\\c1.sve | career save |  | would go home to "
                           "~Vorlund\\GameStore\\Careers\\Camp1\\c1.sve"});
}

TEST_F(ContentsOfForecasts, AnErrorThatWouldStopAnActionIsToldTwice) {
  forecasts_.clean_up.stops = "Could not delete";
  EXPECT_EQ(lines(), Words{"Clean Up |  |  | \"Clean Up\" would stop: Could not delete"});
  EXPECT_TRUE(compose().sentence.ends_with("\n\"Clean Up\" would stop: Could not delete"));
}

}  // namespace
}  // namespace vorlund
