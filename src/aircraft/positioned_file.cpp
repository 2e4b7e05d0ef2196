// Checks positions before it writes.
#include "aircraft/positioned_file.h"

#include <utility>

#include "base/action_error.h"

namespace vorlund {

PositionedFile::PositionedFile(PatchedBytes& content, std::string path, std::string origin)
    : content_(content), path_(std::move(path)), origin_(std::move(origin)) {}

void PositionedFile::put(std::int64_t position, std::uint8_t value) {
  if (position < 1) {
    throw ActionError("write into", path_,
                      "bad position " + std::to_string(position) + ", which comes from " + origin_);
  }
  content_.put(static_cast<std::size_t>(position - 1), value);
}

}  // namespace vorlund
