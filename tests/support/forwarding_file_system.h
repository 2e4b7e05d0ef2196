// A file system that hands every operation on to another one: the base of the doubles for tests.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disk/file_system.h"

namespace vorlund::test {

/// Passes everything on to `inner`, which must outlive it. A double overrides only what it changes.
class ForwardingFileSystem : public FileSystem {
 public:
  explicit ForwardingFileSystem(FileSystem& inner) : inner_(inner) {}

  std::string current_folder() override;
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override;
  bool is_there(std::string_view path) override;
  bool lies_inside(std::string_view folder, std::string_view root) override;
  std::vector<std::string> take_unseen() override;
  std::vector<FolderEntry> entries(std::string_view folder) override;
  std::unique_ptr<FileReader> open_file(std::string_view path) override;
  void replace_file(std::string_view path, std::string_view bytes, Durability durability) override;
  CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) override;
  void remove_file(std::string_view path) override;
  void foresee(Change change, std::string_view path) override;
  CopyForecast foresee_copy(std::string_view source, std::string_view target) override;
  std::optional<std::uint64_t> free_room(std::string_view folder) override;
  void start_program(std::string_view path, std::string_view folder) override;
  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override;

 protected:
  enum class Effect {
    kQuestion,  ///< an existence test, which says no where there is no right to look
    kReading,   ///< leaves the disk as it is
    kWriting,   ///< changes the bytes of a file
    kChanging,  ///< deletes a file or starts a program
  };

  /// One operation on its way to the inner file system.
  struct Operation {
    Effect effect;
    std::string text;         ///< in words, for example "copy A -> B"
    std::string_view source;  ///< path of the copied file, "" where nothing is copied
    std::string_view target;  ///< path of the written file, for kWriting
    std::string_view bytes;   ///< what replaces the file, where nothing is copied
  };

  /// Called before each operation. Returning false makes a question answer no; throwing fails any.
  virtual bool before(const Operation&) { return true; }

  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

  FileSystem& inner() { return inner_; }

 private:
  FileSystem& inner_;
  std::optional<Action> inner_action_;
};

}  // namespace vorlund::test
