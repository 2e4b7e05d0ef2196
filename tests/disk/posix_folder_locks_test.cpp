// Locks on folders between POSIX processes: held by another one, killed, started by this one.
#include "posix/posix_folder_locks.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <optional>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

using namespace std::chrono_literals;

class PosixFolderLocksTest : public testing::Test {
 protected:
  PosixFolderLocksTest() { folder_.make_folder("Game"); }

  std::string system_path(const std::string& name) const { return folder_.path() + "/" + name; }

  std::string in_use(const std::string& name, std::chrono::milliseconds wait = 0ms) {
    return make_platform_file_system()->lock_folders({folder_.path(name)}, wait).in_use();
  }

  test::TemporaryFolder folder_;
};

/// A process that holds a folder until it is killed.
class Holder {
 public:
  explicit Holder(const std::string& path) {
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    process_ = ::fork();
    if (process_ == 0) {
      const auto files = make_platform_file_system();
      const FolderLocks locks = files->lock_folders({path}, 0ms);
      const char held = locks.in_use().empty() ? 'h' : 'u';
      if (::write(ends[1], &held, 1) != 1) ::_exit(1);
      for (;;) ::pause();
    }
    char answer = 0;
    EXPECT_EQ(::read(ends[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'h');
    ::close(ends[0]);
    ::close(ends[1]);
  }
  ~Holder() { kill(); }
  Holder(const Holder&) = delete;
  Holder& operator=(const Holder&) = delete;

  void kill() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_ = 0;
};

TEST_F(PosixFolderLocksTest, WhatAnotherProgramHoldsIsFreeWhenItIsKilled) {
  Holder holder(folder_.path("GAME"));
  EXPECT_EQ(in_use("Game"), folder_.path("Game"));
  EXPECT_EQ(in_use("game", 50ms), folder_.path("game"));
  holder.kill();
  EXPECT_EQ(in_use("Game"), "");
  EXPECT_EQ(folder_.names(), std::vector<std::string>{"Game"});
}

TEST_F(PosixFolderLocksTest, AFolderThatIsReachedThroughALinkIsTheSame) {
  ASSERT_EQ(::symlink("Game", system_path("Link").c_str()), 0);
  ASSERT_EQ(::symlink("nowhere", system_path("Broken").c_str()), 0);
  const auto files = make_platform_file_system();
  const FolderLocks locks = files->lock_folders(
      {folder_.path("Game"), folder_.path("link"), folder_.path("Broken"), folder_.path("Game\\..\\Game")},
      0ms);
  EXPECT_EQ(locks.in_use(), "");
  EXPECT_EQ(in_use("Link"), folder_.path("Link"));
}

TEST_F(PosixFolderLocksTest, AStartedProgramHasNoPartInALock) {
  folder_.write("Game/fly",
                "#!/bin/sh\ntouch started\nwhile [ ! -e end ]; do sleep 0.05; done\ntouch ended\n");
  ASSERT_EQ(::chmod(system_path("Game/fly").c_str(), 0755), 0);
  const auto files = make_platform_file_system();
  {
    const FolderLocks locks = files->lock_folders({folder_.path("Game")}, 0ms);
    files->start_program(folder_.path("Game\\fly"), folder_.path("Game"));
  }
  for (int round = 0; round < 1000 && !folder_.has("Game/started"); ++round) ::usleep(10'000);
  ASSERT_TRUE(folder_.has("Game/started"));
  EXPECT_EQ(in_use("Game"), "");
  EXPECT_FALSE(folder_.has("Game/ended"));
  folder_.write("Game/end", "");
  for (int round = 0; round < 1000 && !folder_.has("Game/ended"); ++round) ::usleep(10'000);
  EXPECT_TRUE(folder_.has("Game/ended"));
}

TEST_F(PosixFolderLocksTest, WhatIsLetGoIsFreeThoughAChildStillHasTheDescriptor) {
  const auto files = make_platform_file_system();
  std::optional<FolderLocks> locks = files->lock_folders({folder_.path("Game")}, 0ms);
  const pid_t child = ::fork();
  if (child == 0) {
    for (;;) ::pause();
  }
  locks.reset();
  EXPECT_EQ(in_use("Game"), "");
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
}

/// What a disk answers that refuses to lock folders, a descriptor for the place alone answers everywhere.
TEST_F(PosixFolderLocksTest, AFolderThatCannotBeLockedIsToldFromOneInUse) {
  PosixFolderLock lock(folder_.path("Game"),
                       open_at(AT_FDCWD, system_path("Game").c_str(), O_PATH | O_DIRECTORY));
  EXPECT_EQ(lock.take(), FolderLock::Outcome::kNoLocks);
}

TEST_F(PosixFolderLocksTest, ALinkThatLeadsInCirclesIsNoFolder) {
  ASSERT_EQ(::symlink("Circle", system_path("Circle").c_str()), 0);
  EXPECT_EQ(in_use("Circle"), "");
  EXPECT_EQ(in_use(std::string(300, 'x')), "");
}

TEST_F(PosixFolderLocksTest, AFolderThatCannotBeOpenedIsAnErrorThatNamesIt) {
#ifdef __SANITIZE_ADDRESS__
  GTEST_SKIP() << "the sanitizers' own checks need descriptors";
#endif
  rlimit before{};
  ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &before), 0);
  rlimit none = before;
  none.rlim_cur = 0;
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
  try {
    in_use("Game");
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), folder_.path("Game"));
  }
  ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &before), 0);
}

}  // namespace
}  // namespace vorlund
