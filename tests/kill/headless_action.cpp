// Does one action in the current folder without a window: the program that is killed often. The action is
// "install", of the recorded game set, "install-aircraft", of the recorded aircraft set, or "clean-up". With
// a second argument it says "ready" once it has started, and acts when a line comes in. What the status line
// says is written to standard output at the end.
#include <cstdio>
#include <exception>
#include <string_view>

#include "kill/marks.h"
#include "panes/form1.h"

int main(int argc, char** argv) {
  using namespace vorlund;
  const std::string_view action = argc > 1 ? argv[1] : "";
  if (action != "install" && action != "install-aircraft" && action != "clean-up") return 2;
  try {
    const std::unique_ptr<FileSystem> files = make_platform_file_system();
    Status nobody;
    Form1 form(*files, nobody, {1, 0, 60});
    form.Form_Load();
    form.WhatsLoaded_Click();
    if (argc > 2) {
      std::puts("ready");
      std::fflush(stdout);
      std::getchar();
    }
    test::mark(test::kActionBegins);
    if (action == "install") {
      form.GameLoad_Click();
    } else if (action == "install-aircraft") {
      form.Label8_Click();
    } else {
      form.CleanUp();
    }
    test::mark(test::kActionHasEnded);
    if (argc > 2) std::puts(form.desk.status_line.caption.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "headless_action: %s\n", error.what());
    return 1;
  }
  return 0;
}
