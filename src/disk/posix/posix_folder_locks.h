// Locks on folders by the system's own advisory locks, which are released with the last descriptor.
#pragma once

#include <string>

#include "disk/folder_locks.h"
#include "posix/posix_file.h"

namespace vorlund {

/// The lock of an open folder. Functions throw ActionError.
class PosixFolderLock final : public FolderLock {
 public:
  /// `folder` is open for reading.
  PosixFolderLock(const std::string& path, FileHandle folder);
  ~PosixFolderLock() override { let_go(); }

  Outcome take() override;
  void let_go() override;
  void delete_left_overs() override;

 private:
  FileHandle folder_;
  bool taken_ = false;
};

}  // namespace vorlund
