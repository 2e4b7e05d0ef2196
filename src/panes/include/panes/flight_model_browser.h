// The flight-model browser: puts flight models into slots and finds skins that fit a flight model.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "disk/listing.h"
#include "panes/desk.h"
#include "panes/plane_pane.h"
#include "panes/possible_skins.h"
#include "panes/selection_pane.h"

namespace vorlund {

/// Verbs of the lists beside the plane table. What a click in `List2` does depends on the option button that
/// is set.
class FlightModelBrowser {
 public:
  /// All outlive the browser.
  FlightModelBrowser(Desk& desk, PlanePane& plane, SelectionPane& selection, PossibleSkins& possible_skins);

  FolderList Dir3;  ///< folders of the current flight-model group

  /// Prepares the panes for the aircraft work: labels of the skin groups, flight models, plane codes, the
  /// slots of the plane table and the display names. `work_on` must have been called before.
  void DoFM();

  /// Selects a flight model in `List2` and acts on it. "Match skin to selected FM" offers the skins whose
  /// names hold the longest beginning of the flight model's name. "Edit Mode" and "Find FM for selected slot"
  /// put it into the current row of the plane table: its folder always, the rest only where its first ".oaw"
  /// file has 169 lines.
  void select_flight_model(int index);

  /// Selects a plane code in `List3` and makes its number the record number of the current row.
  void select_plane_code(int index);

  /// What a click on the picture of a possible skin does after `PossibleSkins::choose`: once skins were
  /// matched to a flight model, the selected flight model is put into the current row too.
  void apply_matched_skin();

 private:
  struct SkinLabel {
    std::string group;
    std::string folder;
  };

  void use_flight_model();
  void match_skins(const std::string& flight_model);
  std::vector<SkinLabel> open_every_group();

  /// Returns what it came to, in plain words.
  std::string put_into_row(const std::string& flight_model);
  /// What is read of an ".oaw" file.
  struct FlightModelLines {
    std::string title;           ///< line 1, in the code page
    std::vector<double> values;  ///< line 2 and on
  };

  void describe(int row, const FlightModelLines& lines);
  [[nodiscard]] std::string selected_flight_model() const;

  Desk& desk_;
  PlanePane& plane_;
  SelectionPane& selection_;
  PossibleSkins& possible_skins_;
};

}  // namespace vorlund
