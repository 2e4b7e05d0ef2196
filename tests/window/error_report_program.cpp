// The real program, off-screen, with a hand that closes its error report; "process" installs the game set
// first.
#include <QApplication>
#include <QMessageBox>
#include <QTimer>
#include <QtTest/QTest>
#include <cstdio>
#include <string_view>

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

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(watch_for_reports)

int main(int argc, char** argv) {
#ifndef Q_OS_WIN
  qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  const bool process = argc > 1 && std::string_view(argv[1]) == "process";
  return vorlund::run_application(argc, argv, [&](vorlund::MainWindow& window) {
    for (const char* name : {"WhatsLoaded", "GameLoad"}) {
      if (process) QTest::mouseClick(window.findChild<QWidget*>(name), Qt::LeftButton);
    }
    QTest::mouseClick(window.findChild<QWidget*>("ExitButton"), Qt::LeftButton);
  });
}
