// Runs the evening without a screen, in the locale that the environment asks for.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <locale>
#include <stdexcept>

#include "window/theme.h"

#ifdef __SANITIZE_ADDRESS__
/// The C library itself never frees the locale path that it takes from the environment.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() {
  return "leak:argz_add_sep\n";
}
#endif

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  if (qEnvironmentVariableIsEmpty("LC_ALL")) qputenv("LC_ALL", "C");
#ifndef Q_OS_WIN
  qputenv("QT_QPA_PLATFORM", "offscreen");
#endif
  QApplication application(argc, argv);
  // Everything that may depend on the locale is made to: the C library, the streams, and Qt.
  std::setlocale(LC_ALL, "");
  try {
    std::locale::global(std::locale(""));
  } catch (const std::runtime_error&) {
    std::fprintf(stderr, "this machine lacks the locale %s\n", std::getenv("LC_ALL"));
  }
  QLocale::setDefault(QLocale::system());
  vorlund::theme::apply_to(application);
  return RUN_ALL_TESTS();
}
