// Installs the recorded game set of the current folder without a window: the program that is killed often.
#include <cstdio>
#include <exception>

#include "kill/marks.h"
#include "ui/form1.h"

int main() {
  using namespace vorlund;
  try {
    const std::unique_ptr<FileSystem> files = make_platform_file_system();
    Status nobody;
    Form1 form(*files, nobody, {1, 0, 60});
    form.Form_Load();
    form.WhatsLoaded_Click();
    test::mark(test::kInstallBegins);
    form.game.GameLoad_Click();
    test::mark(test::kInstallHasEnded);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "headless_install: %s\n", error.what());
    return 1;
  }
  return 0;
}
