// Does one action in the current folder by clicks on the real window: "install", of the recorded game set, or
// "clean-up".
#include <cstdio>
#include <exception>
#include <string_view>

#include "hand.h"
#include "kill/marks.h"
#include "ui/window/application.h"
#include "ui/window/main_window.h"

namespace {

void click(vorlund::MainWindow& window, std::string_view action) {
  vorlund::Hand hand(window);
  if (action == "install") hand.click("WhatsLoaded");
  vorlund::test::mark(vorlund::test::kActionBegins);
  hand.click(action == "install" ? "GameLoad" : "Label5");
  vorlund::test::mark(vorlund::test::kActionHasEnded);
  hand.click("ExitButton");
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view action = argc == 2 ? argv[1] : "";
  if (action != "install" && action != "clean-up") return 2;
  try {
    return vorlund::run_application(argc, argv,
                                    [action](vorlund::MainWindow& window) { click(window, action); });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "window_action: %s\n", error.what());
    return 1;
  }
}
