// Game folders of the smaller actions, and of the one that loads and installs a set-up of either kind.
#pragma once

#include "actions/aircraft_under_fire.h"

namespace vorlund::test {

/// A store whose list of skins is older than its skins, which a start makes anew.
class StartUnderFire : public FolderUnderFire {
 public:
  StartUnderFire();
};

/// The game's own missions, among other files of "Savedata".
class MissionsUnderFire : public FolderUnderFire {
 public:
  MissionsUnderFire();
};

/// A recorded game set that is saved in the place of an older one.
class SaveUnderFire : public FolderUnderFire {
 public:
  SaveUnderFire();
};

/// A saved aircraft set and a saved game set, both of which are loaded and installed.
class LoadUnderFire : public AircraftUnderFire {
 public:
  LoadUnderFire();
};

}  // namespace vorlund::test
