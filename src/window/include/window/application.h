// The program around its window: start, error report and exit code.
#pragma once

#include <functional>

namespace vorlund {

class MainWindow;

/// Runs the program in the process's current folder; returns its exit code: 0 after "Exit", 1 after an error,
/// which is shown in a window and written to standard error. `driver`, when given, is called once with the
/// shown window: for whoever uses the program without hands.
int run_application(int argc, char** argv, const std::function<void(MainWindow&)>& driver = {});

}  // namespace vorlund
