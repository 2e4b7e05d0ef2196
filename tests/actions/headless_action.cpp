// Does one action in the current folder without a window: the program that is killed often. Its argument is
// the name of the action. With a second argument it says "ready" once it has come to the click that acts, and
// acts when a line comes in. What the status line says is written to standard output at the end.
#include <cstdio>
#include <exception>

#include "actions/actions.h"
#include "actions/marks.h"

int main(int argc, char** argv) {
  using namespace vorlund;
  const test::ActionOfProgram* action = argc > 1 ? test::action_of_name(argv[1]) : nullptr;
  if (action == nullptr) return 2;
  try {
    const std::unique_ptr<FileSystem> files = make_platform_file_system();
    Status nobody;
    Form1 form(*files, nobody, {1, 0, 60});
    test::prepare(*action, form);
    if (argc > 2) {
      std::puts("ready");
      std::fflush(stdout);
      std::getchar();
    }
    test::mark(test::kActionBegins);
    test::act(*action, form);
    test::mark(test::kActionHasEnded);
    if (argc > 2) std::puts(form.desk.status_line.caption.c_str());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "headless_action: %s\n", error.what());
    return 1;
  }
  return 0;
}
