// Reads, patches and replaces a file as one step.
#include "disk/patch_file.h"

#include <algorithm>
#include <new>

#include "base/action_error.h"
#include "base/text.h"

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

bool is_there(FileSystem& files, std::string_view path) {
  if (files.FileExists(path)) return true;
  const std::string_view name = bare_name(path);
  const std::vector<FolderEntry> entries = files.entries(path.substr(0, path.size() - name.size()));
  return std::any_of(entries.begin(), entries.end(), [&](const FolderEntry& entry) {
    return entry.kind == EntryKind::kFile && same_name(entry.name, name);
  });
}

PatchedBytes& PatchedFile::open() {
  if (!content_) {
    existed_ = is_there(files_, path_);
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
