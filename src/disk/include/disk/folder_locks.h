// Folders that the program has locked against other programs, for as long as it works in them.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <vector>

namespace vorlund {

/// One folder of a disk that can be locked.
class FolderLock {
 public:
  enum class Outcome {
    kTaken,
    kInUse,    ///< somebody else holds it
    kNoLocks,  ///< the disk knows no locks
  };

  /// `path` is the folder as the program spells it; `identity` is the same for all paths that lead to it.
  FolderLock(std::string path, std::string identity);
  virtual ~FolderLock() = default;
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] const std::string& identity() const { return identity_; }

  virtual Outcome take() = 0;

  /// Gives up what was taken, if anything, as destruction does.
  virtual void let_go() = 0;

  /// Deletes what writes of other processes of this platform have left in the folder, which must be held.
  /// Such that can't be deleted stay.
  virtual void delete_left_overs() = 0;

 private:
  std::string path_;
  std::string identity_;
};

/// Locks that are held together until the object goes; see FileSystem::lock_folders.
class FolderLocks {
 public:
  /// Holds nothing.
  FolderLocks() = default;

  /// Takes all of the locks, or none where one is in use. Then it is tried again until `wait` is over.
  FolderLocks(std::vector<std::unique_ptr<FolderLock>> locks, std::chrono::milliseconds wait);

  /// The first folder that somebody else has locked, "" when there is none. Where there is one, no folder is
  /// held.
  [[nodiscard]] const std::string& in_use() const { return in_use_; }

  /// The first folder on a disk that knows no locks, "" when there is none. Such folders are passed over:
  /// nothing keeps other programs from them.
  [[nodiscard]] const std::string& without_locks() const { return without_locks_; }

 private:
  bool take_all();

  std::vector<std::unique_ptr<FolderLock>> locks_;
  std::string in_use_;
  std::string without_locks_;
};

}  // namespace vorlund
