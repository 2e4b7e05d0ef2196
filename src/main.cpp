// The program: the window library and nothing else.
#include "ui/window/application.h"

int main(int argc, char** argv) {
  return vorlund::run_application(argc, argv);
}
