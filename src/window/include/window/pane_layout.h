// Where the panes stand: beside the main menu, below the strip of the table labels, above the status line.
#pragma once

#include <QPoint>
#include <QRect>
#include <map>

#include "window/pane_view.h"

namespace vorlund {

/// Gives each pane its place each time the window is laid out. The two tables stand side by side or one above
/// the other where there is room for both; else the front one leaves the title of the other free. What the
/// player dragged stays where it was left.
class PaneLayout {
 public:
  static constexpr int kStripHeight = 54;  ///< pixels at the top that belong to the table labels alone

  /// The room that panes have in a window of this size above a status line of that height.
  [[nodiscard]] static QRect room_in(const QSize& window, int status_height);

  /// Places both tables.
  void place_tables(PaneView& plane, Frame& plane_frame, PaneView& game, Frame& game_frame,
                    const QRect& room);

  /// Gives a pane as much of the room as it wants, at most, in the middle of it.
  void place(Frame& frame, const QSize& most, const QRect& room);

 private:
  void set(Frame& frame, const QRect& place);

  std::map<const Frame*, QPoint> given_;  ///< corners in twips, to tell what was dragged since
};

/// Of the two tables that are shown, that of the running work, or the one in front where it covers the other:
/// its main command is the golden one.
[[nodiscard]] bool is_at_hand(const Form1& form, const Frame& table_frame);

/// True while another pane lies over the table that the running work is about.
[[nodiscard]] bool table_is_covered(const Form1& form);

}  // namespace vorlund
