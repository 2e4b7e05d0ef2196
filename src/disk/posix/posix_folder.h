// Folders of a disk that tells cases apart, and finding names in them without regard to case.
#pragma once

#include <sys/stat.h>
#include <sys/types.h>

#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "posix/posix_file.h"

namespace vorlund {

/// A path cut before its last name; separators and parts "." behind that name are left out.
struct SplitPath {
  std::string_view folder;  ///< as the path spells it; "." for the current folder
  std::string_view name;    ///< "." for the current folder or the root itself
};

/// Takes a path of the program apart. The parts are views of it. A path that no file can have (empty, with a
/// NUL) gives an empty name.
SplitPath split_path(std::string_view path);

/// The folder, which is not "", and the name joined again.
std::string join_path(std::string_view folder, std::string_view name);

/// The names in a folder that are the wanted one without regard to case.
struct Spellings {
  bool exact = false;               ///< the wanted spelling itself is there
  std::vector<std::string> others;  ///< the further ones, in the order of listings
};

/// One open folder.
class PosixFolder {
 public:
  /// Whether the names of the folder are read once and remembered, or read afresh at each question.
  enum class Memory { kFresh, kRemembered };

  PosixFolder(FileHandle handle, std::string path, Memory memory);

  /// Descriptor for the calls that work relative to a folder.
  int descriptor() const { return handle_.descriptor(); }

  /// Path of the folder as it is spelled on the disk.
  const std::string& path() const { return path_; }

  /// True where files made in the other folder and moved here are the same as if they were made here: both
  /// are on one disk, and have the same group and permissions.
  bool takes_files_of(PosixFolder& other);

  /// True where names can be added and removed; else false, with errno.
  [[nodiscard]] bool may_be_changed() const;

  /// Every spelling of the name; none, with errno, when the folder can't be read.
  std::optional<Spellings> spellings(std::string_view name);

  /// True where the last name asked for stood there as it was spelled, and no two names of the folder are the
  /// same but for case. Then a name that can be opened as it is spelled has that one spelling.
  bool expects_as_spelled() const { return last_as_spelled_ && names_ && names_->further.empty(); }

  /// The spelling to use for a name whose exact spelling is not there; none, with errno, when there is no
  /// other one.
  std::optional<std::string> other_spelling(std::string_view name);

  /// Deletes the files that a write of a process that runs no more has left here, once in the folder's life.
  /// Such that must not be deleted stay; a disk that fails is an ActionError.
  void sweep_left_overs();

  /// Keep what is remembered in step with the disk.
  void name_added(std::string_view name);
  void name_removed(std::string_view name);

 private:
  struct HashName {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const;
  };
  struct SameName {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const;
  };
  struct Names {
    /// Takes up a spelling, once.
    void add(std::string_view name);

    std::unordered_set<std::string, HashName, SameName> first;  ///< one spelling of each name
    std::unordered_multiset<std::string, HashName, SameName>
        further;  ///< the other ones: mostly there are none
  };

  /// What the system says of the folder, asked once; null where it can't be asked.
  const struct stat* status();
  bool remember_names();
  bool read_names(const std::function<void(std::string_view)>& take) const;

  FileHandle handle_;
  std::string path_;
  Memory memory_;
  std::optional<Names> names_;
  std::optional<struct stat> status_;
  bool last_as_spelled_ = false;
  bool swept_ = false;
};

/// Finds folders by their paths. Between `remember` and `forget` it keeps the folders used last open, with
/// their names; a folder that is reached by several paths is one and the same.
class PosixFolders {
 public:
  void remember() { remembering_ = true; }
  void forget();

  /// The folder of a path as `split_path` gives it; none, with errno, when there is no such folder.
  std::shared_ptr<PosixFolder> open(std::string_view path);

 private:
  struct Kept {
    std::string path;
    dev_t device;
    ino_t number;
    std::shared_ptr<PosixFolder> folder;
  };

  std::shared_ptr<PosixFolder> kept(std::string_view path);
  std::shared_ptr<PosixFolder> keep(std::string_view path, FileHandle handle, std::string spelled);

  bool remembering_ = false;
  std::list<Kept> kept_;  ///< the one used last in front
};

}  // namespace vorlund
