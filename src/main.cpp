// The program: vorlund [FOLDER], the window started inside the folder, or inside the current one.
#include <QDir>
#include <QFile>
#include <cstdio>

#include "ui/window/application.h"

int main(int argc, char** argv) {
  if (argc > 1 && !QDir::setCurrent(QFile::decodeName(argv[1]))) {
    std::fprintf(stderr, "vorlund: there is no folder \"%s\"\n", argv[1]);
    return 2;
  }
  return vorlund::run_application(argc, argv);
}
