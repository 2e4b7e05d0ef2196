// Patching a file at positions: read whole, patched in memory, replaced whole.
#include "disk/patch_file.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "base/action_error.h"
#include "support/faulty_file_system.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::string_literals;
using Log = std::vector<std::string>;

/// Patches a file in one step.
void patch_file(FileSystem& files, const std::string& path, const std::function<void(PatchedBytes&)>& patch) {
  PatchedFile file(files, path);
  file.patch([&] { patch(file.open()); });
}

class PatchFileTest : public testing::Test {
 protected:
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> disk_ = make_platform_file_system();
  test::RecordingFileSystem files_{*disk_};
  std::string path_ = folder_.path("Planes.dat");
};

TEST_F(PatchFileTest, BytesArePatchedInPlaceAndTheFileIsWrittenOnce) {
  folder_.write("Planes.dat", "0123456789");
  patch_file(files_, path_, [](PatchedBytes& bytes) {
    bytes.put(2, std::uint8_t{0xFF});
    bytes.put(8, "ab");
  });
  EXPECT_EQ(folder_.read("Planes.dat"),
            "01\xFF"
            "34567ab");
  EXPECT_EQ(files_.changes(), Log{"replace " + path_ + " (flushed)"});
}

TEST_F(PatchFileTest, WritingPastTheEndFillsTheGapWithZeros) {
  folder_.write("Planes.dat", "ab");
  patch_file(files_, path_, [](PatchedBytes& bytes) { bytes.put(4, "cd"); });
  EXPECT_EQ(folder_.read("Planes.dat"), "ab\0\0cd"s);
}

TEST_F(PatchFileTest, MemoryThatDoesNotSufficeIsAnErrorThatNamesTheFileAndChangesNothing) {
  folder_.write("Planes.dat", "ab");
  try {
    patch_file(files_, path_, [](PatchedBytes& bytes) {
      bytes.put(0, "x");
      throw std::bad_alloc();
    });
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), path_);
    EXPECT_EQ(error.reason(), kOutOfMemory);
  }
  EXPECT_EQ(folder_.read("Planes.dat"), "ab");
}

TEST_F(PatchFileTest, AnEmptyRunChangesNothing) {
  folder_.write("Planes.dat", "ab");
  patch_file(files_, path_, [](PatchedBytes& bytes) { bytes.put(1'000'000, ""); });
  EXPECT_EQ(folder_.read("Planes.dat"), "ab");
  EXPECT_EQ(files_.changes(), Log());
}

TEST_F(PatchFileTest, AnUnchangedFileIsNotWritten) {
  folder_.write("Planes.dat", "same");
  patch_file(files_, path_, [](PatchedBytes& bytes) { bytes.put(0, "sa"); });
  EXPECT_EQ(files_.changes(), Log());
}

TEST_F(PatchFileTest, AMissingFileIsMade) {
  patch_file(files_, path_, [](PatchedBytes&) {});
  EXPECT_EQ(folder_.read("Planes.dat"), "");
}

TEST_F(PatchFileTest, AnErrorHalfWayKeepsWhatWasPatchedUpToThere) {
  folder_.write("Planes.dat", "0123");
  const auto patch = [](PatchedBytes& bytes) {
    bytes.put(0, "AB");
    throw std::out_of_range("line 3");
  };
  EXPECT_THROW(patch_file(files_, path_, patch), std::out_of_range);
  EXPECT_EQ(folder_.read("Planes.dat"), "AB23");
}

TEST_F(PatchFileTest, AFileThatCannotBeSeenIsNotTakenForMissing) {
  test::FaultyFileSystem faulty(*disk_);
  folder_.write("PLANES.DAT", "0123");
  for (const test::FaultKind kind : {test::FaultKind::kError, test::FaultKind::kNoRight}) {
    faulty.arm({1, kind});
    EXPECT_THROW(patch_file(faulty, path_, [](PatchedBytes& bytes) { bytes.put(0, "A"); }), ActionError);
    EXPECT_EQ(folder_.read("PLANES.DAT"), "0123");
  }
}

TEST_F(PatchFileTest, SeveralStepsReadAndWriteTheFileOnce) {
  folder_.write("Planes.dat", "0123");
  PatchedFile file(files_, path_);
  file.patch([&] {
    file.open().put(0, "A");
    file.open().put(3, "D");
  });
  EXPECT_EQ(folder_.read("Planes.dat"), "A12D");
  EXPECT_EQ(files_.changes(), Log{"replace " + path_ + " (flushed)"});
}

TEST_F(PatchFileTest, StepsThatNeverOpenTheFileNeitherReadNorMakeIt) {
  PatchedFile file(files_, path_);
  file.patch([] {});
  EXPECT_EQ(files_.log(), Log());
}

TEST_F(PatchFileTest, AFileThatCannotBeReplacedIsAnError) {
  folder_.make_folder("Planes.dat");
  EXPECT_THROW(patch_file(files_, path_, [](PatchedBytes&) {}), ActionError);
}

}  // namespace
}  // namespace vorlund
