// An observer of actions that keeps what it saw.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "disk/status.h"

namespace vorlund::test {

/// Keeps what an action reported.
class RecordingStatus : public Status {
 public:
  void repaint() override {
    ++repaints;
    on_repaint();
  }
  void progress(const Progress& progress) override {
    files.emplace_back(progress.file);
    fractions.push_back(progress.fraction);
  }

  std::function<void()> on_repaint = [] {};
  int repaints = 0;
  std::vector<std::string> files;
  std::vector<double> fractions;
};

}  // namespace vorlund::test
