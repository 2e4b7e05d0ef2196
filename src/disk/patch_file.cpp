// Reads, patches and replaces a file as one step.
#include "disk/patch_file.h"

#include <new>

#include "base/action_error.h"

namespace vorlund {

void PatchedBytes::put(std::size_t offset, std::uint8_t value) {
  const char byte = static_cast<char>(value);
  put(offset, std::string_view(&byte, 1));
}

void PatchedBytes::put(std::size_t offset, std::string_view run) {
  if (run.empty()) return;
  if (bytes_.size() < offset + run.size()) bytes_.resize(offset + run.size(), '\0');
  bytes_.replace(offset, run.size(), run);
}

PatchedBytes& PatchedFile::open() {
  if (!content_) {
    existed_ = files_.is_there(path_);
    content_.emplace(existed_ ? files_.read_file(path_) : std::string());
  }
  return *content_;
}

void PatchedFile::keep() {
  const bool wanted = content_ && (!existed_ || content_->changed());
  if (wanted) files_.replace_file(path_, content_->bytes(), Durability::kFlushed);
}

void PatchedFile::patch(const std::function<void()>& steps) try {
  try {
    steps();
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {
    keep();
    throw;
  }
  keep();
} catch (const std::bad_alloc&) {
  throw ActionError("patch", path_, kOutOfMemory);
}

}  // namespace vorlund
