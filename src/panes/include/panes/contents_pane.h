// The pane that tells what is in the game folder, and what the actions would make of it.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "panes/contents.h"
#include "panes/desk.h"

namespace vorlund {

/// State and verbs of `ContentsFrame`. It reads; nothing is written, and nothing is kept between two looks.
class ContentsPane {
 public:
  explicit ContentsPane(Desk& desk);

  /// Columns of the table.
  enum class Column { kFile, kFrom, kAlso, kState, kSize };
  static constexpr std::array<std::string_view, 5> kColumns = {"File", "Comes from", "Wins over", "State",
                                                               "Size"};

  Frame ContentsFrame{"What is in the game folder", false, {4200, 900, 16200, 9600}};
  std::array<Label, 3> Contents{
      {{"What is in the folder?"}, {"What is in the folder?"}, {"What is in the folder?"}}};
  Label ContentsSum;                             ///< sums up what the sets come to
  ListBox ContentsKinds;                         ///< what can be shown, each with how many lines it has
  TextBox ContentsFilter;                        ///< words that the lines shown must hold
  ListBox ContentsChain;                         ///< the rows that write the selected file, in order
  Label ContentsAgain{"Look again"};             ///< reads everything anew
  Label ContentsCopy{"Copy the selected rows"};  ///< puts them into the clipboard as text
  Label ContentsHide{"Hide"};

  std::string to_copy;      ///< text for the clipboard; whoever puts it there empties this
  bool is_reading = false;  ///< true while `look` runs: only then can it be left

  /// Reads tables and disk and shows the pane. Where the observer leaves, the pane stays as it was.
  void look(const SetsAtHand& sets);

  void show_kind(int index);
  void filter(std::string_view typed);

  /// Sorts by a column; by the same once more the other way round.
  void sort(int column);

  /// Selects lines by their place in the table; the first of them tells its chain.
  void select(const std::vector<int>& places);

  /// Puts the selected lines, or all that are shown where none is, into `to_copy`: a line each, cells parted
  /// by TABs, the headings first.
  void copy();

  void hide() { ContentsFrame.visible = false; }

  [[nodiscard]] int line_count() const { return static_cast<int>(shown_.size()); }

  /// Text of a cell of the table as it is shown.
  [[nodiscard]] std::string cell(int place, Column column) const;
  [[nodiscard]] const ContentsLine& line(int place) const;
  [[nodiscard]] const std::vector<int>& selected() const { return selected_; }
  [[nodiscard]] Column sorted_by() const { return sorted_by_; }
  [[nodiscard]] bool is_descending() const { return descending_; }

  /// Counts up whenever other lines are shown, or in another order.
  [[nodiscard]] int generation() const { return generation_; }

 private:
  void count_kinds();
  void refresh();

  Desk& desk_;
  vorlund::Contents contents_;
  ContentsKind kind_ = ContentsKind::kAll;
  Column sorted_by_ = Column::kFile;
  bool descending_ = false;
  std::vector<int> shown_;     ///< indices of the lines that are shown, in order
  std::vector<int> selected_;  ///< places among them
  int generation_ = 0;
};

}  // namespace vorlund
