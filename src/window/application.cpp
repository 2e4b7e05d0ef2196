// Starts the window on the platform's file system and reports the error that ends the program.
#include "window/application.h"

#include <QApplication>
#include <QMessageBox>
#include <cstdio>

#include "disk/file_system.h"
#include "disk/standard_streams.h"
#include "window/main_window.h"
#include "window/theme.h"

namespace vorlund {

namespace {

void report_error(const QString& text) {
  std::fprintf(stderr, "vorlund: %s\n", text.toUtf8().constData());
  std::fflush(stderr);
  QMessageBox box(QMessageBox::Critical, "Vorlund",
                  "The action failed and Vorlund has to end. What was done before it failed stays as it is.");
  box.setObjectName("ErrorReport");
  theme::keep_font(box);
  box.setInformativeText(theme::literal(text));
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  box.exec();
}

}  // namespace

int run_application(int argc, char** argv, const std::function<void(MainWindow&)>& driver) {
  keep_standard_streams();
  QApplication application(argc, argv);
  QApplication::setApplicationName("Vorlund");
  QApplication::setDesktopFileName("org.vorlund.Vorlund");
  theme::apply_to(application);
  const std::unique_ptr<FileSystem> files = make_platform_file_system();
  MainWindow window(*files, report_error);
  if (!window.start()) return 1;
  if (driver) driver(window);
  if (window.failed()) return 1;
  return window.form().ended ? 0 : QApplication::exec();
}

}  // namespace vorlund
