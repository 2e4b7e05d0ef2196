// What the game folder must hold after each action, worked out from the store without any code of the
// program.
#pragma once

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace vorlund::test {

/// Relative names with "/" between folders, and contents, as TemporaryFolder::tree gives them.
using Tree = std::map<std::string, std::string>;

/// Group and folder of each row, without the header. Texts are UTF-8.
using GameRows = std::vector<std::pair<std::string, std::string>>;

/// The ten cells of a slot: code, region, skin, record number, flight model, name, side, flyable, role, fuel.
using Slot = std::array<std::string, 10>;

struct Aircraft {
  std::string group;         ///< of flight models
  std::vector<Slot> rows{};  ///< thirty of them
};

/// The four-character code of a record, 0 to 29, in upper case.
std::string code_of(int record);

/// A game folder in memory that is taken through the program's actions. It follows the descriptions of the
/// files in docs/; nothing in it comes from the program.
class ExpectedGameFolder {
 public:
  explicit ExpectedGameFolder(Tree files);

  const Tree& files() const { return files_; }

  /// What the store offers for a record: the flight model of the group whose ".oaw" file bears the record's
  /// code, and the first skin made for it.
  Slot slot(const std::string& flight_models, int record) const;

  /// True when the slot's skin holds shapes, not textures alone.
  bool has_shapes(const Slot& slot) const;

  /// What a description, "contents.txt" of a folder of the store, says; "" where there is none.
  std::string description(const std::string& store_folder) const;

  // The actions.
  void start();
  void install(const GameRows& rows);
  void install(const Aircraft& aircraft);
  void save(const std::string& name, const GameRows& rows);
  void save(const std::string& name, const Aircraft& aircraft);

  /// `rows` and `aircraft` are the tables before the clean-up; they are left as it leaves them.
  void clean_up(GameRows& rows, Aircraft& aircraft);
  void delete_default_missions();

 private:
  /// Bare names of the files in a folder that `wanted` takes, by name without regard to case.
  template <class Wanted>
  std::vector<std::string> names_in(const std::string& folder, Wanted wanted) const;
  std::vector<std::string> folders_in(const std::string& folder) const;
  std::vector<std::string> named(const std::string& folder, const std::string& ending) const;

  std::string spelled(const std::string& name) const;
  bool has(const std::string& name) const { return !spelled(name).empty(); }
  const std::string& read(const std::string& name) const { return files_.at(spelled(name)); }
  void write(const std::string& name, const std::string& bytes);
  void remove(const std::string& name);

  std::string skin_code(const std::string& folder) const;
  void patch_executable(const std::string& patch);
  void write_aircraft_record(const std::string& folder, const Slot& slot);
  void write_load_outs(const std::string& folder, int record);
  void write_menu(const std::string& name, int entries, const std::vector<int>& records,
                  const std::vector<std::string>& names);

  Tree files_;
  std::map<std::string, std::string> spellings_;  ///< by the name in upper case
};

}  // namespace vorlund::test
