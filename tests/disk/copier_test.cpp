// Copies within an action: which of them are flushed to the disk.
#include "disk/copier.h"

#include <gtest/gtest.h>

#include "support/recording_file_system.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

constexpr const char* kFlushedNames[] = {
    "eaw.exe",     "EAW.EXE",     "Planes.dat",  "PLANES.DAT", "loadout.dat", "LoadOut.Dat", "pnames.str",
    "picplnb.mnu", "PicPlnA.mnu", "PICPLNG.MNU", "c001.sve",   "C900.SVE",    ".sve"};
constexpr const char* kOtherNames[] = {
    "eaw.ex",    "eaw.exe.bak", "myeaw.exe", "Planes.dat ",  "planes.da", "xplanes.dat", "picplnc.mnu",
    "c001.sve2", "pnames",      "sky.pal",   "loadout2.dat", "Planes",    "contents.txt"};

TEST(MustBeFlushed, WhatAPowerCutMustLeaveWholeInAnySpelling) {
  for (const char* name : kFlushedNames) {
    EXPECT_TRUE(must_be_flushed(name)) << name;
    EXPECT_TRUE(must_be_flushed(std::string("C:\\Games\\") + name)) << name;
  }
}

TEST(MustBeFlushed, NothingElse) {
  for (const char* name : kOtherNames) EXPECT_FALSE(must_be_flushed(name)) << name;
  EXPECT_FALSE(must_be_flushed(""));
  EXPECT_FALSE(must_be_flushed("C:\\Planes.dat\\sky.pal"));
}

TEST(Copier, FlushesTheseCopiesAlone) {
  const test::TemporaryFolder folder;
  folder.write("Set\\PLANES.DAT", "records");
  folder.write("Set\\sky.pal", "colours");
  folder.make_folder("Game\\~Vorlund");
  const auto disk = make_platform_file_system();
  test::RecordingFileSystem files(*disk);
  test::RecordingStatus status;
  {
    Copier copier({files, folder.path("Game")}, status);
    for (const std::string name : {"PLANES.DAT", "sky.pal"}) {
      copier.copy(folder.path("Set\\" + name), folder.path("Game\\" + name));
    }
    EXPECT_EQ(copier.copied(), 2U);
  }
  EXPECT_EQ(
      files.changes(),
      (std::vector<std::string>{
          "copy " + folder.path("Set\\PLANES.DAT") + " -> " + folder.path("Game\\PLANES.DAT") + " (flushed)",
          "copy " + folder.path("Set\\sky.pal") + " -> " + folder.path("Game\\sky.pal")}));
}

}  // namespace
}  // namespace vorlund
