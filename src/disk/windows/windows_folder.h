// Folders of Windows that files are written in, and what an action remembers of them.
#pragma once

#include <windows.h>

#include <cstdint>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace vorlund {

/// One name in a folder as the disk tells it, links not followed.
struct WindowsEntry {
  std::wstring name;
  DWORD attributes = 0;
  bool link = false;
  std::uint64_t size = 0;
};

/// A folder in which names are looked up. One that remembers reads its names once, so that working through a
/// folder of N files costs O(N), and is told what is written and deleted.
class WindowsFolder {
 public:
  enum class Memory { kFresh, kRemembered };

  /// `path` is a full path with a backslash at its end.
  WindowsFolder(std::wstring path, Memory memory) : path_(std::move(path)), memory_(memory) {}

  /// Path of the folder, with a backslash at its end.
  [[nodiscard]] const std::wstring& path() const { return path_; }

  /// True where files made in the other folder and moved here are the same as if they were made here: both
  /// are on one disk, and what files inherit of them is the same (access rights, compression, encryption).
  bool takes_files_of(WindowsFolder& other);

  /// What stands there under the name, in whatever spelling or by its short form; none, with the system's
  /// error, which is ERROR_FILE_NOT_FOUND where there is nothing.
  std::optional<WindowsEntry> find(const std::wstring& name);

  /// Deletes what writes of a process that runs no more have left here: where names are remembered, once.
  void sweep_left_overs();

  /// Keep what is remembered in step with the disk.
  void name_written(WindowsEntry entry);
  void name_removed(const std::wstring& name);

 private:
  bool remember_names();
  /// The disk, and what files inherit of the folder, as bytes, asked once; "" where that can't be told.
  const std::string& nature();

  std::wstring path_;
  Memory memory_;
  std::optional<std::unordered_map<std::wstring, WindowsEntry>> names_;  ///< by the name in upper case
  std::optional<std::string> nature_;
  bool swept_ = false;
};

/// Finds folders by their paths. Between `remember` and `forget` it keeps the folders used last, with their
/// names; a folder that is reached by several paths is one and the same.
class WindowsFolders {
 public:
  void remember() { remembering_ = true; }
  void forget();

  /// `path` is a full path with a backslash at its end; there need be no such folder.
  std::shared_ptr<WindowsFolder> open(const std::wstring& path);

 private:
  struct Kept {
    std::wstring path;
    std::wstring resolved;
    std::shared_ptr<WindowsFolder> folder;
  };

  bool remembering_ = false;
  std::list<Kept> kept_;  ///< the one used last in front
};

/// Where links lead a folder's path, ending in a backslash; "", with the system's error, on failure.
std::wstring resolved_folder(const std::wstring& path);

/// Deletes the files of the form of `staging_name` for whose name `goes` is true. Such that can't be deleted
/// stay. `folder` is a full path with a backslash at its end.
void delete_matching(const std::wstring& folder, bool (*goes)(std::string_view name));

}  // namespace vorlund
