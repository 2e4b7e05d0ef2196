// Counts steps and copies.
#include "disk/copier.h"

#include "base/text.h"
#include "disk/listing.h"
#include "disk/store.h"

namespace vorlund {

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
  const bool save = same_name(last_characters(target, 4), ".SVE");
  const CopyOutcome outcome =
      files_.copy_file(source, target, save ? Durability::kFlushed : Durability::kCached);
  ++(outcome == CopyOutcome::kWritten ? copied_ : unchanged_);
}

std::string counted(std::uint64_t count, std::string_view one, std::string_view many) {
  return std::to_string(count).append(" ").append(count == 1 ? one : many);
}

std::string copies_in_words(const Copier& copier) {
  std::string text = counted(copier.copied(), "file", "files") + " copied";
  if (copier.unchanged() > 0) text += ", " + std::to_string(copier.unchanged()) + " already in place";
  return text;
}

}  // namespace vorlund
