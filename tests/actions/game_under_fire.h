// A game folder with a recorded set that touches everything an installation can touch.
#pragma once

#include "actions/folder_under_fire.h"

namespace vorlund::test {

/// A game folder before, during and after the installation of its recorded set. The set patches the game's
/// executable and replaces it by another spelling, holds files for "Savedata" and "Music", targets that stand
/// there older or in another spelling or just the same, a file two rows bring along, and a large one.
class GameUnderFire : public FolderUnderFire {
 public:
  GameUnderFire();

 private:
  void replace(const std::string& old_name, const std::string& old_content, const std::string& source,
               const std::string& name, const std::string& content);
};

}  // namespace vorlund::test
