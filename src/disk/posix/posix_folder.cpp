// Reads folders to find the spellings of names, and remembers folders during an action.
#include "posix/posix_folder.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "base/text.h"
#include "base/utf8.h"
#include "disk/file_system.h"
#include "posix/posix_folder_reader.h"

namespace vorlund {

namespace {

/// An action works in a handful of folders at a time; the bound keeps descriptors and memory small.
constexpr std::size_t kFoldersKept = 16;

}  // namespace

SplitPath split_path(std::string_view path) {
  if (path.empty() || path.find('\0') != std::string_view::npos) return {};
  SplitPath parts{path, "."};
  while (parts.name == ".") {
    const std::size_t last = parts.folder.find_last_not_of("\\/");
    if (last == std::string_view::npos) break;
    const std::size_t begin = std::max(parts.folder.rfind('\\', last) + 1, parts.folder.rfind('/', last) + 1);
    parts = {path.substr(0, begin), path.substr(begin, last + 1 - begin)};
  }
  const std::size_t end = parts.folder.find_last_not_of("\\/") + 1;
  if (end > 0) parts.folder = parts.folder.substr(0, end);
  if (parts.folder.empty()) parts.folder = ".";
  return parts;
}

std::string join_path(std::string_view folder, std::string_view name) {
  std::string joined(folder);
  if (joined.back() != '/') joined += '/';
  return joined.append(name);
}

std::size_t PosixFolder::HashName::operator()(std::string_view name) const {
  std::size_t hash = 14695981039346656037U;
  for (std::size_t at = 0; at < name.size();) {
    hash = (hash ^ upper_character(next_character(name, at))) * 1099511628211U;
  }
  return hash;
}

bool PosixFolder::SameName::operator()(std::string_view a, std::string_view b) const {
  return same_name(a, b);
}

PosixFolder::PosixFolder(FileHandle handle, std::string path, Memory memory)
    : handle_(std::move(handle)), path_(std::move(path)), memory_(memory) {}

const struct stat* PosixFolder::status() {
  struct stat status {};
  if (!status_ && ::fstat(descriptor(), &status) == 0) status_ = status;
  return status_ ? &*status_ : nullptr;
}

bool PosixFolder::takes_files_of(PosixFolder& other) {
  const struct stat* here = status();
  const struct stat* there = other.status();
  return here != nullptr && there != nullptr && here->st_dev == there->st_dev &&
         here->st_gid == there->st_gid && here->st_mode == there->st_mode;
}

bool PosixFolder::may_be_changed() const {
  return ::faccessat(descriptor(), ".", W_OK | X_OK, AT_EACCESS) == 0;
}

void PosixFolder::Names::add(std::string_view name) {
  const auto [remembered, is_new] = first.emplace(name);
  if (is_new || *remembered == name) return;
  const auto [begin, end] = further.equal_range(name);
  if (std::find(begin, end, name) == end) further.emplace(name);
}

bool PosixFolder::remember_names() {
  if (names_) return true;
  Names names;
  if (!read_names([&](std::string_view name) { names.add(name); })) return false;
  names_ = std::move(names);
  return true;
}

std::optional<Spellings> PosixFolder::spellings(std::string_view name) {
  Spellings found;
  const auto take = [&](std::string_view spelling) {
    if (spelling == name) {
      found.exact = true;
    } else if (same_name(spelling, name)) {
      found.others.emplace_back(spelling);
    }
  };
  if (memory_ == Memory::kFresh) {
    if (!read_names(take)) return std::nullopt;
  } else {
    if (!remember_names()) return std::nullopt;
    const auto first = names_->first.find(name);
    if (first != names_->first.end()) take(*first);
    const auto [further, last] = names_->further.equal_range(name);
    std::for_each(further, last, take);
  }
  std::sort(found.others.begin(), found.others.end(),
            [](const auto& a, const auto& b) { return name_less(a, b); });
  last_as_spelled_ = found.exact && found.others.empty();
  return found;
}

std::optional<std::string> PosixFolder::other_spelling(std::string_view name) {
  std::optional<Spellings> found = spellings(name);
  if (!found) return std::nullopt;
  if (found->others.empty()) {
    errno = ENOENT;
    return std::nullopt;
  }
  return std::move(found->others.front());
}

void PosixFolder::sweep_left_overs() {
  if (std::exchange(swept_, true)) return;
  std::vector<std::string> left_overs;
  const std::function<void(std::string_view)> take = [&](std::string_view name) {
    if (is_left_over(name)) left_overs.emplace_back(name);
  };
  if (names_) {
    std::for_each(names_->first.begin(), names_->first.end(), take);
  } else if (!read_names(take) && !says_no_right(errno)) {
    throw_system_error("list the folder", path_);
  }
  for (const std::string& name : left_overs) {
    if (::unlinkat(descriptor(), name.c_str(), 0) == 0) {
      name_removed(name);
    } else if (errno == EIO || errno == ENOMEM) {
      throw_system_error("delete", join_path(path_, name));
    }
  }
}

void PosixFolder::name_added(std::string_view name) {
  if (names_) names_->add(name);
}

void PosixFolder::name_removed(std::string_view name) {
  if (!names_) return;
  auto& [first, further] = *names_;
  const auto remembered = first.find(name);
  if (remembered == first.end()) return;
  const bool is_first = *remembered == name;
  const auto [begin, end] = further.equal_range(name);
  const auto other = is_first ? begin : std::find(begin, end, name);
  if (is_first) first.erase(remembered);
  if (other == end) return;
  if (is_first) first.insert(*other);
  further.erase(other);
}

bool PosixFolder::read_names(const std::function<void(std::string_view)>& take) const {
  const FileHandle opened = open_at(handle_.descriptor(), ".", O_RDONLY | O_DIRECTORY);
  if (!opened.is_open()) return false;
  PosixFolderReader reader(opened.descriptor());
  while (const auto* entry = reader.next()) take(entry->name);
  return errno == 0;
}

void PosixFolders::forget() {
  remembering_ = false;
  kept_.clear();
}

std::shared_ptr<PosixFolder> PosixFolders::open(std::string_view path) {
  if (auto folder = kept(path)) return folder;

  std::string spelled(path);
  std::replace(spelled.begin(), spelled.end(), '\\', '/');
  FileHandle handle = open_folder_at(AT_FDCWD, spelled.c_str());
  if (handle.is_open()) return keep(path, std::move(handle), std::move(spelled));
  const SplitPath parts = split_path(path);
  if (errno != ENOENT || parts.name == ".") return nullptr;

  const auto parent = open(parts.folder);
  if (!parent) return nullptr;
  spelled = parts.name;
  handle = open_folder_at(parent->descriptor(), spelled.c_str());
  if (!handle.is_open() && errno == ENOENT) {
    const auto other = parent->other_spelling(spelled);
    if (!other) return nullptr;
    spelled = *other;
    handle = open_folder_at(parent->descriptor(), spelled.c_str());
  }
  if (!handle.is_open()) return nullptr;
  return keep(path, std::move(handle), join_path(parent->path(), spelled));
}

std::shared_ptr<PosixFolder> PosixFolders::kept(std::string_view path) {
  const auto found =
      std::find_if(kept_.begin(), kept_.end(), [path](const Kept& kept) { return kept.path == path; });
  if (found == kept_.end()) return nullptr;
  kept_.splice(kept_.begin(), kept_, found);
  return found->folder;
}

std::shared_ptr<PosixFolder> PosixFolders::keep(std::string_view path, FileHandle handle,
                                                std::string spelled) {
  if (!remembering_) {
    return std::make_shared<PosixFolder>(std::move(handle), std::move(spelled), PosixFolder::Memory::kFresh);
  }
  struct stat status {};
  if (::fstat(handle.descriptor(), &status) != 0) throw_system_error("read the folder", path);
  const auto same = std::find_if(kept_.begin(), kept_.end(), [&](const Kept& kept) {
    return kept.device == status.st_dev && kept.number == status.st_ino;
  });
  auto folder = same != kept_.end() ? same->folder
                                    : std::make_shared<PosixFolder>(std::move(handle), std::move(spelled),
                                                                    PosixFolder::Memory::kRemembered);
  kept_.push_front({std::string(path), status.st_dev, status.st_ino, folder});
  if (kept_.size() > kFoldersKept) kept_.pop_back();
  return folder;
}

}  // namespace vorlund
