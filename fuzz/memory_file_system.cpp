// Files in memory, found by their path in upper case.
#include "memory_file_system.h"

#include <algorithm>
#include <cstddef>

#include "base/action_error.h"
#include "base/text.h"
#include "support/text_reader.h"

namespace vorlund::fuzz {

namespace {

/// The path with doubled backslashes made single and none at its end.
std::string normalised(std::string_view path) {
  std::string result;
  for (const char character : path) {
    const bool doubled = character == '\\' && !result.empty() && result.back() == '\\';
    if (!doubled) result += character;
  }
  while (!result.empty() && result.back() == '\\') result.pop_back();
  return result;
}

std::string key_of(std::string_view path) {
  return to_upper(normalised(path));
}

/// Position after the given number of backslashes: names in another case may differ in length.
std::size_t after_separator(std::string_view path, std::ptrdiff_t separators) {
  std::size_t at = 0;
  for (; separators > 0; --separators) at = path.find('\\', at) + 1;
  return at;
}

}  // namespace

MemoryFileSystem::File& MemoryFileSystem::file(std::string_view attempted, std::string_view path) {
  const auto found = files_.find(key_of(path));
  if (found == files_.end()) throw ActionError(attempted, path, "no such file");
  return found->second;
}

bool MemoryFileSystem::FileExists(std::string_view path) {
  return files_.contains(key_of(path));
}

bool MemoryFileSystem::FolderExists(std::string_view path) {
  const std::string prefix = key_of(path) + "\\";
  const auto found = files_.lower_bound(prefix);
  return found != files_.end() && found->first.starts_with(prefix);
}

bool MemoryFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  return FolderExists(folder) && (key_of(folder) + "\\").starts_with(key_of(root) + "\\");
}

std::vector<FolderEntry> MemoryFileSystem::entries(std::string_view folder) {
  const std::string prefix = key_of(folder) + "\\";
  const auto separators = std::count(prefix.begin(), prefix.end(), '\\');
  std::map<std::string, FolderEntry> found;
  for (auto at = files_.lower_bound(prefix); at != files_.end() && at->first.starts_with(prefix); ++at) {
    const std::string& path = at->second.path;
    const std::size_t begin = after_separator(path, separators);
    const std::size_t end = path.find('\\', begin);
    const std::string name = path.substr(begin, end - begin);
    const EntryKind kind = end == std::string::npos ? EntryKind::kFile : EntryKind::kFolder;
    found.insert({to_upper(name), {name, kind, name.starts_with('.')}});
  }
  std::vector<FolderEntry> entries;
  for (const auto& [key, entry] : found) entries.push_back(entry);
  return entries;
}

std::unique_ptr<FileReader> MemoryFileSystem::open_file(std::string_view path) {
  return std::make_unique<test::TextReader>(file("read", path).bytes);
}

void MemoryFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability) {
  files_[key_of(path)] = {normalised(path), std::string(bytes)};
}

CopyForecast MemoryFileSystem::foresee_copy(std::string_view source, std::string_view target) {
  const std::string& bytes = file("copy", source).bytes;
  const bool same = FileExists(target) && file("copy onto", target).bytes == bytes;
  return {same ? CopyOutcome::kUnchanged : CopyOutcome::kWritten, bytes.size()};
}

CopyOutcome MemoryFileSystem::copy_file(std::string_view source, std::string_view target,
                                        Durability durability) {
  const CopyOutcome outcome = foresee_copy(source, target).outcome;
  if (outcome == CopyOutcome::kWritten)
    replace_file(target, std::string(file("copy", source).bytes), durability);
  return outcome;
}

void MemoryFileSystem::remove_file(std::string_view path) {
  file("remove", path);
  files_.erase(key_of(path));
}

void MemoryFileSystem::start_program(std::string_view path, std::string_view) {
  file("start", path);
}

std::vector<std::string> MemoryFileSystem::paths() const {
  std::vector<std::string> paths;
  for (const auto& [key, held] : files_) paths.push_back(held.path);
  return paths;
}

}  // namespace vorlund::fuzz
