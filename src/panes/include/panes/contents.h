// What the game folder holds and why, put into lines for the pane: composed of what the actions would do.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "panes/forecast.h"

namespace vorlund {

/// What the pane can show, in the order of its list.
enum class ContentsKind {
  kAll,          ///< every file that a set has chosen, and every loose one
  kWritten,      ///< "Process!" would write it
  kOverwritten,  ///< a later row wins over an earlier one
  kMissing,      ///< chosen, but not in the game folder
  kNoRow,        ///< loose, and chosen by no row and no slot
  kPatches,      ///< records of loader patches
  kOwnFiles,     ///< the game's own files, entry by entry
  kCleanUp,      ///< what "Clean Up" would do
  kWrong,        ///< errors and remarks
};
inline constexpr std::array<std::string_view, 9> kContentsKinds = {
    "All files",         "Would be written",   "Overwritten by a later row", "Missing",
    "Belongs to no row", "Patches in eaw.exe", "The game's own files",       "Clean Up",
    "What is wrong"};

/// One line of the table.
struct ContentsLine {
  ContentsKind kind = ContentsKind::kAll;  ///< kAll for a file that a set has chosen
  bool is_written = false;                 ///< for such a file: it belongs to these kinds too
  bool is_overwritten = false;
  bool is_missing = false;
  std::string file;                   ///< path inside the game folder, or what else the line tells of
  std::string from;                   ///< row or slot
  std::string also;                   ///< the rows that it wins over
  std::string state;                  ///< "in place", "differs" ...
  std::optional<std::uint64_t> size;  ///< in bytes
  std::vector<std::string> chain;     ///< every row that writes the file, in order, the winner marked

  [[nodiscard]] bool belongs_to(ContentsKind shown) const;
};

/// All of it.
struct Contents {
  std::string sentence;  ///< sums up, one line for each set
  std::vector<ContentsLine> lines;
};

Contents contents_of(const GameFolder& game, const Forecasts& forecasts, const SetsAtHand& sets);

/// "2.1 MB"; below a thousand "812 bytes".
std::string size_in_words(std::uint64_t bytes);

}  // namespace vorlund
