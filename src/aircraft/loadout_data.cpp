// Patches the two areas of a record number from the files of the selected folder.
#include "aircraft/loadout_data.h"

#include <functional>
#include <string>
#include <string_view>

#include "aircraft/flight_model_folder.h"
#include "aircraft/positioned_file.h"
#include "aircraft/value_file.h"
#include "core/action_error.h"
#include "core/store.h"

namespace vorlund {

namespace {

constexpr int kFirstAreaRecord = 44;
constexpr int kSecondAreaRecord = 12;
constexpr std::int64_t kSecondAreaStart = 7929;  // position of record number 0, counted from 1
constexpr std::int64_t kSecondAreaBlock = 60;

struct Area {
  std::string_view pattern;
  int record_size;
  std::function<std::int64_t(int)> start;  // position of a record number's block
};

bool write_area(Environment& environment, const PlaneTable& table, int row, FileList& selected,
                const Area& area) {
  const int number = table.record_number(row);
  list_pattern(environment.files, selected, area.pattern);
  // Deliberate: of two files neither can be told to be the right one, so the area stays as it is.
  if (selected.names.size() != 1) return false;
  const std::string path = environment.game.path(kLoadoutData);
  patch_file(environment.files, path, [&](PatchedBytes& content) {
    PositionedFile loadouts(content, path, table.describe_cell(row, PlaneTable::kRecordNumber));
    ValueFile values(environment.files, selected.path + "\\" + selected.names.front());
    values.skip_title();
    std::int64_t position = area.start(number);
    // Deliberate: no end is set. A file that is longer than the block writes on into the next number's.
    for (int count = 0; !values.at_end(); ++count, ++position) {
      const double value = values.next_value();
      loadouts.put(position, values.to_byte(count % area.record_size == 0 ? number : value));
    }
  });
  return true;
}

}  // namespace

LoadOutOutcome LoadOutWrite(Environment& environment, const PlaneTable& table, int row, FileList& selected) {
  const auto first_area_start = [&](int number) -> std::int64_t {
    if (number < 0 || number >= static_cast<int>(kLoadoutOffsets.size())) {
      throw ActionError("find the load-out of", table.describe_cell(row, PlaneTable::kRecordNumber),
                        "subscript " + std::to_string(number) + " is not in 0 to 30");
    }
    return kLoadoutOffsets[static_cast<std::size_t>(number)];
  };
  const auto second_area_start = [](int number) { return kSecondAreaBlock * number + kSecondAreaStart; };
  LoadOutOutcome outcome;
  outcome.first_area =
      write_area(environment, table, row, selected, {"*.lo1", kFirstAreaRecord, first_area_start});
  outcome.second_area =
      write_area(environment, table, row, selected, {"*.lo2", kSecondAreaRecord, second_area_start});
  return outcome;
}

}  // namespace vorlund
