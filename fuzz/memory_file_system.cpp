// Files in memory, found by their path without regard to case.
#include "memory_file_system.h"

#include <algorithm>

#include "base/action_error.h"
#include "base/text.h"
#include "support/text_reader.h"

namespace vorlund::fuzz {

namespace {

/// True for a path with doubled backslashes or one at its end.
bool needs_tidying(std::string_view path) {
  return path.ends_with('\\') || path.find("\\\\") != std::string_view::npos;
}

/// Such a path with single backslashes and none at its end.
std::string tidied(std::string_view path) {
  std::string result;
  for (const char character : path) {
    const bool doubled = character == '\\' && !result.empty() && result.back() == '\\';
    if (!doubled) result += character;
  }
  while (!result.empty() && result.back() == '\\') result.pop_back();
  return result;
}

/// A path as the files are found by: as it stands wherever it can, since making texts takes most of the time.
class Key {
 public:
  explicit Key(std::string_view path)
      : tidied_(needs_tidying(path) ? tidied(path) : ""), text_(tidied_.empty() ? path : tidied_) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;

  std::string_view text() const { return text_; }

 private:
  std::string tidied_;
  std::string_view text_;
};

/// What follows the folder in a path that lies below it; "" for any other.
std::string_view below(std::string_view path, std::string_view folder) {
  const bool longer = path.size() > folder.size() + 1 && path[folder.size()] == '\\';
  return longer && same_name(path.substr(0, folder.size()), folder) ? path.substr(folder.size() + 1) : "";
}

}  // namespace

bool MemoryFileSystem::ByName::operator()(std::string_view a, std::string_view b) const {
  return !same_name(a, b) && name_less(a, b);
}

MemoryFileSystem::Files::iterator MemoryFileSystem::file(std::string_view attempted, std::string_view path) {
  const auto found = files_.find(Key(path).text());
  if (found == files_.end()) throw ActionError(attempted, path, "no such file");
  return found;
}

bool MemoryFileSystem::FileExists(std::string_view path) {
  return files_.contains(Key(path).text());
}

bool MemoryFileSystem::FolderExists(std::string_view path) {
  const Key folder(path);
  return std::any_of(files_.begin(), files_.end(),
                     [&folder](const auto& file) { return !below(file.first, folder.text()).empty(); });
}

bool MemoryFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  const Key key(folder);
  const Key above(root);
  return FolderExists(folder) &&
         (same_name(key.text(), above.text()) || !below(key.text(), above.text()).empty());
}

std::vector<FolderEntry> MemoryFileSystem::entries(std::string_view folder) {
  const Key key(folder);
  std::vector<FolderEntry> entries;
  for (const auto& [path, bytes] : files_) {
    const std::string_view rest = below(path, key.text());
    if (rest.empty()) continue;
    const std::string_view name = rest.substr(0, rest.find('\\'));
    const EntryKind kind = name.size() == rest.size() ? EntryKind::kFile : EntryKind::kFolder;
    const bool known = std::any_of(entries.begin(), entries.end(),
                                   [name](const FolderEntry& entry) { return same_name(entry.name, name); });
    if (!known) entries.push_back({std::string(name), kind, name.starts_with('.')});
  }
  return entries;
}

std::unique_ptr<FileReader> MemoryFileSystem::open_file(std::string_view path) {
  return std::make_unique<test::TextReader>(file("read", path)->second);
}

void MemoryFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability) {
  const Key key(path);
  const auto found = files_.find(key.text());
  if (found == files_.end()) {
    files_.emplace(key.text(), bytes);
  } else {
    found->second = bytes;
  }
}

CopyForecast MemoryFileSystem::foresee_copy(std::string_view source, std::string_view target) {
  const std::string& bytes = file("copy", source)->second;
  const bool same = FileExists(target) && file("copy onto", target)->second == bytes;
  return {same ? CopyOutcome::kUnchanged : CopyOutcome::kWritten, bytes.size()};
}

CopyOutcome MemoryFileSystem::copy_file(std::string_view source, std::string_view target,
                                        Durability durability) {
  const CopyOutcome outcome = foresee_copy(source, target).outcome;
  if (outcome == CopyOutcome::kWritten)
    replace_file(target, std::string(file("copy", source)->second), durability);
  return outcome;
}

void MemoryFileSystem::remove_file(std::string_view path) {
  files_.erase(file("remove", path));
}

void MemoryFileSystem::start_program(std::string_view path, std::string_view) {
  file("start", path);
}

}  // namespace vorlund::fuzz
