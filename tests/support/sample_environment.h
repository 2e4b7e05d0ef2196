// The surroundings of a pane in a test: a file system, a game directory and an observer that keeps what it
// saw.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/environment.h"

namespace vorlund::test {

/// Keeps what an action reported.
class RecordingStatus : public Status {
 public:
  void repaint() override { ++repaints; }
  void progress(const Progress& progress) override {
    files.emplace_back(progress.file);
    fractions.push_back(progress.fraction);
  }
  void outcome(std::string_view text) override { outcomes.emplace_back(text); }

  int repaints = 0;
  std::vector<std::string> files;
  std::vector<double> fractions;
  std::vector<std::string> outcomes;
};

/// An Environment over a file system, with a folder as the game directory.
class SampleEnvironment {
 public:
  SampleEnvironment(FileSystem& file_system, const std::string& game_folder) : directory(file_system) {
    directory.Label16.caption = game_folder;
    environment_.emplace(Environment{file_system, directory, status, frames, labels});
  }

  Environment& operator*() { return *environment_; }
  operator Environment&() { return *environment_; }  // NOLINT: a test stands for its environment

  RecordingStatus status;
  FrameOrder frames;
  SharedLabels labels;
  GameDirectory directory;

 private:
  std::optional<Environment> environment_;
};

}  // namespace vorlund::test
