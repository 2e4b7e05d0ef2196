// Random small game folders with a store and tables, hostile things among them; the same again for one seed.
#pragma once

#include <random>
#include <string>
#include <vector>

#include "panes/form1.h"
#include "support/temporary_folder.h"

namespace vorlund::test {

/// Makes the folder and the tables that belong to it.
class MadeGame {
 public:
  explicit MadeGame(unsigned seed) : random_(seed) {}

  /// Fills the folder; always the same for one seed.
  void lay_out(const TemporaryFolder& folder);

  /// Fills the tables of a form that works in the folder.
  void fill_tables(Form1& form);

  /// True where a picture menu has an entry of length 0, which shifts the file at every run.
  [[nodiscard]] bool has_shifting_menu() const { return has_shifting_menu_; }

 private:
  bool chance(int percent) { return number(100) < percent; }
  int number(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }
  template <typename Pool>
  std::string one_of(const Pool& pool) {
    return std::string(pool[static_cast<std::size_t>(number(static_cast<int>(std::size(pool))))]);
  }

  std::string bytes();
  std::string patch();
  std::string values(int lines);
  std::string names_file();
  std::string menu();
  void lay_out_sets(const TemporaryFolder& folder);
  void lay_out_aircraft(const TemporaryFolder& folder);
  void lay_out_game(const TemporaryFolder& folder);
  void lay_out_hostile(const TemporaryFolder& folder);

  std::mt19937 random_;
  bool has_shifting_menu_ = false;
};

}  // namespace vorlund::test
