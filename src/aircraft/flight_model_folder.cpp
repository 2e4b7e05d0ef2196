// Forms the paths of flight models.
#include "aircraft/flight_model_folder.h"

#include "core/plain_name.h"
#include "core/store.h"

namespace vorlund {

std::string flight_model_group_folder(const Environment& environment, const PlaneTable& table) {
  const std::string& group = table.flight_model_group();
  return stays_below(group) ? environment.game.path(kFlightModels) + "\\" + group : "";
}

std::string flight_model_folder(const Environment& environment, const PlaneTable& table, int row) {
  const std::string group = flight_model_group_folder(environment, table);
  const std::string& name = table.G1.cell(row, PlaneTable::kScriptFolder);
  if (group.empty() || name.empty()) return group;
  return stays_below(name) ? group + "\\" + name : "";
}

void list_pattern(FileSystem& files, FileList& list, std::string_view pattern) {
  list.pattern = pattern;
  if (list.path.empty() || !files.FolderExists(list.path)) {
    list.names.clear();
    list.selected = -1;
  } else {
    list.refresh(files);
  }
}

}  // namespace vorlund
