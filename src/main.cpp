// The program: the window, started inside the game's folder.
#include "window/application.h"

int main(int argc, char** argv) {
  return vorlund::run_application(argc, argv);
}
