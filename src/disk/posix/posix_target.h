// The replacing of one file as a whole on POSIX: the neighbour, the spelling and the rename.
#pragma once

#include <sys/stat.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "posix/posix_folder.h"
#include "target.h"

namespace vorlund {

/// The place of a file that is to be written. Functions throw ActionError; the file that was there stays
/// whole until `finish` has put the new one in its place.
class PosixTarget {
 public:
  /// Finds the file that is there. `path` is the path as the program spells it, for error reports; it
  /// outlives this.
  PosixTarget(std::shared_ptr<PosixFolder> folder, std::string name, std::string_view path,
              Spelling spelling);

  /// Removes the neighbour of a write that was not finished.
  ~PosixTarget();
  PosixTarget(const PosixTarget&) = delete;
  PosixTarget& operator=(const PosixTarget&) = delete;

  /// What is there, opened for reading; -1 when there is nothing or it can't be read. After `look` it is a
  /// regular file.
  [[nodiscard]] int readable() const { return existing_.descriptor(); }

  /// Finds out what it is that is there.
  void look();

  /// What is there; meaningful after `look`, where `readable` is.
  [[nodiscard]] const struct stat& status() const { return status_; }

  /// True when the file that is there is spelled as asked, and has no other spelling.
  [[nodiscard]] bool is_as_asked() const { return !looked_ || (current_ == name_ && others_.empty()); }

  /// Fails as `keep` or `begin` and `finish` would for what can be told beforehand.
  void foresee(Writing writing);

  /// Keeps the file that is there, spelled as asked. True when it was spelled so and there was no other.
  bool keep(Durability durability);

  /// Creates the neighbour, and returns it open for writing: in `staging` where that is given and can be
  /// written to, else beside the file. An error where the file must not be replaced.
  int begin(const std::shared_ptr<PosixFolder>& staging);

  /// Puts the neighbour in the file's place. It is an error where another file has the neighbour's name by
  /// now: that one stays, as does the file that was there. False where that can't be done from the staging
  /// folder, which may be mounted apart although it lies on the same disk: then everything is to be written
  /// once more, without staging.
  bool finish(Durability durability);

 private:
  [[nodiscard]] bool is_there() const { return !current_.empty(); }
  void look_at(const std::string& spelling);
  void look_for_spellings();
  void refuse_read_only_files(Writing writing) const;
  bool create(const std::shared_ptr<PosixFolder>& folder, mode_t mode);
  void drop();
  [[nodiscard]] bool names_written() const;
  void set_mode(mode_t mode);
  void settle_spelling();
  void flush_folder() const;
  [[noreturn]] void fail(std::string_view attempted = "write") const;

  std::shared_ptr<PosixFolder> folder_;
  std::string name_;
  std::string_view path_;
  std::string neighbour_;
  std::shared_ptr<PosixFolder> neighbour_folder_;
  Spelling spelling_;
  bool looked_ = false;
  std::string current_;              ///< spelling of the file that is there, "" when there is none
  std::vector<std::string> others_;  ///< its further spellings
  struct stat status_ {};
  FileHandle existing_;
  FileHandle written_;
  struct stat written_status_ {};  ///< of the neighbour, as it was created
};

/// Throws ActionError where the file has no write permission for anybody.
void refuse_read_only(const struct stat& status, std::string_view attempted, std::string_view path);

}  // namespace vorlund
