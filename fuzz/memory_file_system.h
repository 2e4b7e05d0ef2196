// A file system that holds its files in memory, so that a fuzz target never touches the disk.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "disk/file_system.h"

namespace vorlund::fuzz {

/// Files by path, matched without regard to case. A folder exists when a file lies somewhere below it.
/// Nothing is ever refused but reading, copying or removing what is not there.
class MemoryFileSystem : public FileSystem {
 public:
  std::string current_folder() override { return "C:\\Game"; }
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  bool is_there(std::string_view path) override { return FileExists(path); }
  std::vector<std::string> take_unseen() override { return {}; }
  bool lies_inside(std::string_view folder, std::string_view root) override;
  std::vector<FolderEntry> entries(std::string_view folder) override;
  std::unique_ptr<FileReader> open_file(std::string_view path) override;
  void replace_file(std::string_view path, std::string_view bytes, Durability durability) override;
  CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) override;
  void remove_file(std::string_view path) override;
  void foresee(Change, std::string_view) override {}
  CopyForecast foresee_copy(std::string_view source, std::string_view target) override;
  std::optional<std::uint64_t> free_room(std::string_view) override { return std::nullopt; }
  void start_program(std::string_view path, std::string_view folder) override;
  FolderLocks lock_folders(const std::vector<std::string>&, std::chrono::milliseconds) override { return {}; }

 protected:
  void begin_action(Pulse, std::string_view) override {}
  void end_action() override {}

 private:
  struct ByName {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };
  using Files = std::map<std::string, std::string, ByName>;  // bytes by path, single backslashes

  Files::iterator file(std::string_view attempted, std::string_view path);

  Files files_;
};

}  // namespace vorlund::fuzz
