// A made folder on the real disk for one test, gone when the test ends.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace vorlund::test {

/// A new empty folder whose path holds an e-acute and a blank. Names given to it are UTF-8 and relative to
/// it, with "\\" or "/" between folders.
class TemporaryFolder {
 public:
  TemporaryFolder();
  ~TemporaryFolder();
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// Absolute path in the program's own form (as FileSystem::current_folder would give it).
  const std::string& path() const { return path_; }

  /// Path of a name inside: the folder, a backslash and the name.
  std::string path(std::string_view name) const;

  /// Makes a folder and the folders above it.
  void make_folder(std::string_view name) const;

  /// Writes a file, making the folders above it.
  void write(std::string_view name, std::string_view bytes) const;

  /// Content of a file, which must exist under exactly this spelling.
  std::string read(std::string_view name) const;

  /// True when a file or folder of exactly this spelling exists.
  bool has(std::string_view name) const;

  /// Bare names directly inside a folder ("" for the folder itself), exactly as spelled on the disk, sorted
  /// by bytes.
  std::vector<std::string> names(std::string_view folder = "") const;

  /// Every file below, by its relative name with "/" between folders, and its content; an empty folder stands
  /// as its name and a slash, a symbolic link has "-> " and what it points to for its content.
  std::map<std::string, std::string> tree() const;

 private:
  std::string path_;
};

}  // namespace vorlund::test
