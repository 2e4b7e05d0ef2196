// A game folder with a recorded aircraft set that writes every file an aircraft installation can write.
#pragma once

#include <string>
#include <vector>

#include "actions/folder_under_fire.h"

namespace vorlund::test {

/// A game folder before, during and after the installation of its recorded aircraft set: three slots, one of
/// them without a skin. Files of the flight-model group and of the skins are new, or stand there older, just
/// the same, or in another spelling; Planes.dat and loadout.dat are patched slot by slot and grow.
class AircraftUnderFire : public FolderUnderFire {
 public:
  AircraftUnderFire();

 private:
  void lay_out_records();
  void lay_out_loadouts();
  void lay_out_names();
  void lay_out_menu(const std::string& name, int entries, const std::vector<int>& records);
};

}  // namespace vorlund::test
