// A table of text cells: what a player composes, before anyone shows it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace vorlund {

/// Rows of text cells. Row 0 is the header row. Which rows are shown and which cell is current belongs to the
/// table, because installing depends on the one and filling on the other.
///
/// Records come from other players too, and may have tens of millions of rows: a row takes four bytes, a bit
/// and its text, in which each cell takes one byte more (two from 128 bytes on). A row that is set gets a new
/// text behind the others, so rows can be kept as they were without a copy of theirs; once most of the text
/// is that of former rows the table goes on with a text of its own. One of 4 GiB or more counts as exhausted
/// memory: std::bad_alloc.
class CellTable {
 public:
  /// Rows as they were at a time, whatever became of the table since.
  class Rows {
   public:
    [[nodiscard]] std::size_t size() const { return starts_.size(); }
    [[nodiscard]] bool empty() const { return starts_.empty(); }

    /// `count` rows from row `first` on.
    [[nodiscard]] Rows part(std::size_t first, std::size_t count) const;

    /// True for rows of one table between which nothing was changed.
    [[nodiscard]] bool is(const Rows& other) const {
      return text_ == other.text_ && starts_ == other.starts_;
    }

    /// Bytes of text that would be given back without these rows, where the other ones are kept.
    [[nodiscard]] std::size_t bytes_beside(const Rows& other) const {
      return text_ == other.text_ ? 0 : text_->capacity();
    }

    /// All cells of a row in one text, which is the same for two rows where their cells are. It stands until
    /// the table is changed.
    [[nodiscard]] std::string_view packed(std::size_t row) const;

   private:
    friend class CellTable;
    std::shared_ptr<std::string> text_ = std::make_shared<std::string>();
    std::vector<std::uint32_t> starts_;  ///< of each row, in the text
  };

  int columns = 0;
  int current_row = 0;  ///< 0 counts as no selection
  int current_column = 0;

  /// Takes all rows away.
  void clear_rows();

  /// Adds a row at the end, its cells cut or filled up to the number of columns.
  void add_row(const std::vector<std::string>& cells);

  /// Adds a row for each line of a record: its cells stand between TABs, in the code page.
  void add_lines(std::string_view bytes);

  /// Puts other rows in the place of `count` rows from row `first` on, which exist; those are shown.
  void replace_rows(int first, int count, const Rows& rows);

  /// Text of a cell; "" where there is no such row or column.
  [[nodiscard]] std::string cell(int row, int column) const;

  /// All cells of a row that exists.
  [[nodiscard]] std::vector<std::string> cells(int row) const;

  /// Sets a cell that exists.
  void set_cell(int row, int column, std::string_view text);

  /// Sets all cells of a row that exists, cut or filled up to the number of columns.
  void set_row(int row, const std::vector<std::string>& cells);

  /// Shows or hides a row that exists.
  void hide_row(int row, bool hidden) { hidden_.at(static_cast<std::size_t>(row)) = hidden; }
  [[nodiscard]] bool is_hidden(int row) const { return hidden_.at(static_cast<std::size_t>(row)); }

  [[nodiscard]] int row_count() const { return static_cast<int>(rows_.size()); }
  [[nodiscard]] const Rows& rows() const { return rows_; }

 private:
  [[nodiscard]] std::uint32_t end_of_text() const;
  template <typename Cells>
  void add_packed(const Cells& cells);
  void leave_former_text();

  Rows rows_;
  std::vector<bool> hidden_;
  std::size_t former_ = 0;  ///< bytes of text of rows that were set since
};

}  // namespace vorlund
