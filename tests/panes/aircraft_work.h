// The panes of the aircraft work over a folder on the disk, composed as the window object composes them.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "support/form_in_folder.h"
#include "support/recording_file_system.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

/// Base of test classes for the panes of the aircraft work. Slots of the plane table used here: row 1 is
/// P38H, row 12 is SP09.
class AircraftWork : public ::testing::Test {
 protected:
  static constexpr int kSpitfireRow = 12;

  /// Makes a skin folder with empty files of these names.
  void make_skin(const std::string& skin, const std::vector<std::string>& names) const {
    folder.make_folder("~Vorlund/SkinStore/" + skin);
    for (const std::string& name : names) folder.write("~Vorlund/SkinStore/" + skin + "/" + name, "");
  }

  std::string cell(int row, int column) const { return plane.G1.cell(row, column); }

  /// Cells of a row, one blank-separated text with "-" for an empty cell.
  std::string row_text(int row) const {
    std::string text;
    for (int column = 0; column < PlaneTable::kColumns; ++column) {
      const std::string& value = plane.G1.cell(row, column);
      text += (column == 0 ? "" : " ") + (value.empty() ? "-" : value);
    }
    return text;
  }

  /// What the status line says.
  std::string last_outcome() const { return work.said(); }

  TemporaryFolder folder;
  std::unique_ptr<FileSystem> disk = make_platform_file_system();
  RecordingFileSystem files{*disk};
  FormInFolder work{files, folder.path()};
  Form1& form = work.form;
  SharedLabels& labels = form.desk.labels;
  PlanePane& plane = form.plane;
  SelectionPane& selection = form.selection;
  PossibleSkins& skins = form.possible_skins;
  FlightModelBrowser& browser = form.browser;
};

}  // namespace vorlund::test
