// Files and folders on several disks, and a disk that lets files share their blocks.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>

#include "disk/file_system.h"
#include "support/left_over.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

/// A folder on the disk that Linux keeps in memory, beside one on another disk.
class TwoDisks : public testing::Test {
 protected:
  void SetUp() override {
    struct stat here {};
    struct stat there {};
    std::filesystem::create_directory(other_disk_);
    ASSERT_EQ(::stat(folder_.path().c_str(), &here), 0);
    ASSERT_EQ(::stat(other_disk_.c_str(), &there), 0);
    if (here.st_dev == there.st_dev) GTEST_SKIP() << "/dev/shm is no other disk here";
  }
  void TearDown() override { std::filesystem::remove_all(other_disk_); }

  const std::string other_disk_ = "/dev/shm/vorlund two disks " + std::to_string(::getpid());
  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(TwoDisks, FilesCopyFromOneToTheOther) {
  const std::string source = other_disk_ + "/source";
  const std::string bytes(3'000'000, 'x');
  files_->replace_file(source, bytes, Durability::kCached);
  EXPECT_EQ(files_->copy_file(source, folder_.path("copy"), Durability::kCached), CopyOutcome::kWritten);
  EXPECT_TRUE(folder_.read("copy") == bytes);
  EXPECT_EQ(files_->copy_file(source, folder_.path("copy"), Durability::kCached), CopyOutcome::kUnchanged);
}

TEST_F(TwoDisks, AFolderOfTheOneDoesNotLieInTheOther) {
  folder_.make_folder("Store");
  EXPECT_FALSE(files_->lies_inside(folder_.path("Store"), other_disk_));
  EXPECT_FALSE(files_->lies_inside(other_disk_, folder_.path()));
}

TEST_F(TwoDisks, AStagingFolderOnTheOtherServesNot) {
  const std::string left_over = test::left_over_name();
  files_->replace_file(other_disk_ + "\\" + left_over, "would be swept", Durability::kCached);
  folder_.write("source", "new");
  {
    const FileSystem::Action action(*files_, {}, other_disk_);
    files_->copy_file(folder_.path("source"), folder_.path("copy"), Durability::kCached);
  }
  EXPECT_EQ(folder_.read("copy"), "new");
  EXPECT_EQ(files_->read_file(other_disk_ + "\\" + left_over), "would be swept");
}

/// On whatever disk the folder of temporary files is.
class Holes : public testing::Test {
 protected:
  std::string system_path(const char* name) const { return folder_.path() + "/" + name; }

  /// Bytes that the file takes on the disk.
  std::int64_t room_of(const char* name) const {
    struct stat status {};
    EXPECT_EQ(::stat(system_path(name).c_str(), &status), 0) << name;
    return std::int64_t{status.st_blocks} * 512;
  }

  /// Makes a file of a size that holds bytes at some offsets, and nothing between.
  void make_source(off_t size, const std::vector<off_t>& offsets) const {
    const int file = ::open(system_path("source").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
    ASSERT_GE(file, 0);
    const std::string bytes(4096, 'x');
    for (const off_t offset : offsets) ASSERT_EQ(::pwrite(file, bytes.data(), bytes.size(), offset), 4096);
    ASSERT_EQ(::ftruncate(file, size), 0);
    ASSERT_EQ(::close(file), 0);
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(Holes, StayHolesInACopy) {
  constexpr off_t kSize = 64 << 20;
  for (const std::vector<off_t>& offsets :
       {std::vector<off_t>{kSize - 4096}, {0}, {}, {0, 20 << 20, (20 << 20) + 65536, kSize - 4096}, {5000}}) {
    make_source(kSize, offsets);
    if (room_of("source") > kSize / 2) GTEST_SKIP() << "the disk here knows no holes";
    EXPECT_EQ(files_->copy_file(system_path("source"), system_path("copy"), Durability::kFlushed),
              CopyOutcome::kWritten);
    EXPECT_LE(room_of("copy"), 1 << 20);
    EXPECT_TRUE(folder_.read("copy") == folder_.read("source"));
    EXPECT_EQ(files_->copy_file(system_path("source"), system_path("copy"), Durability::kFlushed),
              CopyOutcome::kUnchanged);
  }
}

/// A btrfs in an image file, mounted meanwhile.
class SharedBlocks : public testing::Test {
 protected:
  void SetUp() override {
    std::filesystem::create_directory(disk_);
    const std::string quiet = " >/dev/null 2>&1";
    const bool mounted = ::geteuid() == 0 &&
                         std::system(("truncate -s 256M '" + image_ + "'").c_str()) == 0 &&
                         std::system(("mkfs.btrfs -q '" + image_ + "'" + quiet).c_str()) == 0 &&
                         std::system(("mount -o loop '" + image_ + "' '" + disk_ + "'" + quiet).c_str()) == 0;
    if (!mounted) GTEST_SKIP() << "no btrfs can be made and mounted here, for which root is needed";
    mounted_ = true;
  }
  void TearDown() override {
    if (!mounted_) return;
    EXPECT_EQ(::umount2(disk_.c_str(), MNT_DETACH), 0);
  }

  /// Bytes that are free on the disk, once everything is written out.
  std::uint64_t room() const {
    const int disk = ::open(disk_.c_str(), O_RDONLY | O_DIRECTORY);
    EXPECT_EQ(::syncfs(disk), 0);
    ::close(disk);
    struct statvfs status {};
    EXPECT_EQ(::statvfs(disk_.c_str(), &status), 0);
    return status.f_bfree * status.f_frsize;
  }

  test::TemporaryFolder folder_;
  const std::string image_ = folder_.path() + "/image";
  const std::string disk_ = folder_.path() + "/disk";
  bool mounted_ = false;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
};

TEST_F(SharedBlocks, ACopyTakesNoRoomOfItsOwn) {
  constexpr std::uint64_t kSize = 40 << 20;
  const std::string bytes(kSize, 'x');
  files_->replace_file(disk_ + "\\source", bytes, Durability::kFlushed);
  const std::uint64_t before = room();
  EXPECT_EQ(files_->copy_file(disk_ + "\\source", disk_ + "\\copy", Durability::kFlushed),
            CopyOutcome::kWritten);
  EXPECT_GT(room() + kSize / 4, before);
  EXPECT_TRUE(files_->read_file(disk_ + "\\copy") == bytes);

  files_->replace_file(disk_ + "\\source", "other", Durability::kFlushed);
  EXPECT_TRUE(files_->read_file(disk_ + "\\copy") == bytes) << "the copy is a file of its own";
}

}  // namespace
}  // namespace vorlund
