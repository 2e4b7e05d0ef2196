// Shares the room of the window among the panes.
#include "window/pane_layout.h"

#include <algorithm>
#include <array>

#include "window/theme.h"

namespace vorlund {

namespace {

constexpr int kBesideMenu = 262;  // the main menu's column ends here
constexpr int kRim = 12;
constexpr int kGap = 10;
constexpr int kTitle = 40;  // of a covered pane, so much is left to be clicked
constexpr QSize kMostPlane{1320, 1000};
constexpr QSize kMostGame{900, 1000};
constexpr QSize kLeastRoom{600, 380};

}  // namespace

QRect PaneLayout::room_in(const QSize& window, int status_height) {
  const QSize size(window.width() - kBesideMenu - kRim,
                   window.height() - kStripHeight - status_height - kGap);
  return {QPoint(kBesideMenu, kStripHeight), size.expandedTo(kLeastRoom)};
}

void PaneLayout::set(Frame& frame, const QRect& place) {
  frame.place.width = theme::twips(place.width());
  frame.place.height = theme::twips(place.height());
  const auto given = given_.find(&frame);
  if (given != given_.end() && given->second != QPoint(frame.place.left, frame.place.top)) return;
  frame.place.left = theme::twips(place.left());
  frame.place.top = theme::twips(place.top());
  given_[&frame] = QPoint(frame.place.left, frame.place.top);
}

void PaneLayout::place(Frame& frame, const QSize& most, const QRect& room) {
  QRect place(QPoint(), room.size().boundedTo(most));
  place.moveCenter(room.center());
  set(frame, place);
}

void PaneLayout::place_tables(PaneView& plane, Frame& plane_frame, PaneView& game, Frame& game_frame,
                              const QRect& room) {
  QRect upper(room.topLeft(), room.size().boundedTo(kMostPlane));
  QRect lower(room.topLeft(), room.size().boundedTo(kMostGame));
  if (plane_frame.visible && game_frame.visible) {
    const QSize least_game = game.least_size(kMostGame.width());
    const int beside = room.width() - kGap - least_game.width();
    const int below = room.height() - kGap - plane.least_size(upper.width()).height();
    if (beside >= plane.least_size(0).width()) {
      upper.setWidth(std::min(beside, kMostPlane.width()));
      lower.setLeft(upper.right() + 1 + kGap);
      lower.setRight(std::min(room.right(), lower.left() + kMostGame.width()));
    } else if (below >= least_game.height()) {
      lower.setHeight(std::max(least_game.height(), std::min(below, room.height() * 2 / 5)));
      upper.setHeight(room.height() - kGap - lower.height());
      lower.setWidth(upper.width());
      lower.moveTop(upper.bottom() + 1 + kGap);
    } else {
      QRect& front = plane_frame.depth > game_frame.depth ? upper : lower;
      front.setTop(room.top() + kTitle);
      front.setBottom(room.bottom());
    }
  }
  set(plane_frame, upper);
  set(game_frame, lower);
}

bool is_at_hand(const Form1& form, const Frame& table_frame) {
  const Frame& plane = form.plane.Frame1;
  const Frame& game = form.game.GameFrame;
  const Frame& other = &table_frame == &plane ? game : plane;
  if (!other.visible) return true;
  const bool covered = theme::pixels(table_frame.place).intersects(theme::pixels(other.place));
  if (covered || form.selection.mode == PaneMode::kFlightModelGroup) return table_frame.depth > other.depth;
  return &table_frame == (form.selection.mode == PaneMode::kGameSet ? &game : &plane);
}

bool table_is_covered(const Form1& form) {
  const Frame& table = form.selection.mode == PaneMode::kGameSet ? form.game.GameFrame : form.plane.Frame1;
  const QRect place = theme::pixels(table.place);
  const std::array<const Frame*, 9> panes = {
      &form.game.GameFrame,        &form.plane.Frame1,           &form.selection.Frame3,
      &form.possible_skins.Frame4, &form.load_pane.Frame2,       &form.save_pane.SaveFrame,
      &form.menu_editor.PMenFrame, &form.contents.ContentsFrame, &form.help.HelpFrame};
  return table.visible && std::any_of(panes.begin(), panes.end(), [&](const Frame* other) {
           return other->visible && other->depth > table.depth &&
                  theme::pixels(other->place).intersects(place);
         });
}

}  // namespace vorlund
