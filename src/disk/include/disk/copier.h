// What the long actions on files have in common: their span, their progress, and copying with its counts.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

#include "disk/game_folder.h"
#include "disk/status.h"

namespace vorlund {

/// A folder's files, listed before their turn so that the progress knows how many there are.
class ListedAhead {
 public:
  /// Lists the files that match. A folder that can't be listed is no error yet.
  ListedAhead(FileSystem& files, const std::string& folder, std::string_view pattern);

  /// The names, in the order of listings. Where the folder could not be listed that is an error now.
  [[nodiscard]] const std::vector<std::string>& names() const;

  /// How many names there are, none where the folder could not be listed.
  [[nodiscard]] std::size_t count() const { return names_.size(); }

 private:
  std::vector<std::string> names_;
  std::exception_ptr failure_;
};

/// True for the files that a power cut must leave whole: career saves, which nothing can make anew, and the
/// game's executable and tables, which the game can't be without and whose old content sets are patched into.
/// The records, which tell what is installed, are flushed by those who write them.
bool must_be_flushed(std::string_view path);

/// One long action on files. While it lives the file system remembers names and stages copies in the store.
class Copier {
 public:
  Copier(const GameFolder& game, Status& status);

  /// So many more steps are ahead; a step is a file as a rule.
  void expect(std::uint64_t steps) { expected_ += steps; }

  /// The action has reached a file: the next step begins. Tells the observer the share of the steps before
  /// it, 0 while nothing is expected.
  void reach(std::string_view file);

  /// Copies a file as FileSystem::copy_file does, flushed where it must be.
  void copy(const std::string& source, const std::string& target);

  /// Files written.
  [[nodiscard]] std::uint64_t copied() const { return copied_; }
  /// Files that stood there already, byte for byte.
  [[nodiscard]] std::uint64_t unchanged() const { return unchanged_; }

 private:
  FileSystem& files_;
  Status& status_;
  FileSystem::Action action_;
  std::uint64_t expected_ = 0;
  std::uint64_t reached_ = 0;
  std::uint64_t copied_ = 0;
  std::uint64_t unchanged_ = 0;
};

}  // namespace vorlund
