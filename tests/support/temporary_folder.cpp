// Makes, fills and removes folders for tests, past the program's own file layer so as not to trust it.
#include "support/temporary_folder.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace vorlund::test {

namespace {

namespace fs = std::filesystem;

std::string to_text(const fs::path& path) {
  const std::u8string text = path.u8string();
  return std::string(text.begin(), text.end());
}

#ifdef _WIN32
constexpr char kSeparator = '\\';

/// The long form, so that paths past 260 characters can be made and removed.
fs::path to_path(std::string_view text) {
  std::string spelled = "\\\\?\\";
  spelled.append(text);
  std::replace(spelled.begin(), spelled.end(), '/', '\\');
  return fs::path(std::u8string(spelled.begin(), spelled.end()));
}

/// Paths of all that is in a folder. The library's own listing does not know the long form.
std::vector<fs::path> paths_in(const fs::path& folder) {
  std::vector<fs::path> found;
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileW((folder.native() + L"\\*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return found;
  do {
    const std::wstring_view name = entry.cFileName;
    if (name != L"." && name != L"..") found.emplace_back(folder.native() + L"\\" + entry.cFileName);
  } while (FindNextFileW(search, &entry) != 0);
  FindClose(search);
  return found;
}

bool is_folder(const fs::path& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void remove_everything(const fs::path& folder) {
  for (const fs::path& path : paths_in(folder)) {
    if (is_folder(path)) {
      remove_everything(path);
    } else {
      SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
      DeleteFileW(path.c_str());
    }
  }
  RemoveDirectoryW(folder.c_str());
}
#else
constexpr char kSeparator = '/';

fs::path to_path(std::string_view text) {
  std::string spelled(text);
  std::replace(spelled.begin(), spelled.end(), '\\', '/');
  return fs::path(spelled);
}

std::vector<fs::path> paths_in(const fs::path& folder) {
  std::vector<fs::path> found;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder)) found.push_back(entry.path());
  return found;
}

bool is_folder(const fs::path& path) {
  return fs::is_directory(fs::symlink_status(path));
}

void remove_everything(const fs::path& folder) {
  std::error_code ignored;
  fs::remove_all(folder, ignored);
}
#endif

std::string content_of(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  if (!file) throw std::runtime_error("cannot read " + to_text(path));
  return bytes.str();
}

std::string new_folder_path() {
  static std::mt19937_64 random{std::random_device{}()};
  std::ostringstream name;
  name << "vorlund caf\u00E9 " << std::hex << random();
  std::string parent = to_text(fs::temp_directory_path());
  while (!parent.empty() && (parent.back() == '/' || parent.back() == '\\')) parent.pop_back();
  return parent + kSeparator + name.str();
}

/// Goes by the paths that the disk gives, so that a name which holds a backslash is one name.
void collect(const fs::path& folder, const std::string& prefix, std::map<std::string, std::string>& files) {
  for (const fs::path& path : paths_in(folder)) {
    const std::string name = prefix + to_text(path.filename());
    if (fs::is_symlink(fs::symlink_status(path))) {
      files[name] = "-> " + to_text(fs::read_symlink(path));
    } else if (is_folder(path)) {
      if (paths_in(path).empty()) files[name + "/"] = "";
      collect(path, name + "/", files);
    } else {
      files[name] = content_of(path);
    }
  }
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(new_folder_path()) {
  if (!fs::create_directory(to_path(path_))) throw std::runtime_error("cannot make " + path_);
}

TemporaryFolder::~TemporaryFolder() {
  remove_everything(to_path(path_));
}

std::string TemporaryFolder::path(std::string_view name) const {
  std::string joined = path_;
  joined.append("\\").append(name);
  return joined;
}

void TemporaryFolder::make_folder(std::string_view name) const {
  for (std::size_t at = 0; at < name.size(); ++at) {
    if (name[at] == '\\' || name[at] == '/') fs::create_directory(to_path(path(name.substr(0, at))));
  }
  if (!name.empty()) fs::create_directory(to_path(path(name)));
}

void TemporaryFolder::write(std::string_view name, std::string_view bytes) const {
  const std::size_t separator = name.find_last_of("\\/");
  if (separator != std::string_view::npos) make_folder(name.substr(0, separator));
  std::ofstream file(to_path(path(name)), std::ios::binary | std::ios::trunc);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  if (!file) throw std::runtime_error("cannot write " + path(name));
}

std::string TemporaryFolder::read(std::string_view name) const {
  if (!has(name)) throw std::runtime_error("there is no " + path(name));
  return content_of(to_path(path(name)));
}

bool TemporaryFolder::has(std::string_view name) const {
  const std::size_t separator = name.find_last_of("\\/");
  const bool inside = separator != std::string_view::npos;
  if (inside && !has(name.substr(0, separator))) return false;
  const std::vector<std::string> found = names(inside ? name.substr(0, separator) : "");
  const std::string_view last = inside ? name.substr(separator + 1) : name;
  return std::find(found.begin(), found.end(), last) != found.end();
}

std::vector<std::string> TemporaryFolder::names(std::string_view folder) const {
  std::vector<std::string> found;
  for (const fs::path& entry : paths_in(to_path(folder.empty() ? path_ : path(folder)))) {
    found.push_back(to_text(entry.filename()));
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::map<std::string, std::string> TemporaryFolder::tree() const {
  std::map<std::string, std::string> files;
  collect(to_path(path_), "", files);
  return files;
}

}  // namespace vorlund::test
