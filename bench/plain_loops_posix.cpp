// The floor on POSIX.
#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstring>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "plain_loops.h"

extern char** environ;

namespace vorlund::bench {

namespace {

namespace fs = std::filesystem;

/// Returns what a call has given; throws where it has failed.
template <typename Result>
Result worked(Result result, const char* call) {
  if (result < 0) throw std::runtime_error(std::string(call) + " failed");
  return result;
}

int open_folder(const fs::path& folder) {
  return worked(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC), "open");
}

/// Reads a file of a folder whole; returns its size.
std::size_t read_whole(int folder, const char* name, std::vector<char>& bytes) {
  const int file = worked(::openat(folder, name, O_RDONLY | O_CLOEXEC), "openat");
  struct stat status {};
  worked(::fstat(file, &status), "fstat");
  const auto size = static_cast<std::size_t>(status.st_size);
  if (bytes.size() < size) bytes.resize(size);
  if (worked(::read(file, bytes.data(), size), "read") != status.st_size) throw std::runtime_error("read");
  ::close(file);
  return size;
}

/// Calls `work` with the open folder and the name of each file in it.
void for_each_file(const fs::path& folder, const std::function<void(int folder, const char* name)>& work) {
  DIR* const entries = ::opendir(folder.c_str());
  if (entries == nullptr) throw std::runtime_error("opendir failed");
  while (const dirent* entry = ::readdir(entries)) {
    if (entry->d_type == DT_REG) work(::dirfd(entries), entry->d_name);
  }
  ::closedir(entries);
}

/// Counts the names in an open folder, which it closes, and below.
std::size_t list_below(int descriptor) {
  DIR* const entries = ::fdopendir(descriptor);
  if (entries == nullptr) throw std::runtime_error("fdopendir failed");
  std::size_t count = 0;
  while (const dirent* entry = ::readdir(entries)) {
    if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0) continue;
    ++count;
    if (entry->d_type != DT_DIR) continue;
    count += list_below(
        worked(::openat(::dirfd(entries), entry->d_name, O_RDONLY | O_DIRECTORY | O_CLOEXEC), "openat"));
  }
  ::closedir(entries);
  return count;
}

}  // namespace

void copy_plainly(const fs::path& from, const fs::path& to, const fs::path& staging) {
  const int target = open_folder(to);
  const int stage = open_folder(staging);
  std::vector<char> bytes;
  for_each_file(from, [&](int source, const char* name) {
    const std::size_t size = read_whole(source, name, bytes);
    const int file =
        worked(::openat(stage, "staged", O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666), "openat");
    worked(::write(file, bytes.data(), size), "write");
    worked(::close(file), "close");
    worked(::renameat(stage, "staged", target, name), "renameat");
  });
  ::close(stage);
  ::close(target);
}

void compare_plainly(const fs::path& from, const fs::path& to) {
  const int target = open_folder(to);
  std::vector<char> bytes;
  std::vector<char> others;
  for_each_file(from, [&](int source, const char* name) {
    const std::size_t size = read_whole(source, name, bytes);
    const bool same =
        read_whole(target, name, others) == size && std::memcmp(bytes.data(), others.data(), size) == 0;
    if (!same) throw std::runtime_error(std::string(name) + " differs");
  });
  ::close(target);
}

void copy_by_command(const fs::path& from, const fs::path& to) {
  std::string words[] = {"cp", "-r", from.string() + "/.", to.string()};
  char* arguments[] = {words[0].data(), words[1].data(), words[2].data(), words[3].data(), nullptr};
  pid_t child = 0;
  int result = -1;
  if (::posix_spawnp(&child, "cp", nullptr, nullptr, arguments, environ) != 0 ||
      ::waitpid(child, &result, 0) < 0 || result != 0) {
    throw std::runtime_error("cp failed");
  }
}

std::size_t list_plainly(const fs::path& folder) {
  return list_below(open_folder(folder));
}

void settle(const fs::path& folder) {
  const int descriptor = open_folder(folder);
  worked(::syncfs(descriptor), "syncfs");
  ::close(descriptor);
}

}  // namespace vorlund::bench
