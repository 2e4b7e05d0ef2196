// The pane that tells what is in the game folder: its lines, its filter and order, and that it only reads.
#include "panes/contents_pane.h"

#include <gtest/gtest.h>

#ifndef _WIN32
#include <sys/stat.h>
#include <unistd.h>
#endif

#include "aircraft/pilot_names.h"
#include "panes/form_fixture.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using Column = ContentsPane::Column;
using Words = std::vector<std::string>;

class ContentsPaneTest : public test::FormFixture {
 protected:
  ContentsPaneTest() {
    store("Sky/Dawn/clouds.spt", "clouds");
    store("Sky/Dawn/fix.ldr", "\x02\0\0\x03\0\0AB\x05\0\0\x05\0\0X"s);
    store("Tweaks/Smoke/sky.pal", "smoky");
    store("Tweaks/Smoke/clouds.spt", "clouds");
    store("Tweaks/Smoke/more.ldr", "\x03\0\0\x03\0\0Z"s);
    folder.write("eaw.exe", "0123456789");
    folder.write("clouds.spt", "clouds");
    folder.write("loose.pal", "loose");
    folder.write("Savedata/c1.sve", "career");
    folder.write("~Vorlund/CurrentGameSet.txt",
                 "Folder group\tFolder name\r\nCareers\tCamp1\r\nSky\tDawn\r\nTweaks\tSmoke\r\n");
  }

  void store(const std::string& name, std::string_view bytes) const {
    folder.write("~Vorlund/GameStore/" + name, bytes);
  }

  ContentsPane& look() {
    start();
    form->Contents_Click();
    return form->contents;
  }

  /// The lines of a kind, cells parted by " | ".
  Words lines(ContentsKind kind) {
    ContentsPane& pane = form->contents;
    form->ContentsKinds_Click(static_cast<int>(kind));
    Words words;
    for (int place = 0; place < pane.line_count(); ++place) {
      std::string line;
      for (const Column column : {Column::kFile, Column::kFrom, Column::kAlso, Column::kState, Column::kSize})
        line += (line.empty() ? "" : " | ") + pane.cell(place, column);
      words.push_back(line);
    }
    return words;
  }
};

TEST_F(ContentsPaneTest, OneSentenceSumsUpEachSet) {
  EXPECT_EQ(
      look().ContentsSum.caption,
      "Game set: 4 files chosen: 1 in place, 1 differs, 2 missing. \"Process!\" would write 3 files, 20 "
      "bytes.\n"
      "Aircraft set: no file is chosen.\n"
      "1 loose file belongs to no row.");
}

TEST_F(ContentsPaneTest, EveryFileSaysWhereItComesFromAndWhomItWinsOver) {
  look();
  EXPECT_EQ(lines(ContentsKind::kAll),
            (Words{"clouds.spt | row 3: Tweaks\\Smoke |  | in place | 6 bytes",
                   "eaw.exe | row 3: Tweaks\\Smoke (patch) |  | differs | 10 bytes",
                   "loose.pal | no row |  | loose | 5 bytes",
                   "sky.pal | row 3: Tweaks\\Smoke | row 2: Sky\\Dawn | missing | 5 bytes",
                   "smoke.dat | row 3: Tweaks\\Smoke |  | missing | 5 bytes"}));
  EXPECT_EQ(lines(ContentsKind::kOverwritten),
            Words{"sky.pal | row 3: Tweaks\\Smoke | row 2: Sky\\Dawn | missing | 5 bytes"});
  EXPECT_EQ(lines(ContentsKind::kWritten).size(), 3U);
  EXPECT_EQ(lines(ContentsKind::kMissing).size(), 2U);
}

TEST_F(ContentsPaneTest, TheChainOfAFileStandsInOrderItsWinnerMarked) {
  look();
  lines(ContentsKind::kOverwritten);
  form->ContentsTable_Select({0});
  EXPECT_EQ(form->contents.ContentsChain.items,
            (Words{"   row 2: Sky\\Dawn (overwritten)", "\u25BA row 3: Tweaks\\Smoke"}));
}

TEST_F(ContentsPaneTest, EachRecordOfAPatchSaysWhetherItStands) {
  look();
  EXPECT_EQ(lines(ContentsKind::kPatches),
            (Words{"eaw.exe, bytes 2 to 3 | row 2: Sky\\Dawn\\fix.ldr | overlapped by row 3: "
                   "Tweaks\\Smoke\\more.ldr | overwritten by row 3: Tweaks\\Smoke\\more.ldr | 2 bytes",
                   "eaw.exe, bytes 5 to 5 | row 2: Sky\\Dawn\\fix.ldr |  | not in place | 1 byte",
                   "eaw.exe, bytes 3 to 3 | row 3: Tweaks\\Smoke\\more.ldr |  | not in place | 1 byte"}));
  form->GameLoad_Click();
  form->ContentsAgain_Click();
  EXPECT_NE(lines(ContentsKind::kPatches)[1].find("| in place |"), std::string::npos);
}

TEST_F(ContentsPaneTest, CleanUpSaysWhichSavesGoHomeAndWhatBelongsToNobody) {
  look();
  EXPECT_EQ(
      lines(ContentsKind::kCleanUp),
      (Words{
          "clouds.spt | a row or slot |  | would be deleted | 6 bytes",
          "loose.pal | no row |  | would be deleted | 5 bytes",
          "Savedata\\c1.sve | career save |  | would go home to ~Vorlund\\GameStore\\Careers\\Camp1\\c1.sve "
          "| 6 bytes"}));
  EXPECT_EQ(lines(ContentsKind::kNoRow), Words{"loose.pal | no row |  | loose | 5 bytes"});
}

TEST_F(ContentsPaneTest, TheGamesOwnFilesAreToldNameByName) {
  folder.write("pnames.str", compose_pilot_names(Words(30), ""));
  start();
  PlaneTable& planes = form->plane.G1;
  planes.set_cell(1, PlaneTable::kRecordNumber, "0");
  planes.set_cell(1, PlaneTable::kPlaneName, "Lightning");
  form->Contents_Click();
  const Words own = lines(ContentsKind::kOwnFiles);
  ASSERT_EQ(own.size(), 30U);
  EXPECT_EQ(own.front(), "pnames.str | name 0 |  | is \"\", chosen \"Lightning\" | ");
  EXPECT_EQ(own.back(), "pnames.str | name 29 |  | as chosen | ");
}

TEST_F(ContentsPaneTest, WhatIsWrongIsToldBeforeAnythingIsDone) {
  folder.make_folder("smoke.dat");
  start();
  form->game.G2.add_row({"Sky", "Gone"});
  form->game.G2.g2update();
  form->plane.G1.set_cell(2, PlaneTable::kScriptFolder, "None");
  form->plane.G1.g1update();
  form->Contents_Click();
  const Words wrong = lines(ContentsKind::kWrong);
  ASSERT_FALSE(wrong.empty());
  EXPECT_NE(wrong.front().find("\"Process!\" would stop: Could not write"), std::string::npos)
      << wrong.front();
  EXPECT_TRUE(std::any_of(wrong.begin(), wrong.end(), [](const std::string& line) {
    return line.find("no pnames.str") != std::string::npos;
  }));
  EXPECT_NE(form->contents.ContentsSum.caption.find("would stop"), std::string::npos);
}

TEST_F(ContentsPaneTest, RowsWithoutAFolderAreTold) {
  start();
  form->game.G2.add_row({"Sky", "Gone"});
  form->game.G2.g2update();
  form->Contents_Click();
  const Words wrong = lines(ContentsKind::kWrong);
  EXPECT_TRUE(std::any_of(wrong.begin(), wrong.end(), [](const std::string& line) {
    return line.find("Sky\\Gone") != std::string::npos;
  }));
}

TEST_F(ContentsPaneTest, TypedWordsFilterWithoutRegardToCaseAndAHeadingSorts) {
  ContentsPane& pane = look();
  form->ContentsFilter_Change("SMOKE pal");
  EXPECT_EQ(lines(ContentsKind::kAll).size(), 1U);
  form->ContentsFilter_Change("");
  form->ContentsTable_Sort(static_cast<int>(Column::kSize));
  EXPECT_EQ(pane.cell(0, Column::kSize), "5 bytes");
  form->ContentsTable_Sort(static_cast<int>(Column::kSize));
  EXPECT_EQ(pane.cell(0, Column::kFile), "eaw.exe");
}

TEST_F(ContentsPaneTest, SelectedRowsAreCopiedAsText) {
  ContentsPane& pane = look();
  form->ContentsTable_Select({0});
  form->ContentsCopy_Click();
  EXPECT_EQ(
      pane.to_copy,
      "File\tComes from\tWins over\tState\tSize\nclouds.spt\trow 3: Tweaks\\Smoke\t\tin place\t6 bytes");
}

TEST_F(ContentsPaneTest, WithoutASelectionAllRowsAreCopied) {
  ContentsPane& pane = look();
  form->ContentsKinds_Click(static_cast<int>(ContentsKind::kMissing));
  form->ContentsCopy_Click();
  EXPECT_EQ(pane.to_copy,
            "File\tComes from\tWins over\tState\tSize\n"
            "sky.pal\trow 3: Tweaks\\Smoke\trow 2: Sky\\Dawn\tmissing\t5 bytes\n"
            "smoke.dat\trow 3: Tweaks\\Smoke\t\tmissing\t5 bytes");
  EXPECT_EQ(form->desk.status_line.caption, "2 rows were copied");
  form->ContentsTable_Select({1});
  form->ContentsCopy_Click();
  EXPECT_EQ(form->desk.status_line.caption, "1 row was copied");
}

TEST_F(ContentsPaneTest, WhatIsNotInTheListsCannotBeChosen) {
  ContentsPane& pane = look();
  form->ContentsKinds_Click(static_cast<int>(ContentsKind::kMissing));
  for (const int kind : {-1, static_cast<int>(pane.ContentsKinds.items.size())}) {
    form->ContentsKinds_Click(kind);
    EXPECT_EQ(pane.line_count(), 2);
  }
  form->ContentsTable_Select({-1, 1, 2});
  EXPECT_EQ(pane.selected(), std::vector<int>{1});
  form->ContentsTable_Select({2});
  EXPECT_TRUE(pane.selected().empty());
  EXPECT_TRUE(pane.ContentsChain.items.empty());
}

TEST_F(ContentsPaneTest, AnotherHeadingSortsUpwardsAgain) {
  ContentsPane& pane = look();
  const int name = static_cast<int>(Column::kFile);
  form->ContentsTable_Sort(name);
  EXPECT_TRUE(pane.is_descending());
  form->ContentsTable_Sort(static_cast<int>(Column::kSize));
  EXPECT_FALSE(pane.is_descending());
  form->ContentsTable_Sort(name);
  EXPECT_FALSE(pane.is_descending());
  EXPECT_EQ(pane.cell(0, Column::kFile), "clouds.spt");
}

TEST_F(ContentsPaneTest, NothingIsWrittenAndNoTableChanges) {
  start();
  const auto before = folder.tree();
  const int rows = form->game.G2.row_count();
  form->Contents_Click();
  EXPECT_EQ(folder.tree(), before);
  EXPECT_EQ(form->game.G2.row_count(), rows);
  EXPECT_EQ(form->game.G2.cell(2, GameTable::kFolder), "Dawn");
  EXPECT_TRUE(form->contents.ContentsFrame.visible);
  form->ContentsHide_Click();
  EXPECT_FALSE(form->contents.ContentsFrame.visible);
}

#ifndef _WIN32

TEST_F(ContentsPaneTest, AGameFolderWithoutTheRightToWriteIsToldOf) {
  start();
  ASSERT_EQ(::chmod(folder.path().c_str(), 0555), 0);
  // The superuser may write anywhere: then the look is taken as a user who may not.
  const uid_t user = ::geteuid();
  if (user == 0) {
    ASSERT_EQ(::seteuid(65534), 0);
  }
  form->Contents_Click();
  ASSERT_EQ(::seteuid(user), 0);
  ::chmod(folder.path().c_str(), 0755);
  const Words wrong = lines(ContentsKind::kWrong);
  ASSERT_FALSE(wrong.empty());
  EXPECT_NE(wrong.front().find("\"Process!\" would stop: Could not write"), std::string::npos)
      << wrong.front();
  EXPECT_NE(wrong.front().find("Permission denied"), std::string::npos) << wrong.front();
}

#endif

TEST_F(ContentsPaneTest, TheGameTableMarksWhoWinsOverTheSelectedRow) {
  start();
  form->WhatsLoaded_Click();
  const GamePane& game = form->game;
  EXPECT_EQ(game.mark(2), "");
  form->G2_Click(2);
  EXPECT_EQ(game.mark(2), "");
  EXPECT_EQ(game.mark(3), "\u25B2 2");
  EXPECT_EQ(game.mark_in_words(3), "This row replaces 2 files of the selected row.");
  form->G2_Click(3);
  EXPECT_EQ(game.mark(2), "\u25BD 2");
  EXPECT_EQ(game.mark_in_words(2), "The selected row replaces 2 files of this row.");
  form->G2_Click(2);
  form->Label29_Click();
  EXPECT_EQ(game.G2.current_row, 3);
  EXPECT_EQ(game.mark(2), "\u25BD 2");
}

TEST_F(ContentsPaneTest, ARowWhoseFilesAreAllReplacedCouldGo) {
  store("Tweaks/Fire/sky.pal", "fire");
  store("Tweaks/Fire/clouds.spt", "fire");
  store("Tweaks/Last/sky.pal", "last");
  folder.write("~Vorlund/CurrentGameSet.txt",
               "Folder group\tFolder name\r\nTweaks\tLast\r\nSky\tDusk\r\nTweaks\tFire\r\n");
  start();
  form->WhatsLoaded_Click();
  const GamePane& game = form->game;
  EXPECT_EQ(game.mark(1), "could go");
  EXPECT_EQ(game.mark_in_words(1), "Later rows replace every file of this row: it could go.");
  EXPECT_EQ(game.mark(3), "");
  EXPECT_EQ(game.mark_in_words(3), "");
  form->G2_Click(3);
  EXPECT_EQ(game.mark(1), "\u25BD 1  could go");
  EXPECT_EQ(
      game.mark_in_words(1),
      "The selected row replaces 1 file of this row.\nLater rows replace every file of this row: it could "
      "go.");
}

/// Leaves at the second file.
class Leaver : public Status {
 public:
  void progress(const Progress&) override { ++files_; }
  bool leave_wanted() override { return files_ > 1; }

 private:
  int files_ = 0;
};

TEST_F(ContentsPaneTest, ALookThatIsLeftShowsNothing) {
  Leaver leaver;
  Form1 left(files, leaver, Version{1, 0, 7});
  left.Form_Load();
  left.Contents_Click();
  EXPECT_FALSE(left.contents.ContentsFrame.visible);
  EXPECT_EQ(left.contents.line_count(), 0);
  EXPECT_NE(left.desk.status_line.caption.find("left"), std::string::npos);
}

TEST(SizeInWords, IsRoundedToOneDigitBehindThePoint) {
  EXPECT_EQ(size_in_words(1), "1 byte");
  EXPECT_EQ(size_in_words(999), "999 bytes");
  EXPECT_EQ(size_in_words(1000), "1.0 kB");
  EXPECT_EQ(size_in_words(2'149'000), "2.1 MB");
  EXPECT_EQ(size_in_words(999'950), "1.0 MB");
  EXPECT_EQ(size_in_words(3'000'000'000), "3.0 GB");
}

}  // namespace
}  // namespace vorlund
