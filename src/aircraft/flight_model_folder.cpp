// Forms the paths of flight models.
#include "aircraft/flight_model_folder.h"

#include "base/plain_name.h"
#include "disk/store.h"

namespace vorlund {

std::string flight_model_group_folder(const GameFolder& game, const PlaneTable& table) {
  const std::string& group = table.flight_model_group;
  if (!stays_below(group)) return {};
  return game.path(kFlightModels) + "\\" + group;
}

std::string flight_model_folder(const GameFolder& game, const PlaneTable& table, int row) {
  std::string group = flight_model_group_folder(game, table);
  const std::string name = table.cell(row, PlaneTable::kScriptFolder);
  if (group.empty() || name.empty()) return group;
  if (!stays_below(name)) return {};
  return group + "\\" + name;
}

std::vector<std::string> list_model_files(FileSystem& files, const std::string& folder,
                                          std::string_view pattern) {
  if (folder.empty() || !files.FolderExists(folder)) return {};
  return list_files(files, folder, pattern);
}

}  // namespace vorlund
