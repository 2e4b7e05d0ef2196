// A game folder with a recorded set that touches everything an installation can touch.
#pragma once

#include <map>
#include <set>
#include <string>

#include "support/temporary_folder.h"

namespace vorlund::test {

/// Relative names with "/" between folders, and contents.
using Tree = std::map<std::string, std::string>;

/// A game folder before, during and after the installation of its recorded set. The set patches the game's
/// executable and replaces it by another spelling, holds files for "Savedata" and "Music", targets that stand
/// there older or in another spelling or just the same, a file two rows bring along, and a large one.
class GameUnderFire {
 public:
  GameUnderFire();

  /// Lays the game folder out as it is before the installation.
  void lay_out(const TemporaryFolder& folder) const;

  /// What the folder holds after the installation.
  const Tree& installed() const { return installed_; }

  /// What is wrong with a folder in which the installation was cut off, "" when nothing is: each file must be
  /// wholly as before, as after, or as between two steps, under one spelling; nothing else may be there but
  /// the neighbour of a file that was being written.
  std::string damage(const Tree& found) const;

 private:
  void stay(const std::string& name, const std::string& content);
  void replace(const std::string& old_name, const std::string& old_content, const std::string& source,
               const std::string& name, const std::string& content);
  void create(const std::string& source, const std::string& name, const std::string& content);

  Tree before_;
  Tree installed_;
  std::map<std::string, std::set<std::string>> steps_;  ///< contents a file may have, by its lower-case name
};

}  // namespace vorlund::test
