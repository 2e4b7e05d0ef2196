// Keeps, folder by folder and name by name, what differs from the disk.
#include "disk/dry_run_file_system.h"

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>

#include "base/action_error.h"
#include "base/text.h"
#include "dry_run_parts.h"

namespace vorlund {

namespace {

constexpr std::size_t kBlock = 64 << 10;

std::string missing_text() {
  return std::generic_category().message(ENOENT);
}

/// Reads composed bytes, which it keeps alive.
class BytesReader final : public FileReader {
 public:
  explicit BytesReader(std::shared_ptr<const std::string> bytes) : bytes_(std::move(bytes)) {}

  [[nodiscard]] std::uint64_t size() const override { return bytes_->size(); }

  std::size_t read(char* bytes, std::size_t size) override {
    const std::size_t got = bytes_->copy(bytes, size, at_);
    at_ += got;
    return got;
  }

  void seek(std::uint64_t offset) override { at_ = static_cast<std::size_t>(offset); }

 private:
  std::shared_ptr<const std::string> bytes_;
  std::size_t at_ = 0;
};

std::string joined(const std::string& folder, std::string_view name) {
  const bool ends = !folder.empty() && (folder.back() == '\\' || folder.back() == '/');
  return std::string(folder).append(ends ? "" : "\\").append(name);
}

}  // namespace

DryRunFileSystem::DryRunFileSystem(FileSystem& disk) : disk_(disk) {}

DryRunFileSystem::~DryRunFileSystem() = default;

DryRunFileSystem::Place DryRunFileSystem::place_of(std::string_view path) {
  Place place;
  const std::size_t separator = path.find_last_of("\\/");
  place.name = path.substr(separator + 1);
  std::string_view folder = separator == std::string_view::npos ? "." : path.substr(0, separator);
  // A root keeps its separator.
  if (folder.empty() || folder.back() == ':') folder = path.substr(0, separator + 1);
  place.folder_path = folder;
  place.folder = known_folder(place.folder_path);
  place.key = to_upper(place.name);
  if (place.folder == nullptr) return place;
  const auto changed = place.folder->changed.find(place.key);
  if (changed != place.folder->changed.end()) place.group = &changed->second;
  return place;
}

/// Paths lead to one folder where each lies inside the other.
DryRunFileSystem::Folder* DryRunFileSystem::known_folder(const std::string& path) {
  const auto [known, is_new] = by_path_.try_emplace(path, nullptr);
  if (!is_new) return known->second;
  const auto same = std::find_if(folders_.begin(), folders_.end(), [&](const Folder& folder) {
    return disk_.lies_inside(path, folder.path) && disk_.lies_inside(folder.path, path);
  });
  if (same != folders_.end()) known->second = &*same;
  return known->second;
}

DryRunFileSystem::Folder& DryRunFileSystem::written_folder(const Place& place) {
  if (Folder* folder = known_folder(place.folder_path)) return *folder;
  Folder& folder = folders_.emplace_back();
  folder.path = place.folder_path;
  by_path_.clear();
  by_path_.emplace(place.folder_path, &folder);
  return folder;
}

const std::vector<FolderEntry>& DryRunFileSystem::listing(Folder& folder) {
  if (!folder.on_disk) {
    folder.on_disk = disk_.entries(folder.path);
    for (std::size_t index = 0; index < folder.on_disk->size(); ++index) {
      folder.keys[to_upper((*folder.on_disk)[index].name)].push_back(index);
    }
  }
  return *folder.on_disk;
}

DryRunFileSystem::Group DryRunFileSystem::group_on_disk(Folder& folder, const std::string& key) {
  const std::vector<FolderEntry>& on_disk = listing(folder);
  const auto spellings = folder.keys.find(key);
  if (spellings == folder.keys.end()) return {};
  Group group;
  for (const std::size_t index : spellings->second) {
    const FolderEntry& entry = on_disk[index];
    group.push_back({entry, {joined(folder.path, entry.name), nullptr}, true});
  }
  return group;
}

DryRunFileSystem::Group& DryRunFileSystem::group_to_change(Folder& folder, const std::string& key) {
  const auto [changed, is_new] = folder.changed.try_emplace(key);
  if (is_new) changed->second = group_on_disk(folder, key);
  return changed->second;
}

DryRunFileSystem::Content DryRunFileSystem::content_of(std::string_view path) {
  const Place place = place_of(path);
  if (place.group == nullptr) return {std::string(path), nullptr};
  const auto found = found_in(*place.group, place.name);
  if (found == place.group->end()) throw ActionError("read", path, missing_text());
  if (!is_file(found->entry)) throw ActionError("read", path, kIsFolder);
  return found->content;
}

std::unique_ptr<FileReader> DryRunFileSystem::open(const Content& content) {
  if (content.bytes) return std::make_unique<BytesReader>(content.bytes);
  return disk_.open_file(content.path);
}

bool DryRunFileSystem::same(const Content& a, const Content& b) {
  if (a.bytes && b.bytes) return *a.bytes == *b.bytes;
  const auto one = open(a);
  const auto other = open(b);
  if (one->size() != other->size()) return false;
  std::string block(kBlock, '\0');
  std::string expected(kBlock, '\0');
  for (;;) {
    const std::size_t got = one->read(block.data(), kBlock);
    if (got != other->read(expected.data(), kBlock)) return false;
    if (!std::equal(block.begin(), block.begin() + static_cast<std::ptrdiff_t>(got), expected.begin()))
      return false;
    if (got < kBlock) return true;
  }
}

/// True where the file of the disk can be read and holds the content.
bool DryRunFileSystem::holds(const Content& content, const std::string& path) {
  try {
    return same(content, {path, nullptr});
  } catch (const ActionError&) {
    return false;
  }
}

bool DryRunFileSystem::FileExists(std::string_view path) {
  const Place place = place_of(path);
  if (place.group == nullptr) return disk_.FileExists(path);
  const auto found = found_in(*place.group, place.name);
  return found != place.group->end() && is_file(found->entry);
}

bool DryRunFileSystem::is_there(std::string_view path) {
  return place_of(path).group == nullptr ? disk_.is_there(path) : FileExists(path);
}

bool DryRunFileSystem::lies_inside(std::string_view folder, std::string_view root) {
  return disk_.lies_inside(folder, root);
}

/// What a crash has left goes when its folder is locked or written to.
bool DryRunFileSystem::is_swept(const Folder& folder, std::string_view name) {
  return folder.is_locked ? is_staging_name_of_another(name) : !folder.changed.empty() && is_left_over(name);
}

std::vector<FolderEntry> DryRunFileSystem::entries(std::string_view path) {
  Folder* folder = known_folder(place_of(std::string(path) + "\\.").folder_path);
  if (folder == nullptr) return disk_.entries(path);
  std::vector<FolderEntry> found;
  for (const FolderEntry& entry : listing(*folder)) {
    if (!is_swept(*folder, entry.name) && !folder->changed.contains(to_upper(entry.name)))
      found.push_back(entry);
  }
  for (const auto& [key, group] : folder->changed) {
    for (const Entry& entry : group) found.push_back(entry.entry);
  }
  return found;
}

std::unique_ptr<FileReader> DryRunFileSystem::open_file(std::string_view path) {
  return open(content_of(path));
}

/// Fails as the disk would for what stands at the place as the run has left it.
void DryRunFileSystem::refuse(Change change, const Place& place, std::string_view path) {
  if (place.group == nullptr) {
    disk_.foresee(change, path);
    return;
  }
  const auto found = found_in(*place.group, place.name);
  const bool removes = change == Change::kRemove;
  const std::string_view attempted = removes ? "delete" : "write";
  if (found == place.group->end()) {
    if (removes) throw ActionError(attempted, path, missing_text());
    return;
  }
  if (!is_file(found->entry)) throw ActionError(attempted, path, kIsFolder);
  for (const Entry& entry : *place.group) {
    const bool is_concerned = change == Change::kCopy || &entry == &*found;
    if (is_concerned && entry.is_original && is_file(entry.entry)) {
      disk_.foresee(removes ? change : Change::kReplace, entry.content.path);
    }
  }
}

void DryRunFileSystem::replace_file(std::string_view path, std::string_view bytes, Durability) {
  const Place place = place_of(path);
  refuse(Change::kReplace, place, path);
  Folder& folder = written_folder(place);
  Group& group = group_to_change(folder, place.key);
  auto found = found_in(group, place.name);
  if (found == group.end()) {
    found = group.insert(group.end(), {{place.name, EntryKind::kFile, false}, {}, false});
  }
  found->content = {{}, std::make_shared<const std::string>(bytes)};
  found->is_original = false;
  folder.written[place.key].writes.push_back({row_, {}, CopyOutcome::kWritten});
}

CopyForecast DryRunFileSystem::look_at_copy(const Place& target, const Content& content,
                                            std::string_view path) {
  if (target.group == nullptr && !content.bytes) return disk_.foresee_copy(content.path, path);
  const std::uint64_t size = open(content)->size();
  refuse(Change::kCopy, target, path);
  if (target.group == nullptr) return {CopyOutcome::kWritten, size};
  const auto found = found_in(*target.group, target.name);
  const bool unchanged =
      target.group->size() == 1 && found->entry.name == target.name && same(content, found->content);
  return {unchanged ? CopyOutcome::kUnchanged : CopyOutcome::kWritten, size};
}

CopyOutcome DryRunFileSystem::copy_file(std::string_view source, std::string_view target, Durability) {
  const Content content = content_of(source);
  const Place place = place_of(target);
  const CopyForecast copy = look_at_copy(place, content, target);
  Folder& folder = written_folder(place);
  Written& written = folder.written[place.key];
  written.writes.push_back({row_, std::string(source), copy.outcome});
  if (place.group == nullptr && copy.outcome == CopyOutcome::kUnchanged) {
    written.spelling = place.name;
    written.size = copy.size;
    return copy.outcome;
  }
  if (copy.outcome == CopyOutcome::kUnchanged) return copy.outcome;
  Group& group = group_to_change(folder, place.key);
  const auto replaced = found_in(group, place.name);
  const bool hidden = replaced != group.end() && replaced->entry.hidden;
  std::erase_if(group, [](const Entry& entry) { return is_file(entry.entry); });
  Entry& copied = group.emplace_back();
  copied.entry = {place.name, EntryKind::kFile, hidden};
  copied.content = content;
  return copy.outcome;
}

void DryRunFileSystem::remove_file(std::string_view path) {
  const Place place = place_of(path);
  refuse(Change::kRemove, place, path);
  Group& group = group_to_change(written_folder(place), place.key);
  const auto found = found_in(group, place.name);
  if (found != group.end()) group.erase(found);
}

void DryRunFileSystem::foresee(Change change, std::string_view path) {
  refuse(change, place_of(path), path);
}

CopyForecast DryRunFileSystem::foresee_copy(std::string_view source, std::string_view target) {
  return look_at_copy(place_of(target), content_of(source), target);
}

std::optional<std::uint64_t> DryRunFileSystem::free_room(std::string_view folder) {
  return disk_.free_room(folder);
}

void DryRunFileSystem::start_program(std::string_view path, std::string_view) {
  throw ActionError("start", path, "nothing is started in a dry run");
}

FolderLocks DryRunFileSystem::lock_folders(const std::vector<std::string>& folders,
                                           std::chrono::milliseconds) {
  for (const std::string& path : folders) {
    if (FolderExists(path)) written_folder(place_of(path + "\\.")).is_locked = true;
  }
  return {};
}

void DryRunFileSystem::begin_action(Pulse pulse, std::string_view) {
  action_.emplace(disk_, std::move(pulse));
}

void DryRunFileSystem::end_action() {
  action_.reset();
}

}  // namespace vorlund
