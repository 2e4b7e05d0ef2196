// Each action, then its record.
#include "panes/set_actions.h"

#include <string_view>

#include "aircraft/plane_record.h"
#include "base/plain_name.h"
#include "disk/store.h"
#include "gamesets/game_record.h"

namespace vorlund {

GameSetSummary process_game_set(const GameFolder& game, Status& status, const GameTable& games) {
  GameSetSummary summary = install_game_set(game, status, games);
  SaveGS(game, games);
  return summary;
}

AircraftSummary process_aircraft_set(const GameFolder& game, Status& status, PlaneTable& planes,
                                     PilotNames& names, PictureMenu& menu) {
  AircraftSummary summary = install_aircraft_set(game, status, planes, names, menu);
  SavePS(game, planes);
  return summary;
}

CleanUpSummary clean_up_sets(const GameFolder& game, Status& status, GameTable& games, PlaneTable& planes) {
  CleanUpSummary summary = clean_game_directory(game, status, games);
  games.clear_folders();
  SaveGS(game, games);
  planes.clear_slots();
  SavePS(game, planes);
  return summary;
}

std::vector<std::string> written_folders(const GameFolder& game, const GameTable& games) {
  std::vector<std::string> folders;
  for (const std::string_view name :
       {std::string_view(), kSavedata, kMusic, kStore, kSkinStore, kGameSetFiles, kPlaneSetFiles}) {
    folders.push_back(game.path(name));
  }
  const std::string home = careers_home_name(games);
  if (stays_below(home)) folders.push_back(game.path(kGameStore) + "\\" + home);
  return folders;
}

}  // namespace vorlund
