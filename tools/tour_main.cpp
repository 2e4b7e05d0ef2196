// Goes through the program's typical use in the current folder, off-screen but on Windows:
// tour SCREENSHOT-FOLDER.
#include <QByteArray>
#include <cstdio>
#include <exception>

#include "tour.h"
#include "window/application.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tour SCREENSHOT-FOLDER\n");
    return 2;
  }
#ifndef Q_OS_WIN
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  if (!folder.mkpath(".")) {
    std::fprintf(stderr, "tour: can't make the folder %s\n", argv[1]);
    return 2;
  }
  int next_number = 1;
  try {
    const int first = vorlund::run_application(
        argc, argv, [&](vorlund::MainWindow& window) { vorlund::Tour(window, folder, next_number).use(); });
    if (first != 0) return first;
    return vorlund::run_application(argc, argv, [&](vorlund::MainWindow& window) {
      vorlund::Tour(window, folder, next_number).look_again();
    });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tour: %s\n", error.what());
    return 3;
  }
}
