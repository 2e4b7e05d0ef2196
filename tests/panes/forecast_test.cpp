// What a forecast tells of patches, and of what it could not find out.
#include "panes/forecast.h"

#include <gtest/gtest.h>

#include "base/action_error.h"
#include "support/forwarding_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;

/// The disk, with one file that can't be read and, where asked for, a path that there is no right to look at.
class FlawedDisk : public test::ForwardingFileSystem {
 public:
  using ForwardingFileSystem::ForwardingFileSystem;
  std::string unreadable;
  std::vector<std::string> unseen;

  std::unique_ptr<FileReader> open_file(std::string_view path) override {
    if (!unreadable.empty() && path.ends_with(unreadable)) throw ActionError("read", path, "the disk fails");
    return ForwardingFileSystem::open_file(path);
  }
  std::vector<FolderEntry> entries(std::string_view folder) override {
    if (!unreadable.empty() && folder.ends_with(unreadable))
      throw ActionError("list the folder", folder, "the disk fails");
    return ForwardingFileSystem::entries(folder);
  }
  std::vector<std::string> take_unseen() override { return unseen; }
};

class ForecastTest : public testing::Test {
 protected:
  ForecastTest() {
    folder_.make_folder("Savedata");
    folder_.write("~Vorlund/GameStore/Tweaks/Fix/fix.ldr", "");
    games_.add_row({"Tweaks", "Fix"});
  }

  Forecasts forecasts() { return foresee(game_, nobody_, {games_, planes_, names_, menu_}); }

  /// A record of a loader patch: the bytes from an offset on.
  static std::string record(int first, std::string_view bytes) {
    const int last = first + static_cast<int>(bytes.size()) - 1;
    std::string text;
    for (const int offset : {first, last}) {
      for (int byte = 0; byte < 3; ++byte) text += static_cast<char>(offset >> (8 * byte) & 0xFF);
    }
    return text.append(bytes);
  }

  void store_patch(const std::string& bytes) const {
    folder_.write("eaw.exe", "MZ.............................");
    folder_.write("~Vorlund/GameStore/Tweaks/Fix/fix.ldr", bytes);
  }

  /// For each record, which one wins over some of it.
  std::vector<int> overlaps() {
    std::vector<int> by;
    for (const ForeseenPatch& patch : forecasts().game_set.patches) by.push_back(patch.overlapped_by);
    return by;
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  FlawedDisk files_{*disk_};
  GameFolder game_{files_, folder_.path()};
  Status nobody_;
  GameTable games_;
  PlaneTable planes_;
  PilotNames names_;
  PictureMenu menu_;
};

TEST_F(ForecastTest, ARecordNamesOneOfThoseThatLaterTakeSomeOfItsBytes) {
  store_patch(record(0, "aaaaaaaaaaaaaaaaaaaa") + record(5, "bbb") + record(10, "cc") + record(3, "ddd"));
  EXPECT_EQ(overlaps(), (std::vector<int>{3, 3, -1, -1}))
      << "the fourth takes bytes of the first and of the second";
}

TEST_F(ForecastTest, RecordsThatOnlyTouchDoNotOverlap) {
  store_patch(record(4, "bb") + record(0, "aaaa") + record(6, "cc"));
  EXPECT_EQ(overlaps(), (std::vector<int>{-1, -1, -1}));
}

TEST_F(ForecastTest, OfEndlesslyManyRecordsTheFirstHundredThousandAreTold) {
  std::string records;
  for (int count = 0; count < 100'001; ++count) records += record(count % 16, "x");
  store_patch(records);
  EXPECT_EQ(forecasts().game_set.patches.size(), 100'000U);
}

TEST_F(ForecastTest, WhatCannotBeReadAfterwardsStopsTheActionInTheForecastToo) {
  folder_.write("pnames.str", "");
  files_.unreadable = "pnames.str";
  const Forecasts told = forecasts();
  EXPECT_NE(told.game_set.stops.find("pnames.str"), std::string::npos) << told.game_set.stops;
  EXPECT_NE(told.game_set.said, "") << "the action itself ran to its end";
}

TEST_F(ForecastTest, ACleanUpThatWouldFailSaysSo) {
  folder_.write("Savedata/c1.sve", "career");
  files_.unreadable = "Savedata";
  const std::string told = what_clean_up_would_do(game_, games_);
  EXPECT_EQ(told.find("Would end with an error: "), 0U) << told;
  EXPECT_NE(told.find("Savedata"), std::string::npos) << told;
}

TEST_F(ForecastTest, ACleanUpThatCouldNotLookEverywhereSaysSo) {
  EXPECT_EQ(what_clean_up_would_do(game_, games_).find("right to look"), std::string::npos);
  files_.unseen = {folder_.path("Savedata")};
  EXPECT_TRUE(what_clean_up_would_do(game_, games_).ends_with("; as far as there is the right to look"));
}

}  // namespace
}  // namespace vorlund
