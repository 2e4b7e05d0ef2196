// Starting programs on POSIX: detached, in their folder, Windows programs through Wine.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>

#include "base/action_error.h"
#include "disk/file_system.h"
#include "posix/posix_program.h"
#include "support/temporary_folder.h"

namespace vorlund {
namespace {

class StartProgramTest : public testing::Test {
 protected:
  StartProgramTest() { folder_.make_folder("Game"); }
  ~StartProgramTest() override { ::setenv("PATH", path_before_.c_str(), 1); }

  /// Path for calls of the system.
  std::string system_path(const std::string& name) const { return folder_.path() + "/" + name; }

  /// Makes an executable script; it works in the folder where it is started.
  void make_script(const std::string& name, const std::string& commands) {
    folder_.write(name, "#!/bin/sh\n" + commands + "\n");
    ASSERT_EQ(::chmod(system_path(name).c_str(), 0755), 0);
  }

  /// Content of a file that the started program makes, "" when it is not there after ten seconds.
  std::string awaited(const std::string& name) {
    for (int round = 0; round < 1000 && !folder_.has(name); ++round) ::usleep(10'000);
    return folder_.has(name) ? folder_.read(name) : "";
  }

  test::TemporaryFolder folder_;
  std::unique_ptr<FileSystem> files_ = make_platform_file_system();
  std::string path_before_ = std::getenv("PATH");
};

/// The beginning of a Windows program for a processor: the header stands behind a little program for DOS.
std::string windows_program(const std::string& machine) {
  std::string bytes = "MZ" + std::string(0x3A, '\0') + std::string("\x80\0\0\0", 4);
  bytes.resize(0x80, ' ');
  return bytes + std::string("PE\0\0", 4) + machine;
}

TEST_F(StartProgramTest, AProgramRunsDetachedInItsFolder) {
  make_script("Game/Fly", "pwd > started; sleep 0.2; mv started done");
  files_->start_program(folder_.path("GAME\\fly"), folder_.path("game"));
  errno = 0;
  EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
  EXPECT_EQ(errno, ECHILD);
  EXPECT_EQ(awaited("Game/done"), system_path("Game") + "\n");
}

TEST_F(StartProgramTest, AWindowsProgramIsStartedThroughWine) {
  folder_.write("Game/EAW.EXE", "MZ\x90");
  make_script("bin/wine", "printf '%s|%s|%s' \"$#\" \"$1\" \"$(pwd)\" > started && mv started done");
  ::setenv("PATH", (system_path("bin") + ":/usr/bin:/bin").c_str(), 1);
  files_->start_program(folder_.path("game\\eaw.exe"), folder_.path("game"));
  EXPECT_EQ(awaited("Game/done"), "1|" + system_path("Game/EAW.EXE") + "|" + system_path("Game"));
}

TEST_F(StartProgramTest, WineIsLookedForInTheFoldersOfThePathThatAreAbsolute) {
  folder_.write("Game/eaw.exe", "MZ\x90");
  make_script("bin/wine", "echo started > started && mv started done");
  ::setenv("PATH", ("::bin:/:" + system_path("bin") + ":/usr/bin:/bin").c_str(), 1);
  files_->start_program(folder_.path("Game\\eaw.exe"), folder_.path("Game"));
  EXPECT_EQ(awaited("Game/done"), "started\n");
}

TEST_F(StartProgramTest, AProgramIsEndedByABrokenPipeAsEver) {
  const auto before = ::signal(SIGPIPE, SIG_IGN);
  make_script("Game/fly",
              "while read name mask; do [ $name = SigIgn: ] && echo $mask > started; done < /proc/$$/status; "
              "mv started done");
  files_->start_program(folder_.path("Game\\fly"), folder_.path("Game"));
  ::signal(SIGPIPE, before);
  const std::string ignored = awaited("Game/done");
  ASSERT_NE(ignored, "");
  EXPECT_EQ(std::stoull(ignored, nullptr, 16) & (1U << (SIGPIPE - 1)), 0U) << ignored;
}

TEST_F(StartProgramTest, AProgramIsStartedFromTheCurrentFolder) {
  make_script("Game/fly", "pwd > started; mv started done");
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder_.path());
  files_->start_program("game\\FLY", "game");
  std::filesystem::current_path(before);
  EXPECT_EQ(awaited("Game/done"), system_path("Game") + "\n");
}

TEST_F(StartProgramTest, AProgramThatIsNotThereIsAnError) {
  try {
    files_->start_program(folder_.path("Game\\eaw.exe"), folder_.path("Game"));
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), folder_.path("Game\\eaw.exe"));
    EXPECT_EQ(error.reason(), "No such file or directory");
  }
}

TEST_F(StartProgramTest, WithoutWineTheErrorSaysWhatIsMissing) {
  folder_.write("Game/eaw.exe", "MZ\x90");
  ::setenv("PATH", system_path("bin").c_str(), 1);
  try {
    files_->start_program(folder_.path("Game\\eaw.exe"), folder_.path("Game"));
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.reason(), "Wine is missing, which is needed to start a Windows program");
  }
}

TEST_F(StartProgramTest, AProgramThatTheSystemRefusesIsAnError) {
  folder_.write("Game/eaw.exe", "neither a program nor a script");
  EXPECT_THROW(files_->start_program(folder_.path("Game\\eaw.exe"), folder_.path("Game")), ActionError);
  ASSERT_EQ(::chmod(system_path("Game/eaw.exe").c_str(), 0755), 0);
  EXPECT_THROW(files_->start_program(folder_.path("Game\\eaw.exe"), folder_.path("Game")), ActionError);
  make_script("Game/fly", "exit 0");
  EXPECT_THROW(files_->start_program(folder_.path("Game\\fly"), folder_.path("nothing")), ActionError);
}

TEST_F(StartProgramTest, WithoutThe32BitPartOfWineTheErrorSaysHowToInstallIt) {
  const std::string root = std::filesystem::canonical(folder_.path());
  make_script("usr/bin/wine", "exit 0");
  folder_.write("usr/lib/wine/wine64", "");
  ::setenv("PATH", system_path("usr/bin").c_str(), 1);
  const PosixCommand command = command_for("/fly.exe", windows_program("\x64\x86"), root);
  EXPECT_EQ(command.executable, system_path("usr/bin/wine"));
  EXPECT_EQ(command.arguments, (std::vector<std::string>{"wine", "/fly.exe"}));
  try {
    command_for("/fly.exe", windows_program("\x4C\x01"), root);
    ADD_FAILURE() << "no error";
  } catch (const ActionError& error) {
    EXPECT_EQ(error.path(), "/fly.exe");
    EXPECT_NE(error.reason().find("apt-get install wine32:i386"), std::string::npos) << error.reason();
  }
}

TEST_F(StartProgramTest, WithoutAPathWineIsLookedForWhereSystemsKeepTheirPrograms) {
  ::unsetenv("PATH");
  try {
    const std::string found = command_for("/fly.exe", "MZ").executable;
    EXPECT_TRUE(found == "/usr/local/bin/wine" || found == "/usr/bin/wine" || found == "/bin/wine") << found;
  } catch (const ActionError& error) {
    EXPECT_EQ(error.reason(), "Wine is missing, which is needed to start a Windows program");
  }
}

TEST(WindowsProgram, IsToldToBeA32BitOneByItsHeader) {
  EXPECT_TRUE(is_32_bit_windows_program(windows_program("\x4C\x01")));
  EXPECT_FALSE(is_32_bit_windows_program(windows_program("\x64\x86")));
  EXPECT_FALSE(is_32_bit_windows_program(windows_program("\x4C")));
  EXPECT_FALSE(is_32_bit_windows_program("MZ"));
  EXPECT_FALSE(is_32_bit_windows_program("MZ" + std::string(0x3A, '\0') + "\xFF\xFF\xFF\xFF"));
  EXPECT_FALSE(is_32_bit_windows_program(""));
}

TEST(WindowsProgram, TakesThe32BitPartOfDebiansWineWhereItIsOne) {
  const test::TemporaryFolder folder;
  const std::string root = std::filesystem::canonical(folder.path());
  for (const char* name : {"usr/bin/wine-stable", "usr/lib/wine/wine64", "opt/wine"}) folder.write(name, "");
  std::filesystem::create_symlink("wine-stable", root + "/usr/bin/wine");
  EXPECT_TRUE(lacks_32_bit_wine(root + "/usr/bin/wine", root));
  EXPECT_FALSE(lacks_32_bit_wine(root + "/opt/wine", root));
  EXPECT_FALSE(lacks_32_bit_wine(root + "/usr/bin/nothing", root));
  for (const char* part : {"/usr/lib/wine/wine", "/usr/lib/x86_64-linux-gnu/wine/i386-windows",
                           "/usr/lib/i386-linux-gnu/wine"}) {
    std::filesystem::create_directories(root + part);
    EXPECT_FALSE(lacks_32_bit_wine(root + "/usr/bin/wine", root)) << part;
    std::filesystem::remove(root + part);
  }
  std::filesystem::remove(root + "/usr/lib/wine/wine64");
  EXPECT_FALSE(lacks_32_bit_wine(root + "/usr/bin/wine", root)) << "it is another one";
}

}  // namespace
}  // namespace vorlund
