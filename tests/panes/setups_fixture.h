// A game folder, both tables and the two set-up panes.
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "support/form_in_folder.h"
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
  FormInFolder work{*files, folder.path()};
  Form1& form = work.form;
  GamePane& game = form.game;
  PlanePane& plane = form.plane;
  SavePane& save = form.save_pane;
  LoadPane& load = form.load_pane;
};

}  // namespace vorlund::test
