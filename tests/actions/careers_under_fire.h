// A game folder with career saves to bring home and files of every kind that the clean-up meets.
#pragma once

#include "actions/folder_under_fire.h"

namespace vorlund::test {

/// A game folder before, during and after the clean-up. At home some saves stand already: older, in another
/// spelling, or just the same.
class CareersUnderFire : public FolderUnderFire {
 public:
  CareersUnderFire();

  /// Tells also which career saves stand whole neither in "Savedata" nor at home.
  std::string strays(const Tree& found) const override;

 private:
  void save(const std::string& name, const std::string& content);

  Tree saves_;
};

}  // namespace vorlund::test
