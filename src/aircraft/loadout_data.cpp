// Patches the two areas of a record number from the files of one folder.
#include "aircraft/loadout_data.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "aircraft/flight_model_folder.h"
#include "aircraft/positioned_file.h"
#include "aircraft/value_file.h"
#include "base/action_error.h"
#include "disk/store.h"

namespace vorlund {

namespace {

constexpr int kFirstAreaRecord = 44;
constexpr int kSecondAreaRecord = 12;
constexpr std::int64_t kSecondAreaStart = 7929;  // position of record number 0, counted from 1
constexpr std::int64_t kSecondAreaBlock = 60;
static_assert(kSecondAreaBlock == std::int64_t{5} * kSecondAreaRecord);

/// True where every record number has room for 7 or 3 records before the next one's.
constexpr bool offsets_leave_room() {
  for (std::size_t number = 0; number + 2 < kLoadoutOffsets.size(); ++number) {
    const int room = kLoadoutOffsets[number + 1] - kLoadoutOffsets[number];
    if (room != 7 * kFirstAreaRecord && room != 3 * kFirstAreaRecord) return false;
  }
  return true;
}
static_assert(offsets_leave_room());

struct Area {
  std::string_view pattern;
  int record_size;
  std::function<std::int64_t(int)> start;  // position of a record number's block
};

class LoadOutWriter {
 public:
  LoadOutWriter(const GameFolder& game, const PlaneTable& table, int row, const std::string& folder,
                PatchedFile& loadouts)
      : game_(game), table_(table), row_(row), folder_(folder), loadouts_(loadouts) {}

  bool write(const Area& area) {
    const int number = table_.record_number(row_);
    const std::vector<std::string> found = list_model_files(game_.files, folder_, area.pattern);
    // Deliberate: of two files neither can be told to be the right one, so the area stays as it is.
    if (found.size() != 1) return false;
    PositionedFile content(loadouts_.open(), loadouts_.path(),
                           table_.describe_cell(row_, PlaneTable::kRecordNumber));
    ValueFile values(game_.files, folder_ + "\\" + found.front());
    values.skip_title();
    std::int64_t position = area.start(number);
    // Deliberate: no end is set. A file that is longer than the block writes on into the next number's.
    for (int count = 0; !values.at_end(); count = (count + 1) % area.record_size, ++position) {
      const double value = values.next_value();
      content.put(position, values.to_byte(count == 0 ? number : value));
    }
    return true;
  }

 private:
  const GameFolder& game_;
  const PlaneTable& table_;
  int row_;
  const std::string& folder_;
  PatchedFile& loadouts_;
};

}  // namespace

LoadOutOutcome LoadOutWrite(const GameFolder& game, const PlaneTable& table, int row,
                            const std::string& folder, PatchedFile& loadouts) {
  const auto first_area_start = [&](int number) -> std::int64_t {
    if (number < 0 || number >= static_cast<int>(kLoadoutOffsets.size())) {
      throw ActionError("find the load-out of", table.describe_cell(row, PlaneTable::kRecordNumber),
                        "subscript " + std::to_string(number) + " is not in 0 to 30");
    }
    return kLoadoutOffsets[static_cast<std::size_t>(number)];
  };
  const auto second_area_start = [](int number) { return kSecondAreaBlock * number + kSecondAreaStart; };
  LoadOutWriter writer(game, table, row, folder, loadouts);
  LoadOutOutcome outcome;
  outcome.first_area = writer.write({"*.lo1", kFirstAreaRecord, first_area_start});
  outcome.second_area = writer.write({"*.lo2", kSecondAreaRecord, second_area_start});
  return outcome;
}

}  // namespace vorlund
