// A game folder with a small store, and the window object started inside it.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "panes/form1.h"
#include "support/recording_status.h"
#include "support/started_in_folder.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

/// A left click.
inline MouseEvent left(int shift = 0) {
  return {MouseButton::kLeft, shift, 10, 10};
}

class FormFixture : public ::testing::Test {
 protected:
  FormFixture() {
    for (const char* name :
         {"Savedata", "Music", "~Vorlund/GameStore/Careers/Camp1", "~Vorlund/SkinStore",
          "~Vorlund/FlightModels/Standard", "~Vorlund/GameSetFiles", "~Vorlund/PlaneSetFiles"}) {
      folder.make_folder(name);
    }
    folder.write("~Vorlund/GameStore/Sky/Dusk/sky.pal", "dusk");
    folder.write("~Vorlund/GameStore/Sky/Dusk/contents.txt", "A red evening.\r\nCalm.\r\nBy hand.\r\n");
    folder.write("~Vorlund/GameStore/Sky/Dawn/sky.pal", "dawn");
    folder.write("~Vorlund/GameStore/Tweaks/Smoke/smoke.dat", "smoke");
    folder.write("~Vorlund/GameStore/Tweaks/Fire/fire.dat", "fire");
    folder.write("~Vorlund/CurrentGameSet.txt",
                 "Folder group\tFolder name\r\nCareers\t\r\nSky\tDawn\r\nTweaks\tSmoke\r\n");
  }

  Form1& start() {
    form = std::make_unique<Form1>(files, window, Version{1, 0, 7});
    form->Form_Load();
    return *form;
  }

  TemporaryFolder folder;
  std::unique_ptr<FileSystem> platform = make_platform_file_system();
  StartedInFolder files{*platform, folder.path()};
  RecordingStatus window;
  std::unique_ptr<Form1> form;
};

}  // namespace vorlund::test
