// Writes beside the target and renames, so that a crash leaves the old file or the new one.
#include "windows/windows_target.h"

#include <cstddef>
#include <cstring>
#include <memory>
#include <new>
#include <utility>

#include "base/action_error.h"
#include "base/text.h"
#include "windows/windows_path.h"

namespace vorlund {

namespace {

constexpr std::string_view kRename = "give its spelling to";
constexpr std::string_view kNoRight =
    "there is no right to write in its folder. Move the game to a folder of your own, outside \"Program "
    "Files\", "
    "or give your account the right to change that folder";

/// In characters, on every disk that Windows knows.
constexpr std::size_t kLongestName = 255;

/// Attributes that a replaced file hands on.
constexpr DWORD kKeptAttributes = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE;

}  // namespace

void refuse_read_only(DWORD attributes, std::string_view attempted, std::string_view path) {
  if ((attributes & FILE_ATTRIBUTE_READONLY) != 0)
    throw ActionError(attempted, path, "the file is read-only");
}

WindowsTarget::WindowsTarget(WindowsFolders& folders, std::string_view path, Spelling spelling,
                             const WindowsPatience& patience)
    : patience_(patience), path_(path), long_path_(long_path(path, EntryKind::kFile)) {
  const std::size_t name_begin = long_path_.rfind(L'\\') + 1;
  folder_ = long_path_.substr(0, name_begin);
  name_ = long_path_.substr(name_begin);
  if (name_.empty()) throw_windows_error("write", path_, ERROR_INVALID_NAME);
  if (name_.size() > kLongestName) throw_windows_error("write", path_, ERROR_FILENAME_EXCED_RANGE);

  in_ = folders.open(folder_);
  existing_ = in_->find(name_);
  if (!existing_) {
    if (GetLastError() != ERROR_FILE_NOT_FOUND) fail();
  } else if ((existing_->attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
    throw ActionError("write", path_, kIsFolder);
  } else if (spelling == Spelling::kAsItStands && spelled_otherwise()) {
    name_ = existing_->name;
    long_path_ = folder_ + name_;
  }
}

WindowsTarget::~WindowsTarget() {
  drop();
}

/// Removes a neighbour that was not put in its place.
void WindowsTarget::drop() {
  if (!written_.is_open()) return;
  FILE_DISPOSITION_INFO removal{TRUE};
  SetFileInformationByHandle(written_.get(), FileDispositionInfo, &removal, sizeof removal);
  written_.close();
}

WindowsHandle WindowsTarget::open_to_compare(std::uint64_t size) const {
  if (!existing_ || existing_->link || existing_->size != size) return {};
  return open_existing(folder_ + existing_->name, GENERIC_READ, FILE_FLAG_SEQUENTIAL_SCAN);
}

bool WindowsTarget::keep(Durability durability) {
  const bool as_asked = !spelled_otherwise();
  settle_spelling();
  if (!as_asked) remember({name_, existing_->attributes, existing_->link, existing_->size});
  const bool read_only = (existing_->attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (durability == Durability::kFlushed && !read_only) {
    WindowsHandle kept;
    const bool opened = patience_.insist([&] {
      kept = open_existing(long_path_, GENERIC_WRITE, 0);
      return kept.is_open();
    });
    if (!opened || FlushFileBuffers(kept.get()) == 0) fail("flush");
  }
  return as_asked;
}

void WindowsTarget::foresee(Writing writing) const {
  if (existing_ && writing == Writing::kBytes) refuse_read_only(existing_->attributes, "write", path_);
  // Asking for the right to add a file adds none.
  if (open_existing(folder_, FILE_ADD_FILE, FILE_FLAG_BACKUP_SEMANTICS).is_open()) return;
  if (GetLastError() == ERROR_ACCESS_DENIED) throw ActionError("write", path_, kNoRight);
  fail();
}

HANDLE WindowsTarget::begin(const std::shared_ptr<WindowsFolder>& staging) {
  drop();
  if (existing_) refuse_read_only(existing_->attributes, "write", path_);
  staged_ = staging && in_->takes_files_of(*staging);
  if (staged_) {
    staging->sweep_left_overs();
    staged_ = create(*staging);
  }
  if (staged_) return written_.get();
  in_->sweep_left_overs();
  if (!patience_.insist_on_change([this] { return create(*in_); })) {
    if (GetLastError() == ERROR_ACCESS_DENIED) throw ActionError("write", path_, kNoRight);
    fail();
  }
  return written_.get();
}

/// Creates the neighbour in a folder under a name that is not taken; false, with the system's error, where
/// that can't be done.
bool WindowsTarget::create(const WindowsFolder& folder) {
  const DWORD kept = existing_ ? existing_->attributes & kKeptAttributes : 0;
  const DWORD attributes = kept != 0 ? kept : FILE_ATTRIBUTE_NORMAL;
  DWORD error = ERROR_FILE_EXISTS;
  for (unsigned attempt = 0; error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS; ++attempt) {
    const std::wstring neighbour = folder.path() + to_wide(staging_name(attempt));
    written_ = WindowsHandle(
        CreateFileW(neighbour.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW, attributes, nullptr));
    error = written_.is_open() ? ERROR_SUCCESS : GetLastError();
  }
  return error == ERROR_SUCCESS;
}

/// Renames by the handle, so that it is the file that was written whatever happens to its name; false, with
/// the system's error, on failure.
bool WindowsTarget::rename_written() const {
  const std::size_t name_bytes = long_path_.size() * sizeof(wchar_t);
  const std::size_t size = sizeof(FILE_RENAME_INFO) + name_bytes;
  const std::unique_ptr<std::byte[]> memory(new std::byte[size]{});
  auto* const renaming = new (memory.get()) FILE_RENAME_INFO{};
  renaming->ReplaceIfExists = TRUE;
  renaming->FileNameLength = static_cast<DWORD>(name_bytes);
  std::memcpy(renaming->FileName, long_path_.c_str(), name_bytes);
  return SetFileInformationByHandle(written_.get(), FileRenameInfo, renaming, static_cast<DWORD>(size)) != 0;
}

bool WindowsTarget::finish(Durability durability) {
  const bool flushed = durability == Durability::kFlushed;
  if (flushed && FlushFileBuffers(written_.get()) == 0) fail("flush");
  if (!patience_.insist_on_change([this] { return rename_written(); })) {
    if (staged_ && GetLastError() == ERROR_NOT_SAME_DEVICE) return false;
    fail();
  }
  WindowsHandle renamed = std::move(written_);
  LARGE_INTEGER size;
  if (GetFileSizeEx(renamed.get(), &size) == 0) fail();
  if (flushed && FlushFileBuffers(renamed.get()) == 0) fail("flush");
  if (!renamed.close()) fail();
  settle_spelling();
  const DWORD attributes = existing_ ? existing_->attributes & kKeptAttributes : 0;
  remember({name_, attributes, false, static_cast<std::uint64_t>(size.QuadPart)});
  return true;
}

/// A name found by its short form, "LONGNA~1", is no other spelling and stays.
bool WindowsTarget::spelled_otherwise() const {
  if (!existing_ || existing_->name == name_) return false;
  return same_name(from_wide(existing_->name), from_wide(name_));
}

void WindowsTarget::settle_spelling() const {
  if (!spelled_otherwise()) return;
  WindowsFolder fresh(folder_, WindowsFolder::Memory::kFresh);
  const auto spelled_as_asked = [&] {
    const auto entry = fresh.find(name_);
    return entry && entry->name == name_;
  };
  if (spelled_as_asked()) return;
  const std::wstring spelled = folder_ + existing_->name;
  if (!move(spelled, long_path_)) fail(kRename);
  if (spelled_as_asked()) return;

  // Where a rename that changes nothing but case is passed over, as by Wine, the file takes a step over a
  // name of this process's own. It holds the source's bytes by then, so a crash there loses nothing.
  std::wstring step;
  unsigned attempt = 0;
  do {
    step = to_wide(staging_name(attempt++));
  } while (fresh.find(step));
  step.insert(0, folder_);
  if (!move(spelled, step)) fail(kRename);
  if (!move(step, long_path_)) {
    const DWORD error = GetLastError();
    move(step, spelled);
    throw_windows_error(kRename, path_, error);
  }
}

/// What is in place now takes the place of what was there in what is remembered of the folder.
void WindowsTarget::remember(WindowsEntry entry) const {
  if (existing_) in_->name_removed(existing_->name);
  in_->name_written(std::move(entry));
}

/// False, with the system's error, on failure.
bool WindowsTarget::move(const std::wstring& from, const std::wstring& to) const {
  return patience_.insist_on_change([&] { return MoveFileExW(from.c_str(), to.c_str(), 0) != 0; });
}

void WindowsTarget::fail(std::string_view attempted) const {
  throw_windows_error(attempted, path_, likely_cause(GetLastError(), long_path_));
}

}  // namespace vorlund
