// The clean-up's work on files: careers go home first, then the masks decide.
#include "gamesets/clean_up.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "base/action_error.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

class CleanUpFiles : public ::testing::Test {
 protected:
  CleanUpFiles() {
    folder.make_folder("Savedata");
    folder.make_folder("~Vorlund");
  }

  CleanUpSummary clean(const std::vector<std::pair<std::string, std::string>>& rows) {
    GameTable table;
    for (const auto& [group, name] : rows) table.add_row({group, name});
    return clean_game_directory(game, status, table);
  }

  test::TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
};

TEST_F(CleanUpFiles, MoveCareerSavesIntoTheFolderOfTheLastCareersRow) {
  folder.make_folder("~Vorlund/GameStore/Careers/Camp1");
  folder.write("~Vorlund/GameStore/Careers/Camp2/c1.sve", "older");
  folder.write("Savedata/c1.sve", "career one");
  folder.write("Savedata/CAREER.SVE", "career two");
  folder.write("Savedata/m1.sve", "no career");
  EXPECT_EQ(clean({{"Careers", "Camp1"}, {"Careers", "Camp2"}, {"Sky", "Dusk"}}).careers, 2U);
  EXPECT_EQ(folder.read("~Vorlund/GameStore/Careers/Camp2/c1.sve"), "career one");
  EXPECT_EQ(folder.read("~Vorlund/GameStore/Careers/Camp2/CAREER.SVE"), "career two");
  EXPECT_EQ(folder.names("Savedata"), (std::vector<std::string>{"m1.sve"}));
  EXPECT_TRUE(folder.names("~Vorlund/GameStore/Careers/Camp1").empty());
}

TEST_F(CleanUpFiles, LeaveCareerSavesWhereTheyAreWithoutACareersRow) {
  folder.make_folder("~Vorlund/GameStore/Careers/Camp1");
  folder.write("Savedata/c1.sve", "career");
  clean({{"careers", "Camp1"}, {"Career", "Camp1"}});
  EXPECT_EQ(folder.read("Savedata/c1.sve"), "career");
}

TEST_F(CleanUpFiles, EndWithAnErrorBeforeASaveIsTouchedWhereTheCareerFolderIsMissing) {
  folder.write("Savedata/c1.sve", "career");
  folder.write("loose.dat", "loose");
  for (const char* name : {"Gone", "..", "..\\..", "a/b", "c:"}) {
    EXPECT_THROW(clean({{"Careers", name}}), ActionError) << name;
    EXPECT_EQ(folder.read("Savedata/c1.sve"), "career") << name;
    EXPECT_EQ(folder.read("loose.dat"), "loose") << name;
  }
}

TEST_F(CleanUpFiles, BringSavesToTheCareersGroupItselfWhereTheCareersRowIsCleared) {
  folder.make_folder("~Vorlund/GameStore/Careers");
  folder.write("Savedata/c1.sve", "career");
  clean({{"Careers", ""}});
  EXPECT_EQ(folder.read("~Vorlund/GameStore/Careers/c1.sve"), "career");
}

TEST_F(CleanUpFiles, BringSavesToTheCareersGroupItselfWhereTheLastOfTwoCareersRowsIsCleared) {
  folder.make_folder("~Vorlund/GameStore/Careers/Camp1");
  folder.write("Savedata/c1.sve", "career");
  clean({{"Careers", "Camp1"}, {"Careers", ""}});
  EXPECT_EQ(folder.read("~Vorlund/GameStore/Careers/c1.sve"), "career");
  EXPECT_TRUE(folder.names("~Vorlund/GameStore/Careers/Camp1").empty());
}

TEST_F(CleanUpFiles, DeleteWhatTheMasksNameAndNothingElse) {
  const std::vector<std::string> deleted = {
      "planes.dat", "PNAMES.STR", "picplnb.mnu", "readme.txt", "mypic", "PlanePic", "skinpic",
      "a.bat",      "a.bgm",      "a.smk",       "a.fnt",      "a.wsd", "a.fsp",    "a.pal",
      "a.bak",      "a.tco",      "a.pco",       "a.bco",      "a.hm",  "a.jpg",    "a.PCX",
      "a.mpc",      "a.wsp",      "a.pic",       "a.spt",      "a.ter", "a.tm",     "a.tpc",
      "a.flt",      "a.3dz",      "a.snd",       "a.bil",      "a.bin", "a.cpt"};
  const std::vector<std::string> kept = {"eaw.exe",  "hof.dat", "Chatline.txt", "dsg.ico", "EXTRA.spt",
                                         "data.cdf", "mypic2",  "a.msn",        "a.sve",   "noextension"};
  for (const std::vector<std::string>& names : {deleted, kept}) {
    for (const std::string& name : names) folder.write(name, "x");
  }
  folder.write("Savedata/a.dat", "x");
  folder.write("Music/a.bgm", "x");
  EXPECT_EQ(clean({}).deleted, deleted.size());
  for (const std::string& name : deleted) EXPECT_FALSE(folder.has(name)) << name;
  for (const std::string& name : kept) EXPECT_TRUE(folder.has(name)) << name;
  EXPECT_TRUE(folder.has("Savedata/a.dat"));
  EXPECT_TRUE(folder.has("Music/a.bgm"));
}

TEST_F(CleanUpFiles, AreLeftAloneInAFolderThatHasNoStore) {
  const test::TemporaryFolder home;
  home.write("letter.txt", "x");
  home.write("photo.jpg", "x");
  game.directory = home.path();
  try {
    clean({});
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), home.path());
    EXPECT_NE(error.reason().find("~Vorlund"), std::string::npos);
  }
  EXPECT_EQ(home.names(), (std::vector<std::string>{"letter.txt", "photo.jpg"}));
}

TEST_F(CleanUpFiles, AreThoseOfTheGameDirectoryOfTheMoment) {
  const test::TemporaryFolder other;
  other.make_folder("~Vorlund/GameStore/Careers/Camp1");
  other.write("Savedata/c2.sve", "of the other");
  other.write("Savedata/Default2.msn", "x");
  folder.write("Savedata/c1.sve", "of the first");
  folder.write("Savedata/Default1.msn", "x");
  game.directory = other.path();
  EXPECT_EQ(clean({{"Careers", "Camp1"}}).careers, 1u);
  EXPECT_EQ(other.read("~Vorlund/GameStore/Careers/Camp1/c2.sve"), "of the other");
  EXPECT_EQ(delete_default_missions(game), 1u);
  EXPECT_TRUE(other.names("Savedata").empty());
  EXPECT_EQ(folder.names("Savedata"), (std::vector<std::string>{"Default1.msn", "c1.sve"}));
}

TEST_F(CleanUpFiles, DeleteTheDefaultMissions) {
  for (const char* name : {"DEFAULT1.MSN", "default.msn", "Other.msn", "Default.sve"}) {
    folder.write(std::string("Savedata/") + name, "x");
  }
  EXPECT_EQ(delete_default_missions(game), 2U);
  EXPECT_EQ(folder.names("Savedata"), (std::vector<std::string>{"Default.sve", "Other.msn"}));
  EXPECT_EQ(delete_default_missions(game), 0U);
}

TEST(CleanUpSentence, TellsOfWhatThereWas) {
  CleanUpSummary summary;
  EXPECT_EQ(summary.sentence(), "There was nothing to clean up");
  summary.deleted = 1;
  EXPECT_EQ(summary.sentence(), "1 loose file deleted");
  summary.careers = 2;
  summary.home = "Camp1";
  EXPECT_EQ(summary.sentence(), "2 career saves brought home to Camp1; 1 loose file deleted");
  summary.deleted = 0;
  EXPECT_EQ(summary.sentence(), "2 career saves brought home to Camp1");
}

}  // namespace
}  // namespace vorlund
