// The game-set groups of the sample store: what stands in each set folder.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "sample_folder.h"
#include "sample_pictures.h"

namespace vorlund::sample {

struct GameSet {
  std::string_view name;
  std::string_view description;  ///< lines of contents.txt, "" for no such file
  std::string_view picture;      ///< name of the picture file, "" for none; its extension decides the format
  Motif motif;
  Hour hour;
  Season season;
  /// Names of the game files, separated by ";". "#" characters stand for a number, and "*24" after the name
  /// makes 24 such files, numbered from 0. "" for a set whose files are made elsewhere.
  std::string_view files;
};

struct GameGroup {
  std::string_view name;
  std::span<const GameSet> sets;
};

// The groups in order of their names, in three parts.
std::vector<GameGroup> flying_groups();
std::vector<GameGroup> world_groups();
std::vector<GameGroup> game_groups();

/// All of them, ordered by name.
std::vector<GameGroup> all_groups();

/// Writes the set folders but for their pictures, which are added to `pictures`.
void write_game_store(SampleFolder& folder, std::vector<PictureJob>& pictures);

/// One row of the game table.
struct GameRow {
  std::string_view group;
  std::string_view name;
};

/// Writes what installing the rows leaves in the game folder. None of the rows' sets may hold a loader patch.
void write_installed_sets(SampleFolder& folder, std::span<const GameRow> rows);

}  // namespace vorlund::sample
