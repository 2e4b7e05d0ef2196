// Filters, sorts and copies the lines of the contents pane.
#include "panes/contents_pane.h"

#include <algorithm>
#include <numeric>

#include "base/name_filter.h"
#include "base/text.h"

namespace vorlund {

namespace {

std::string cell_of(const ContentsLine& line, ContentsPane::Column column) {
  switch (column) {
    case ContentsPane::Column::kFile:
      return line.file;
    case ContentsPane::Column::kFrom:
      return line.from;
    case ContentsPane::Column::kAlso:
      return line.also;
    case ContentsPane::Column::kState:
      return line.state;
    case ContentsPane::Column::kSize:
      return line.size ? size_in_words(*line.size) : std::string();
  }
  return {};
}

}  // namespace

ContentsPane::ContentsPane(Desk& desk) : desk_(desk) {
  ContentsKinds.selected = 0;
}

void ContentsPane::look(const SetsAtHand& sets) {
  const GameFolder game = desk_.game();
  is_reading = true;
  const Forecasts forecasts = foresee(game, desk_.status, sets);
  is_reading = false;
  if (!forecasts.is_whole) {
    desk_.say("The look into the game folder was left; nothing was written");
    return;
  }
  contents_ = contents_of(game, forecasts, sets);
  ContentsSum.caption = contents_.sentence;
  count_kinds();
  refresh();
  desk_.show_in_front(ContentsFrame);
  desk_.say("This is what the folder holds now and what the actions would do; nothing was written");
}

void ContentsPane::count_kinds() {
  ContentsKinds.items.clear();
  for (std::size_t kind = 0; kind < kContentsKinds.size(); ++kind) {
    const auto count = std::count_if(contents_.lines.begin(), contents_.lines.end(), [&](const auto& line) {
      return line.belongs_to(static_cast<ContentsKind>(kind));
    });
    ContentsKinds.items.push_back(std::string(kContentsKinds[kind]) + " (" +
                                  grouped(static_cast<std::uint64_t>(count)) + ")");
  }
}

void ContentsPane::refresh() {
  const NameFilter filter(ContentsFilter.text);
  shown_.clear();
  std::vector<std::string> keys(contents_.lines.size());
  for (std::size_t index = 0; index < contents_.lines.size(); ++index) {
    const ContentsLine& line = contents_.lines[index];
    if (!line.belongs_to(kind_)) continue;
    if (!filter.matches(line.file + "\t" + line.from + "\t" + line.also + "\t" + line.state)) continue;
    shown_.push_back(static_cast<int>(index));
    if (sorted_by_ != Column::kSize) keys[index] = to_upper(cell_of(line, sorted_by_));
  }
  const auto less = [&](int a, int b) {
    const auto first = static_cast<std::size_t>(descending_ ? b : a);
    const auto second = static_cast<std::size_t>(descending_ ? a : b);
    if (sorted_by_ == Column::kSize) return contents_.lines[first].size < contents_.lines[second].size;
    return keys[first] < keys[second];
  };
  // Patches and the like stand in the order in which they are applied until a heading is clicked.
  const bool in_order =
      sorted_by_ == Column::kFile && !descending_ &&
      (kind_ == ContentsKind::kPatches || kind_ == ContentsKind::kOwnFiles || kind_ == ContentsKind::kWrong);
  if (!in_order) std::stable_sort(shown_.begin(), shown_.end(), less);
  selected_.clear();
  ContentsChain = {};
  ++generation_;
}

void ContentsPane::show_kind(int index) {
  if (index < 0 || index >= static_cast<int>(kContentsKinds.size())) return;
  ContentsKinds.selected = index;
  kind_ = static_cast<ContentsKind>(index);
  refresh();
}

void ContentsPane::filter(std::string_view typed) {
  ContentsFilter.text = typed;
  refresh();
}

void ContentsPane::sort(int column) {
  const auto wanted = static_cast<Column>(column);
  descending_ = wanted == sorted_by_ && !descending_;
  sorted_by_ = wanted;
  refresh();
}

void ContentsPane::select(const std::vector<int>& places) {
  selected_ = places;
  std::erase_if(selected_, [this](int place) { return place < 0 || place >= line_count(); });
  ContentsChain = {};
  if (!selected_.empty()) ContentsChain.items = line(selected_.front()).chain;
}

void ContentsPane::copy() {
  std::vector<int> places = selected_;
  if (places.empty()) {
    places.resize(shown_.size());
    std::iota(places.begin(), places.end(), 0);
  }
  to_copy.clear();
  for (const std::string_view heading : kColumns) to_copy.append(to_copy.empty() ? "" : "\t").append(heading);
  for (const int place : places) {
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
      to_copy.append(column == 0 ? "\n" : "\t").append(cell(place, static_cast<Column>(column)));
    }
  }
  desk_.say(counted(places.size(), "row was copied", "rows were copied"));
}

std::string ContentsPane::cell(int place, Column column) const {
  return cell_of(line(place), column);
}

const ContentsLine& ContentsPane::line(int place) const {
  return contents_.lines[static_cast<std::size_t>(shown_.at(static_cast<std::size_t>(place)))];
}

}  // namespace vorlund
