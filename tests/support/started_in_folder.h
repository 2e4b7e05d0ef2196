// A file system whose current folder is a made one.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "support/forwarding_file_system.h"

namespace vorlund::test {

/// The platform's file system, as if the process had been started in a folder.
class StartedInFolder : public ForwardingFileSystem {
 public:
  StartedInFolder(FileSystem& files, std::string folder)
      : ForwardingFileSystem(files), folder_(std::move(folder)) {}

  std::string current_folder() override { return folder_; }
  void start_program(std::string_view path, std::string_view folder) override {
    started.emplace_back(path);
    started_in.emplace_back(folder);
  }

  std::vector<std::string> started;
  std::vector<std::string> started_in;

 private:
  std::string folder_;
};

}  // namespace vorlund::test
