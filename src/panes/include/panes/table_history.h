// What was changed in the two tables since the start, so that it can be taken back and done again.
#pragma once

#include <cstddef>
#include <deque>
#include <string>
#include <string_view>

#include "panes/game_pane.h"
#include "panes/plane_pane.h"

namespace vorlund {

/// Steps of the game table, of the plane table and of its flight-model group, in memory alone: no file is
/// touched. Only the rows that a step has changed are kept, of the last kMostSteps steps, or of fewer where
/// those would take more text beside the tables' own than is given; the last step is always kept.
class TableHistory {
 public:
  static constexpr std::size_t kMostSteps = 1000;
  static constexpr std::size_t kMostBytes = std::size_t{256} << 20;

  /// The panes outlive the history.
  TableHistory(GamePane& game, PlanePane& plane, std::size_t most_bytes = kMostBytes)
      : game_(game), plane_(plane), most_bytes_(most_bytes) {}

  /// Forgets all steps; what the tables hold now is the beginning.
  void begin();

  /// Takes what differs from the step before as a new step, and forgets those that were taken back. `what`
  /// says what was done; "" for what the player did not do, which goes back and forth with the step before
  /// it. Where nothing differs there is no step.
  void note(std::string_view what);

  /// Takes the last step back, or does the one again that was taken back last, and makes the changed row the
  /// current one. Returns what the step was; "" where there is none, and nothing is changed.
  std::string take_back();
  std::string do_again();

 private:
  using Rows = CellTable::Rows;

  /// The rows from `first` on that a step has replaced.
  struct Change {
    std::size_t first = 0;
    Rows before;
    Rows after;
    [[nodiscard]] bool any() const { return !before.empty() || !after.empty(); }
  };
  struct Step {
    std::string what;
    Change game;
    Change plane;
    std::string group_before;
    std::string group_after;
    [[nodiscard]] std::size_t bytes() const {
      return game.before.bytes_beside(game.after) + plane.before.bytes_beside(plane.after);
    }
  };
  enum class Direction { kBack, kForth };

  static Change change_between(const Rows& before, const Rows& after);
  void apply(const Step& step, Direction direction);
  void forget_oldest();

  GamePane& game_;
  PlanePane& plane_;
  std::size_t most_bytes_;
  Rows game_rows_;  ///< as the last step left them
  Rows plane_rows_;
  std::string group_;
  std::deque<Step> steps_;
  std::size_t done_ = 0;   ///< steps that are not taken back
  std::size_t bytes_ = 0;  ///< of all steps
};

}  // namespace vorlund
