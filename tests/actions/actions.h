// Every action of the program that writes or deletes files: what is clicked for it, and where it is cut off.
// All sweeps share this table.
#pragma once

#include <array>
#include <iosfwd>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "actions/folder_under_fire.h"
#include "panes/form1.h"

namespace vorlund::test {

struct ActionOfProgram {
  const char* name;                 ///< as the programs that do it are told
  std::vector<const char*> before;  ///< what is clicked before: controls, and "List[0]" for an entry
  const char* click;                ///< what is clicked to act; "" for the start of the program
  const char* record;               ///< the file that says it is done, "" where none does
  std::unique_ptr<FolderUnderFire> (*folder)();  ///< in which it is cut off
};

/// For the reports of the tests.
void PrintTo(const ActionOfProgram& action, std::ostream* out);

inline constexpr int kActionCount = 7;

/// The actions of the program.
const std::array<ActionOfProgram, kActionCount>& actions();

/// The action of that name; null where there is none.
const ActionOfProgram* action_of_name(std::string_view name);

/// Brings a window object that has just been made to the click that acts, and does that click.
void prepare(const ActionOfProgram& action, Form1& form);
void act(const ActionOfProgram& action, Form1& form);

/// For the names of tests, which may hold letters and digits alone: "CleanUp".
std::string name_in_tests(const ActionOfProgram& action);

/// A game folder in which each of the actions has something to do.
void lay_out_for_all(const TemporaryFolder& folder);

}  // namespace vorlund::test
