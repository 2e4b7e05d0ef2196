// Counts steps and copies.
#include "disk/copier.h"

#include <algorithm>
#include <array>

#include "base/text.h"
#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

namespace {

/// What the game can't be without, each with the backslash before its name.
constexpr std::array<std::string_view, 7> kNeeded = {
    kGameProgram,        kPlanesData,          kLoadoutData,      kPilotNames,
    kBritishPictureMenu, kAmericanPictureMenu, kGermanPictureMenu};

}  // namespace

ListedAhead::ListedAhead(FileSystem& files, const std::string& folder, std::string_view pattern) {
  try {
    names_ = list_files(files, folder, pattern);
  } catch (...) {
    failure_ = std::current_exception();
  }
}

const std::vector<std::string>& ListedAhead::names() const {
  if (failure_) std::rethrow_exception(failure_);
  return names_;
}

bool must_be_flushed(std::string_view path) {
  const std::string_view name = bare_name(path);
  if (to_upper(name).ends_with(".SVE")) return true;
  return std::any_of(kNeeded.begin(), kNeeded.end(),
                     [name](std::string_view needed) { return same_name(name, needed.substr(1)); });
}

Copier::Copier(const GameFolder& game, Status& status)
    : files_(game.files),
      status_(status),
      action_(
          game.files, [&status] { status.pulse(); }, game.path(kStore)) {}

void Copier::reach(std::string_view file) {
  const auto done = static_cast<double>(reached_++);
  const auto all = static_cast<double>(expected_);
  status_.progress({file, done < all ? done / all : all > 0 ? 1.0 : 0.0});
}

void Copier::copy(const std::string& source, const std::string& target) {
  const Durability durability = must_be_flushed(target) ? Durability::kFlushed : Durability::kCached;
  const CopyOutcome outcome = files_.copy_file(source, target, durability);
  ++(outcome == CopyOutcome::kWritten ? copied_ : unchanged_);
}

}  // namespace vorlund
