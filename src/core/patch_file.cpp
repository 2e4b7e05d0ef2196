// Reads, patches and replaces a file as one step.
#include "core/patch_file.h"

#include <algorithm>
#include <new>

#include "core/action_error.h"
#include "core/text.h"

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

void patch_file(FileSystem& files, std::string_view path,
                const std::function<void(PatchedBytes&)>& patch) try {
  const bool existed = is_there(files, path);
  PatchedBytes content(existed ? files.read_file(path) : std::string());
  const auto keep = [&] {
    if (!existed || content.changed()) files.replace_file(path, content.bytes(), Durability::kCached);
  };
  try {
    patch(content);
  } catch (const std::bad_alloc&) {
    throw;
  } catch (...) {
    keep();
    throw;
  }
  keep();
} catch (const std::bad_alloc&) {
  throw ActionError("patch", path, kOutOfMemory);
}

}  // namespace vorlund
