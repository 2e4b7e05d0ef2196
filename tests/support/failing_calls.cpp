// Stands before the C library's functions, whose place a function of the same name in the program takes.
#include "support/failing_calls.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <optional>
#include <string_view>
#include <utility>

namespace vorlund::test {

namespace {

struct Rule {
  std::string function;
  std::string ending;
  int error;
  int times;
};

std::optional<Rule> rule;
int failed = 0;
bool numbers_collide = false;

/// True, with errno, where the call is to fail.
bool fails(std::string_view function, std::string_view name) {
  if (!rule || rule->function != function || !name.ends_with(rule->ending)) return false;
  if (failed == rule->times) return false;
  ++failed;
  errno = rule->error;
  return true;
}

std::string path_of(int descriptor) {
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  std::array<char, 4096> path;
  const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
  return {path.data(), length < 0 ? 0 : static_cast<std::size_t>(length)};
}

int look(int folder, const char* name, struct stat* status, int flags) {
  const int result = static_cast<int>(::syscall(SYS_newfstatat, folder, name, status, flags));
  if (result == 0 && numbers_collide && S_ISREG(status->st_mode)) {
    status->st_dev = 1;
    status->st_ino = 1;
  }
  return result;
}

}  // namespace

FailingCall::FailingCall(std::string function, std::string ending, int error, int times) {
  rule = Rule{std::move(function), std::move(ending), error, times};
  failed = 0;
}

FailingCall::~FailingCall() {
  rule.reset();
}

int FailingCall::count() {
  return failed;
}

CollidingNumbers::CollidingNumbers() {
  numbers_collide = true;
}

CollidingNumbers::~CollidingNumbers() {
  numbers_collide = false;
}

}  // namespace vorlund::test

using vorlund::test::fails;
using vorlund::test::look;
using vorlund::test::path_of;

extern "C" {

int openat(int folder, const char* name, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    va_list arguments;
    va_start(arguments, flags);
    mode = va_arg(arguments, mode_t);
    va_end(arguments);
  }
  return fails("openat", name) ? -1 : static_cast<int>(::syscall(SYS_openat, folder, name, flags, mode));
}

int fstatat(int folder, const char* name, struct stat* status, int flags) noexcept {
  return fails("fstatat", name) ? -1 : look(folder, name, status, flags);
}

int fstat(int descriptor, struct stat* status) noexcept {
  return look(descriptor, "", status, AT_EMPTY_PATH);
}

int faccessat(int folder, const char* name, int mode, int flags) noexcept {
  return fails("faccessat", name) ? -1
                                  : static_cast<int>(::syscall(SYS_faccessat2, folder, name, mode, flags));
}

int fstatvfs(int descriptor, struct statvfs* status) noexcept {
  if (fails("fstatvfs", path_of(descriptor))) return -1;
  *status = {};
  status->f_frsize = 1;
  return 0;
}

int ftruncate(int descriptor, off_t length) noexcept {
  return fails("ftruncate", path_of(descriptor))
             ? -1
             : static_cast<int>(::syscall(SYS_ftruncate, descriptor, length));
}

off_t lseek(int descriptor, off_t offset, int whence) noexcept {
  return fails("lseek", path_of(descriptor)) ? -1 : ::syscall(SYS_lseek, descriptor, offset, whence);
}

int unlinkat(int folder, const char* name, int flags) noexcept {
  return fails("unlinkat", name) ? -1 : static_cast<int>(::syscall(SYS_unlinkat, folder, name, flags));
}

int renameat(int old_folder, const char* old_name, int folder, const char* name) noexcept {
  if (fails("renameat", name)) return -1;
  return static_cast<int>(::syscall(SYS_renameat, old_folder, old_name, folder, name));
}

int fsync(int descriptor) {
  return fails("fsync", path_of(descriptor)) ? -1 : static_cast<int>(::syscall(SYS_fsync, descriptor));
}

ssize_t getdents64(int descriptor, void* bytes, size_t size) noexcept {
  if (fails("getdents64", path_of(descriptor))) return -1;
  return ::syscall(SYS_getdents64, descriptor, bytes, size);
}

}  // extern "C"
