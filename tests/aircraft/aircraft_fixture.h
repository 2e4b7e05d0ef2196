// A made game folder with a flight-model group, and the plane table, for tests of the aircraft writers.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <string>
#include <vector>

#include "aircraft/plane_table.h"
#include "base/action_error.h"
#include "disk/game_folder.h"
#include "disk/patch_file.h"
#include "support/recording_status.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

/// The text of a number file: a title and one number a line.
inline std::string value_text(const std::string& title, const std::vector<std::string>& values) {
  std::string text = title + "\r\n";
  for (const std::string& value : values) text += value + "\r\n";
  return text;
}

/// As many values, all the same.
inline std::vector<std::string> same_values(std::size_t count, const std::string& value) {
  return std::vector<std::string>(count, value);
}

/// What an action that must fail says; "" when it does not fail.
template <typename Action>
std::string error_of(const Action& action) {
  try {
    action();
  } catch (const ActionError& error) {
    return error.what();
  }
  return "";
}

class AircraftTest : public ::testing::Test {
 protected:
  AircraftTest() {
    folder.make_folder("~Vorlund/FlightModels/1944");
    table.flight_model_group = "1944";
  }

  /// Writes a file of a flight model of the group.
  void model(const std::string& name, const std::string& bytes) const {
    folder.write("~Vorlund/FlightModels/1944/" + name, bytes);
  }

  /// Fills the cells of a row from "PlnDat" on: record, flight model, name, side, flyable, role, fuel.
  void fill_row(int row, const std::vector<std::string>& cells) {
    int column = PlaneTable::kRecordNumber;
    for (const std::string& cell : cells) table.set_cell(row, column++, cell);
  }

  TemporaryFolder folder;
  std::unique_ptr<FileSystem> files = make_platform_file_system();
  GameFolder game{*files, folder.path()};
  test::RecordingStatus status;
  PlaneTable table;
};

}  // namespace vorlund::test
