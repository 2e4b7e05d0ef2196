// What the user of the real program gets when an action fails: a window, standard error, and an exit code.
#include <gtest/gtest.h>

#include <QProcess>
#include <QString>
#include <functional>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

#include "support/temporary_folder.h"

namespace vorlund::test {
namespace {

struct Ending {
  int exit_code;
  std::string output;
  std::string errors;
};

/// `prepare` runs in the program's process before it begins.
Ending run_in(const TemporaryFolder& folder, const QStringList& arguments,
              const std::function<void()>& prepare = {}) {
  QProcess program;
#ifndef Q_OS_WIN
  if (prepare) program.setChildProcessModifier(prepare);
#else
  EXPECT_FALSE(prepare);
#endif
  program.setWorkingDirectory(QString::fromStdString(folder.path()));
  program.start(ERROR_REPORT_PROGRAM, arguments);
  EXPECT_TRUE(program.waitForFinished(60'000));
  return {program.exitStatus() == QProcess::NormalExit ? program.exitCode() : -1,
          program.readAllStandardOutput().toStdString(), program.readAllStandardError().toStdString()};
}

void make_game(const TemporaryFolder& folder) {
  folder.make_folder("Savedata");
  folder.write("~Vorlund/GameStore/Sky/Dusk/a.dat", "a");
  folder.write("~Vorlund/GameStore/Sky/Dusk/b.dat", "b");
  folder.write("~Vorlund/CurrentGameSet.txt", "Folder group\tFolder name\r\nSky\tDusk\r\n");
}

TEST(ErrorReport, OfAnInstallationIsSeenAndTheProgramEndsWithANonZeroExitCode) {
  const TemporaryFolder folder;
  make_game(folder);
  folder.make_folder("b.dat");
  const Ending ending = run_in(folder, {"process"});
  EXPECT_EQ(ending.exit_code, 1) << ending.errors;
  EXPECT_NE(ending.output.find("window: Could not write"), std::string::npos) << ending.output;
  EXPECT_NE(ending.output.find("b.dat"), std::string::npos) << ending.output;
  EXPECT_NE(ending.errors.find("vorlund: Could not write"), std::string::npos) << ending.errors;
  EXPECT_EQ(folder.read("a.dat"), "a") << "what was done before stays";
}

TEST(ErrorReport, OfStartUpIsSeenToo) {
  const TemporaryFolder folder;
  make_game(folder);
  folder.make_folder("~Vorlund/SkinStore/SkinList.txt");
  const Ending ending = run_in(folder, {});
  EXPECT_EQ(ending.exit_code, 1) << ending.errors;
  EXPECT_NE(ending.output.find("SkinList.txt\": it is a folder"), std::string::npos) << ending.output;
}

#ifndef Q_OS_WIN

TEST(ErrorReport, IsSeenAlsoWhereNobodyReadsStandardError) {
  const TemporaryFolder folder;
  make_game(folder);
  folder.make_folder("b.dat");
  const Ending ending = run_in(folder, {"process"}, [] {
    int ends[2];
    if (::pipe(ends) != 0 || ::dup2(ends[1], STDERR_FILENO) < 0) ::_exit(2);
    ::close(ends[0]);
    ::close(ends[1]);
  });
  EXPECT_EQ(ending.exit_code, 1);
  EXPECT_NE(ending.output.find("window: Could not write"), std::string::npos) << ending.output;
}

TEST(ErrorReport, IsSeenAlsoWhereStandardErrorIsClosed) {
  const TemporaryFolder folder;
  make_game(folder);
  folder.make_folder("b.dat");
  const Ending ending = run_in(folder, {"process"}, [] { ::close(STDERR_FILENO); });
  EXPECT_EQ(ending.exit_code, 1);
  EXPECT_NE(ending.output.find("window: Could not write"), std::string::npos) << ending.output;
}

TEST(ErrorReport, NeverGoesIntoAFileWhereStandardErrorIsClosed) {
  const TemporaryFolder folder;
  make_game(folder);
  const Ending ending = run_in(folder, {"streams"}, [] {
    ::close(STDIN_FILENO);
    ::close(STDERR_FILENO);
  });
  EXPECT_EQ(ending.exit_code, 0);
  EXPECT_NE(ending.output.find("0: /dev/null\n"), std::string::npos) << ending.output;
  EXPECT_NE(ending.output.find("2: /dev/null\n"), std::string::npos) << ending.output;
}

#endif

TEST(ErrorReport, IsNotSeenWhenAllGoesWell) {
  const TemporaryFolder folder;
  make_game(folder);
  const Ending ending = run_in(folder, {"process"});
  EXPECT_EQ(ending.exit_code, 0) << ending.errors;
  EXPECT_EQ(ending.output, "");
  EXPECT_EQ(folder.read("b.dat"), "b");
}

}  // namespace
}  // namespace vorlund::test
