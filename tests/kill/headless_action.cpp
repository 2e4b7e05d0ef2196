// Does one action in the current folder without a window: the program that is killed often. The action is
// "install", of the recorded game set, "install-aircraft", of the recorded aircraft set, or "clean-up".
#include <cstdio>
#include <exception>
#include <string_view>

#include "kill/marks.h"
#include "panes/form1.h"

int main(int argc, char** argv) {
  using namespace vorlund;
  const std::string_view action = argc == 2 ? argv[1] : "";
  if (action != "install" && action != "install-aircraft" && action != "clean-up") return 2;
  try {
    const std::unique_ptr<FileSystem> files = make_platform_file_system();
    Status nobody;
    Form1 form(*files, nobody, {1, 0, 60});
    form.Form_Load();
    form.WhatsLoaded_Click();
    test::mark(test::kActionBegins);
    if (action == "install") {
      form.GameLoad_Click();
    } else if (action == "install-aircraft") {
      form.Label8_Click();
    } else {
      form.CleanUp();
    }
    test::mark(test::kActionHasEnded);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "headless_action: %s\n", error.what());
    return 1;
  }
  return 0;
}
