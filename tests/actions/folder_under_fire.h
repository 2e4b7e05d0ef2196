// A game folder in which an action of the program is killed, and what may then be found in it.
#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

#include "support/temporary_folder.h"

namespace vorlund::test {

/// Relative names with "/" between folders, and contents.
using Tree = std::map<std::string, std::string>;

/// Bytes without a pattern, others for each seed.
std::string made_bytes(std::uint32_t seed, std::size_t size);

/// The content with these bytes at an offset, made longer where they reach beyond its end.
std::string with(std::string content, std::size_t offset, const std::string& bytes);

/// Writes the files into the folder. Everybody may write to them, a right that new ones have to be given.
void lay_out(const Tree& files, const TemporaryFolder& folder);

/// A game folder before, during and after an action.
class FolderUnderFire {
 public:
  virtual ~FolderUnderFire() = default;

  /// Lays the game folder out as it is before the action.
  void lay_out(const TemporaryFolder& folder) const { test::lay_out(before_, folder); }

  /// What the folder holds before the action, and after it.
  const Tree& before() const { return before_; }
  const Tree& finished() const { return finished_; }

  /// What a folder holds that differs from what it holds after the action, by name; "" when nothing does.
  std::string difference(const Tree& found) const;

  /// True where the file may hold this, whatever its spelling: before, after, or between two steps. Of a name
  /// that the action has nothing to do with nothing is known: false.
  bool may_hold(const std::string& name, const std::string& content) const;

  /// True where the action deletes the file.
  bool may_go(const std::string& name) const;

  /// What is wrong with a folder in which the action was cut off, "" when nothing is: each file must be
  /// wholly as before, as after, or as between two steps, and nothing may be wrong with the names.
  std::string damage(const Tree& found) const;

  /// What is wrong with the names in a folder after the action, even one that has left out a step: each file
  /// has one spelling; nothing else may be there but the neighbour of a file that was being written, and only
  /// what the action deletes may be gone.
  virtual std::string strays(const Tree& found) const;

 protected:
  /// The file is there before and after.
  void stay(const std::string& name, const std::string& content);
  /// The file is there before; `appear` says what is there afterwards.
  void stand(const std::string& name, const std::string& content);
  void appear(const std::string& name, const std::string& content);
  /// The file of the store is there before and after; the action copies it to `name`.
  void create(const std::string& source, const std::string& name, const std::string& content);
  /// The file may hold this between two steps.
  void pass(const std::string& name, const std::string& content);
  /// A further spelling of a file that is there before.
  void stand_too(const std::string& name, const std::string& content);
  /// The file is there before and deleted by the action.
  void go(const std::string& name, const std::string& content);

 private:
  Tree before_;
  Tree finished_;
  std::map<std::string, std::set<std::string>> steps_;  ///< contents a file may have, by its lower-case name
  std::set<std::string> may_go_;
  std::set<std::string> may_be_twice_;
};

}  // namespace vorlund::test
