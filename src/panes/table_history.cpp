// Finds the rows that a step has changed, and puts them back.
#include "panes/table_history.h"

#include <algorithm>
#include <utility>

namespace vorlund {

void TableHistory::begin() {
  steps_.clear();
  done_ = 0;
  bytes_ = 0;
  game_rows_ = game_.G2.rows();
  plane_rows_ = plane_.G1.rows();
  group_ = plane_.G1.flight_model_group;
}

TableHistory::Change TableHistory::change_between(const Rows& before, const Rows& after) {
  const std::size_t shared = std::min(before.size(), after.size());
  std::size_t first = 0;
  while (first < shared && before.packed(first) == after.packed(first)) ++first;
  std::size_t last = 0;
  while (last < shared - first &&
         before.packed(before.size() - 1 - last) == after.packed(after.size() - 1 - last)) {
    ++last;
  }
  return {first, before.part(first, before.size() - first - last),
          after.part(first, after.size() - first - last)};
}

void TableHistory::note(std::string_view what) {
  Step step{std::string(what), change_between(game_rows_, game_.G2.rows()),
            change_between(plane_rows_, plane_.G1.rows()), group_, plane_.G1.flight_model_group};
  if (!step.game.any() && !step.plane.any() && step.group_before == step.group_after) return;
  if (step.game.any()) game_rows_ = game_.G2.rows();
  if (step.plane.any()) plane_rows_ = plane_.G1.rows();
  group_ = step.group_after;
  for (; steps_.size() > done_; steps_.pop_back()) bytes_ -= steps_.back().bytes();
  bytes_ += step.bytes();
  steps_.push_back(std::move(step));
  done_ = steps_.size();
  while (steps_.size() > kMostSteps || (steps_.size() > 1 && bytes_ > most_bytes_)) forget_oldest();
}

void TableHistory::forget_oldest() {
  bytes_ -= steps_.front().bytes();
  steps_.pop_front();
  --done_;
}

std::string TableHistory::take_back() {
  std::size_t wanted = done_;
  while (wanted > 0 && steps_[wanted - 1].what.empty()) --wanted;
  if (wanted == 0) return {};
  while (done_ >= wanted) apply(steps_[--done_], Direction::kBack);
  return steps_[done_].what;
}

std::string TableHistory::do_again() {
  if (done_ == steps_.size()) return {};
  std::string what = steps_[done_].what;
  do {
    apply(steps_[done_++], Direction::kForth);
  } while (done_ < steps_.size() && steps_[done_].what.empty());
  return what;
}

void TableHistory::apply(const Step& step, Direction direction) {
  const bool back = direction == Direction::kBack;
  const auto replace = [back](CellTable& table, Rows& kept, const Change& change) {
    const Rows& there = back ? change.after : change.before;
    const Rows& wanted = back ? change.before : change.after;
    table.replace_rows(static_cast<int>(change.first), static_cast<int>(there.size()), wanted);
    kept = table.rows();
    return wanted.empty() ? 0 : static_cast<int>(change.first);  // no other row shall be taken for it
  };
  if (step.game.any()) {
    const int row = replace(game_.G2, game_rows_, step.game);
    game_.G2.g2update();
    game_.G2.select(row);
  }
  if (step.plane.any()) {
    const int row = replace(plane_.G1, plane_rows_, step.plane);
    plane_.show_changed(row);
  }
  if (step.group_before != step.group_after) {
    group_ = back ? step.group_before : step.group_after;
    plane_.set_flight_model_group(group_);
  }
}

}  // namespace vorlund
