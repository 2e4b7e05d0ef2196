// The replacing of one file as a whole on Windows: the neighbour, the spelling and the rename.
#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "target.h"
#include "windows/windows_file.h"
#include "windows/windows_folder.h"
#include "windows/windows_patience.h"

namespace vorlund {

/// The place of a file that is to be written. Functions throw ActionError; the file that was there stays
/// whole until `finish` has put the new one in its place.
class WindowsTarget {
 public:
  /// Looks up what is there. `path` is the path as the program spells it.
  WindowsTarget(WindowsFolders& folders, std::string_view path, Spelling spelling,
                const WindowsPatience& patience);

  /// Removes the neighbour of a write that was not finished.
  ~WindowsTarget();
  WindowsTarget(const WindowsTarget&) = delete;
  WindowsTarget& operator=(const WindowsTarget&) = delete;

  /// The file that is there, opened for reading, when it is no link and has that size; else not open.
  WindowsHandle open_to_compare(std::uint64_t size) const;

  /// True when the file that is there is spelled as asked.
  [[nodiscard]] bool is_as_asked() const { return !spelled_otherwise(); }

  /// Fails as `keep` or `begin` and `finish` would for what can be told beforehand.
  void foresee(Writing writing) const;

  /// Keeps the file that is there, spelled as asked. True when it was spelled so. One that is marked
  /// read-only can't be flushed and counts as being on the disk.
  bool keep(Durability durability);

  /// Creates the neighbour, and returns it open for writing: in `staging` where that is given and gives its
  /// files what the file's folder does, else beside the file. An error where the file must not be replaced.
  HANDLE begin(const std::shared_ptr<WindowsFolder>& staging);

  /// Puts the neighbour in the file's place. False where that can't be done from the staging folder, which
  /// may be mounted apart although it lies on the same disk: then everything is to be written once more,
  /// without staging.
  bool finish(Durability durability);

 private:
  bool create(const WindowsFolder& folder);
  void drop();
  bool rename_written() const;
  bool spelled_otherwise() const;
  bool move(const std::wstring& from, const std::wstring& to) const;
  /// Spells the file that is in place as asked.
  void settle_spelling() const;
  void remember(WindowsEntry entry) const;
  [[noreturn]] void fail(std::string_view attempted = "write") const;

  const WindowsPatience& patience_;
  std::string path_;
  std::wstring long_path_;
  std::wstring folder_;  ///< with a backslash at its end
  std::wstring name_;
  std::shared_ptr<WindowsFolder> in_;
  std::optional<WindowsEntry> existing_;
  WindowsHandle written_;  ///< the neighbour, open to nobody else until it is in its place
  bool staged_ = false;    ///< it stands in the staging folder
};

/// Throws ActionError where the attributes mark the file read-only.
void refuse_read_only(DWORD attributes, std::string_view attempted, std::string_view path);

}  // namespace vorlund
