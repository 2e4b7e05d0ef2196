// A game folder, both tables and the two set-up panes.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "setups/load_pane.h"
#include "setups/save_pane.h"
#include "support/sample_environment.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

class SetupsFixture : public ::testing::Test {
 protected:
  SetupsFixture() {
    for (const char* name : {"Savedata", "~Vorlund/GameStore/Sky/Dusk", "~Vorlund/GameSetFiles",
                             "~Vorlund/PlaneSetFiles", "~Vorlund/FlightModels/Standard"}) {
      folder.make_folder(name);
    }
  }

  TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  SampleEnvironment environment{*files, folder.path()};
  MenuEditor menus{environment};
  GamePane game{environment};
  PlanePane plane{environment, menus};
  SavePane save{environment, game, plane};
  LoadPane load{environment, game, plane};
};

}  // namespace vorlund::test
