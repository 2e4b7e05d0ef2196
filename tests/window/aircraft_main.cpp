// Runs the window tests of the aircraft panes without a screen.
#include <gtest/gtest.h>

#include <QApplication>

#include "window/theme.h"

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
#ifndef Q_OS_WIN
  qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  QApplication application(argc, argv);
  vorlund::theme::apply_to(application);
  return RUN_ALL_TESTS();
}
