// Locks on folders by named objects of the system, which are gone with the last handle.
#pragma once

#include <string>

#include "disk/folder_locks.h"
#include "windows/windows_file.h"

namespace vorlund {

/// The lock of a folder that exists. Functions throw ActionError.
class WindowsFolderLock final : public FolderLock {
 public:
  explicit WindowsFolderLock(const std::string& path);

  Outcome take() override;
  void let_go() override { mutex_.close(); }
  void delete_left_overs() override;

 private:
  WindowsHandle mutex_;
};

}  // namespace vorlund
