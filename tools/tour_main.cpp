// Goes through the program's typical use in the current folder, off-screen but on Windows:
// tour SCREENSHOT-FOLDER [WIDTHxHEIGHT].
#include <QByteArray>
#include <QSize>
#include <cstdio>
#include <exception>

#include "tour.h"
#include "ui/window/application.h"

namespace {

/// The window's size from a text such as "1280x800"; an invalid size where the text is none.
QSize size_from(const QString& text) {
  const QStringList sides = text.split('x');
  return sides.size() == 2 ? QSize(sides[0].toInt(), sides[1].toInt()) : QSize();
}

}  // namespace

int main(int argc, char** argv) {
  const QSize size = size_from(argc == 3 ? argv[2] : "1280x800");
  if (argc < 2 || argc > 3 || size.isEmpty()) {
    std::fprintf(stderr, "usage: tour SCREENSHOT-FOLDER [WIDTHxHEIGHT]\n");
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
    const int first = vorlund::run_application(argc, argv, [&](vorlund::MainWindow& window) {
      vorlund::Tour(window, size, folder, next_number).use();
    });
    if (first != 0) return first;
    return vorlund::run_application(argc, argv, [&](vorlund::MainWindow& window) {
      vorlund::Tour(window, size, folder, next_number).look_again();
    });
  } catch (const std::exception& error) {
    std::fprintf(stderr, "tour: %s\n", error.what());
    return 3;
  }
}
