// The real program, off-screen, with a hand that closes its error report; "process" installs the game set
// first, "streams" tells where the standard streams lead.
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <array>
#include <cstdio>
#include <string>
#include <string_view>

#ifndef Q_OS_WIN
#include <unistd.h>
#endif

#include "window/application.h"
#include "window/main_window.h"

namespace {

void close_reports() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* box = qobject_cast<QMessageBox*>(widget);
    if (box == nullptr || !box->isVisible()) continue;
    std::printf("window: %s\n", box->informativeText().toUtf8().constData());
    box->accept();
  }
}

void watch_for_reports() {
  auto* timer = new QTimer(QCoreApplication::instance());
  QObject::connect(timer, &QTimer::timeout, close_reports);
  timer->start(20);
}

void tell_streams() {
#ifndef Q_OS_WIN
  for (const int descriptor : {0, 1, 2}) {
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    std::array<char, 4096> path{};
    const auto length = ::readlink(link.c_str(), path.data(), path.size() - 1);
    std::printf("%d: %s\n", descriptor, length < 0 ? "closed" : path.data());
  }
#endif
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch_for_reports)

int main(int argc, char** argv) {
#ifndef Q_OS_WIN
  qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  const bool process = argc > 1 && std::string_view(argv[1]) == "process";
  const bool streams = argc > 1 && std::string_view(argv[1]) == "streams";
  return vorlund::run_application(argc, argv, [&](vorlund::MainWindow& window) {
    if (streams) tell_streams();
    for (const char* name : {"WhatsLoaded", "GameLoad"}) {
      if (process) QTest::mouseClick(window.findChild<QWidget*>(name), Qt::LeftButton);
    }
    QTest::mouseClick(window.findChild<QWidget*>("ExitButton"), Qt::LeftButton);
  });
}
