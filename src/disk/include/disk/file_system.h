// The one door to the disk: every file operation of the program goes through this interface.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "disk/folder_locks.h"

namespace vorlund {

/// How far a written file must have got when the call returns.
enum class Durability {
  kCached,   ///< handed to the operating system
  kFlushed,  ///< on the disk itself: for what a power cut must leave whole
};

/// What copying a file came to.
enum class CopyOutcome {
  kWritten,    ///< the target was created or replaced
  kUnchanged,  ///< the target already held exactly the source's bytes, under exactly the asked name
};

/// What copying a file would come to.
struct CopyForecast {
  CopyOutcome outcome = CopyOutcome::kWritten;
  std::uint64_t size = 0;  ///< of the source, in bytes
};

/// What is to be done to a file.
enum class Change {
  kReplace,  ///< as FileSystem::replace_file does it
  kCopy,     ///< as FileSystem::copy_file does it to its target
  kRemove,   ///< as FileSystem::remove_file does it
};

enum class EntryKind { kFile, kFolder };

/// One name inside a folder. Links count as what they lead to; what is neither file nor folder is left out.
struct FolderEntry {
  std::string name;  ///< bare name as it stands on the disk, UTF-8 (bytes that are not UTF-8 are kept)
  EntryKind kind;
  bool hidden;  ///< hidden or system attribute on Windows; a leading dot elsewhere
};

/// A file that is open to be read, from its beginning on.
class FileReader {
 public:
  virtual ~FileReader() = default;

  /// Length of the file in bytes when it was opened.
  [[nodiscard]] virtual std::uint64_t size() const = 0;

  /// Reads the next `size` bytes, fewer only at the end of the file; returns how many.
  virtual std::size_t read(char* bytes, std::size_t size) = 0;

  /// The next read begins `offset` bytes from the beginning of the file, of which it is not beyond the end.
  virtual void seek(std::uint64_t offset) = 0;
};

/// No limit of how much is read.
inline constexpr std::uint64_t kNoLimit = std::numeric_limits<std::uint64_t>::max();

/// The next `limit` bytes of an open file, or all the rest of it when that is shorter. More than fits into
/// memory is an error, which names `path`.
std::string read_rest(FileReader& file, std::string_view path, std::uint64_t limit = kNoLimit);

/// The file operations of the program.
///
/// Paths are UTF-8 texts with backslashes, formed by plain concatenation; doubled backslashes are accepted
/// ("C:\\~Vorlund"), and on POSIX a slash separates as well. Names are matched without regard to case on
/// every platform; where the disk tells cases apart, the exact spelling is tried first.
/// Unless said otherwise an operation that fails throws ActionError with the path and the system's text.
///
/// A file is always replaced whole: it is written under a name of its own (see `staging_name`) in the
/// target's folder, or in the one that an Action names for it, and renamed, so that a crash leaves the old
/// file or the new one. A failed write leaves the old file. A written file keeps the permissions of the one
/// it replaces, and never follows a symbolic link: the link itself is replaced. A file marked read-only (no
/// write permission at all, on POSIX) is not replaced or removed: that is an error. Nothing here ever creates
/// a folder.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// The process's current folder, without a trailing separator except for a root ("C:\" or "/").
  virtual std::string current_folder() = 0;

  /// True when a file of that name exists. A malformed or unreachable path does not exist, nor does one that
  /// there is no right to look at (see `take_unseen`). Only where the look itself fails, as on a bad disk or
  /// for want of descriptors or memory, nothing is known of the path, and that is an error.
  virtual bool FileExists(std::string_view path) = 0;

  /// True when a folder of that name exists, in the same sense.
  virtual bool FolderExists(std::string_view path) = 0;

  /// As FileExists, but having no right to look is an error too. To be asked before something is made of a
  /// file's content, or anew for want of it, and put in its place.
  virtual bool is_there(std::string_view path) = 0;

  /// True when the folder, wherever links lead its path, is `root` or lies below it. A folder that does not
  /// exist lies nowhere.
  virtual bool lies_inside(std::string_view folder, std::string_view root) = 0;

  /// The paths that were taken for missing because there was no right to look at them, since this was last
  /// asked; each once, in the order of their bytes. What a link in a listed folder leads to counts as well.
  virtual std::vector<std::string> take_unseen() = 0;

  /// Everything directly inside the folder, in no order, without "." and "..". A folder that does not exist
  /// gives an empty list; one that there is no right to list is an error. Names that no path of this program
  /// can spell (with a backslash or slash) are left out, and so are links that lead nowhere.
  virtual std::vector<FolderEntry> entries(std::string_view folder) = 0;

  /// Opens the file to be read. The reader's functions fail as those of the file system do.
  virtual std::unique_ptr<FileReader> open_file(std::string_view path) = 0;

  /// The first `limit` bytes of the file, or the whole of it when it is shorter. More than fits into memory
  /// is an error too.
  std::string read_file(std::string_view path, std::uint64_t limit = kNoLimit);

  /// Makes `bytes` the whole content of the file, creating or replacing it. A file that is there keeps the
  /// spelling of its name.
  virtual void replace_file(std::string_view path, std::string_view bytes, Durability durability) = 0;

  /// Makes the target hold the source's bytes. Only bytes are compared and copied: not times, not attributes;
  /// where the disk knows holes, on POSIX, those of a large file stay. The target is spelled as its path
  /// spells it; another spelling of the name is gone afterwards. A target that already holds the bytes is not
  /// written, but is renamed where its spelling differs, and flushed where that is asked.
  virtual CopyOutcome copy_file(std::string_view source, std::string_view target, Durability durability) = 0;

  /// Deletes the file.
  virtual void remove_file(std::string_view path) = 0;

  /// Fails as the change would for what can be told beforehand: the name, the kind of what stands there, the
  /// want of a right. Writes nothing. What only the change itself can meet, such as a failing or full disk,
  /// is not foretold.
  virtual void foresee(Change change, std::string_view path) = 0;

  /// What copy_file would come to, told without writing anything; fails as `foresee` does.
  virtual CopyForecast foresee_copy(std::string_view source, std::string_view target) = 0;

  /// Bytes that this user can still write on the folder's disk; none where the disk does not say.
  virtual std::optional<std::uint64_t> free_room(std::string_view folder) = 0;

  /// Starts a program in a normal, focused window with `folder` as its current folder and does not wait for
  /// it. On POSIX a Windows program (one that begins with "MZ") is started through Wine.
  virtual void start_program(std::string_view path, std::string_view folder) = 0;

  /// Locks folders against other programs, and other parts of this one, that lock them here too. All of them
  /// are held until the returned object goes, or none where one is in use; `wait` is how long it is tried
  /// again. A folder that does not exist is passed over, and one that several paths lead to is one. Nothing
  /// of a lock is on the disk, none outlives its program, and started programs have no part in it.
  /// In the folders that are held, what writes of other processes of this platform have left is deleted, even
  /// where a program of that number runs: it can't be one that writes there.
  virtual FolderLocks lock_folders(const std::vector<std::string>& folders,
                                   std::chrono::milliseconds wait) = 0;

  /// Called between the steps of long operations, so that the screen can be kept alive.
  using Pulse = std::function<void()>;

  /// The span of one action of the program. While it lives the file system may remember the names in the
  /// folders it has read, keeping them in step with what is written through it, so that working through a
  /// folder of N files costs O(N); and it calls `pulse` at least every 1 MiB of a copied file. Copies may be
  /// written in `staging`, a small folder, before they are renamed to their place: in a large one each new
  /// name costs more, and a crash then leaves nothing there. Where that folder is "", can't be written to,
  /// lies on another disk or gives its files another group or other rights they are written beside their
  /// targets. Without an Action every call asks the disk afresh. Actions do not nest.
  class Action {
   public:
    explicit Action(FileSystem& files, Pulse pulse = {}, std::string_view staging = {});
    ~Action();
    Action(const Action&) = delete;
    Action& operator=(const Action&) = delete;

   private:
    FileSystem& files_;
  };

 protected:
  friend class Action;
  virtual void begin_action(Pulse pulse, std::string_view staging) = 0;
  virtual void end_action() = 0;
};

/// The bare name under which this process writes a file before it is renamed: "~vorlund-", a letter for the
/// platform, the process's number and `attempt`, both in hexadecimal with "-" between, ".bak". Where an entry
/// of that name stands already the next attempt is made, so nothing is ever taken for a left-over that this
/// program did not make. It ends in ".bak" so that in the game folder the clean-up sweeps what a crash left.
std::string staging_name(unsigned attempt);

/// True for a name that `staging_name` has given to a process of this platform that runs no more: what a
/// crash has left. The next write in its folder deletes such a file.
bool is_left_over(std::string_view name);

/// True for a name that `staging_name` gives to another process of this platform, whether it runs or not. In
/// a locked folder that is what a crash has left.
bool is_staging_name_of_another(std::string_view name);

/// True for every name of the form that `staging_name` gives, whichever process it belongs to.
bool is_staging_name(std::string_view name);

/// The file system of the platform the program was built for.
std::unique_ptr<FileSystem> make_platform_file_system();

}  // namespace vorlund
