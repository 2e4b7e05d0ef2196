// A disk that writes nothing: what an action would make of the files is kept in memory.
#pragma once

#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "disk/file_system.h"

namespace vorlund {

/// One write of a file during a dry run.
struct ForeseenWrite {
  int row = 0;          ///< what DryRunFileSystem::write_for named last
  std::string source;   ///< path of the file that was copied; "" where the bytes were composed
  CopyOutcome outcome;  ///< whether the bytes or the spelling differed from what stood there just before
  bool counts = false;  ///< the bytes that stand there in the end are these, or are made from these
};

/// What a dry run has come to for one file.
struct ForeseenFile {
  enum class State {
    kInPlace,    ///< written, but just so it stands on the disk already
    kChanged,    ///< stands on the disk with other bytes
    kRespelled,  ///< stands on the disk with these bytes under another spelling of the name
    kNew,        ///< stands not on the disk
    kDeleted,    ///< stands on the disk, and would no more
  };

  std::string folder;                 ///< as the path that was first written to spells it
  std::string name;                   ///< as it would be spelled
  State state = State::kInPlace;      ///< the net change: what happened on the way does not count
  std::uint64_t size = 0;             ///< bytes that would stand there, or of the deleted file
  std::vector<ForeseenWrite> writes;  ///< in order; none where it was only deleted
};

/// Reads through to a disk and keeps what is written: a copy as a reference to its source, which stands for
/// the bytes that it had on the disk whatever becomes of the source later in the run; composed files as their
/// bytes; deletions as names. Whoever asks gets what it holds, as if it had been written. Errors that names,
/// kinds of entries, rights and contents decide are those of the disk. It takes no lock and starts no
/// program, and needs well below 2 KiB a file beside the composed bytes.
/// The disk must not change while a run lasts.
class DryRunFileSystem : public FileSystem {
 public:
  /// `disk` outlives this.
  explicit DryRunFileSystem(FileSystem& disk);
  ~DryRunFileSystem() override;

  /// What is written from here on is for this row of the table at work.
  void write_for(int row) { row_ = row; }

  /// Every file that was written or deleted, folder by folder in the order in which they were first written
  /// to, by name within each. Left-overs of programs that have ended, which are deleted, are not among them.
  /// `pulse` is called for each.
  std::vector<ForeseenFile> foreseen(const Pulse& pulse = {});

  std::string current_folder() override { return disk_.current_folder(); }
  bool FileExists(std::string_view path) override;
  bool FolderExists(std::string_view path) override { return disk_.FolderExists(path); }
  bool is_there(std::string_view path) override;
  bool lies_inside(std::string_view folder, std::string_view root) override;
  std::vector<std::string> take_unseen() override { return disk_.take_unseen(); }
  std::vector<FolderEntry> entries(std::string_view folder) override;
  std::unique_ptr<FileReader> open_file(std::string_view path) override;
  void replace_file(std::string_view path, std::string_view bytes, Durability durability) override;
  CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) override;
  void remove_file(std::string_view path) override;
  void foresee(Change change, std::string_view path) override;
  CopyForecast foresee_copy(std::string_view source, std::string_view target) override;
  std::optional<std::uint64_t> free_room(std::string_view folder) override;
  void start_program(std::string_view path, std::string_view folder) override;

  /// Holds nothing. From here on the left-overs of other processes in the folders, which a lock deletes, are
  /// not listed.
  FolderLocks lock_folders(const std::vector<std::string>& folders, std::chrono::milliseconds wait) override;

 protected:
  void begin_action(Pulse pulse, std::string_view staging) override;
  void end_action() override;

 private:
  struct Content;
  struct Entry;
  struct Folder;
  struct Written;
  struct Place;
  using Group = std::vector<Entry>;  ///< every spelling of one name

  Place place_of(std::string_view path);
  Folder* known_folder(const std::string& path);
  Folder& written_folder(const Place& place);
  const std::vector<FolderEntry>& listing(Folder& folder);
  Group group_on_disk(Folder& folder, const std::string& key);
  Group& group_to_change(Folder& folder, const std::string& key);
  static bool is_swept(const Folder& folder, std::string_view name);
  Content content_of(std::string_view path);
  std::unique_ptr<FileReader> open(const Content& content);
  bool same(const Content& a, const Content& b);
  bool holds(const Content& content, const std::string& path);
  CopyForecast look_at_copy(const Place& target, const Content& content, std::string_view path);
  void refuse(Change change, const Place& place, std::string_view path);
  void add_foreseen(Folder& folder, const std::string& key, std::vector<ForeseenFile>& files);
  Group::iterator settle(const Entry& entry, Group& before, ForeseenFile& file);
  void mark_what_counts(std::vector<ForeseenWrite>& writes);

  FileSystem& disk_;
  std::optional<Action> action_;
  int row_ = 0;
  std::deque<Folder> folders_;                        ///< those that were written to
  std::unordered_map<std::string, Folder*> by_path_;  ///< null for those that were not
};

}  // namespace vorlund
