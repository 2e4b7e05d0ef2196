// Installs the recorded game set of the current folder by clicks on the real window.
#include <cstdio>
#include <exception>

#include "hand.h"
#include "kill/marks.h"
#include "ui/window/application.h"
#include "ui/window/main_window.h"

namespace {

void install(vorlund::MainWindow& window) {
  vorlund::Hand hand(window);
  hand.click("WhatsLoaded");
  vorlund::test::mark(vorlund::test::kInstallBegins);
  hand.click("GameLoad");
  vorlund::test::mark(vorlund::test::kInstallHasEnded);
  hand.click("ExitButton");
}

}  // namespace

int main(int argc, char** argv) {
  try {
    return vorlund::run_application(argc, argv, install);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "window_install: %s\n", error.what());
    return 1;
  }
}
