// Starts a program as a grandchild, so that it lives on alone and nobody has to wait for it.
#include "posix/posix_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>

#include "base/action_error.h"
#include "disk/process_number.h"
#include "posix/posix_file.h"

namespace vorlund {

namespace {

/// Absolute path of a command that the shell would find, "" when there is none.
std::string find_command(std::string_view name) {
  const char* variable = std::getenv("PATH");
  std::string_view folders = variable != nullptr ? variable : "/usr/local/bin:/usr/bin:/bin";
  for (;;) {
    const std::size_t end = folders.find(':');
    std::string candidate(folders.substr(0, end));
    candidate.append("/").append(name);
    if (candidate.front() == '/' && candidate.size() > name.size() + 1 &&
        ::access(candidate.c_str(), X_OK) == 0) {
      return candidate;
    }
    if (end == std::string_view::npos) return {};
    folders.remove_prefix(end + 1);
  }
}

/// Runs in the child: only calls that are safe between fork and exec.
[[noreturn]] void become(const char* executable, char* const* arguments, int folder, int report) {
  ::setsid();
  const pid_t grandchild = ::fork();
  if (grandchild == 0) {
    ::signal(SIGPIPE, SIG_DFL);  // it would be handed on ignored
    if (::fchdir(folder) == 0) ::execv(executable, arguments);
  }
  if (grandchild <= 0) {
    const int error = errno;
    static_cast<void>(!::write(report, &error, sizeof error));
  }
  ::_exit(0);
}

}  // namespace

/// Asked of the system once: each file that is written takes a name with it.
std::uint32_t own_process_number() {
  static const auto number = static_cast<std::uint32_t>(::getpid());
  return number;
}

bool process_runs(std::uint32_t number) {
  return ::kill(static_cast<pid_t>(number), 0) == 0 || errno != ESRCH;
}

bool is_32_bit_windows_program(std::string_view beginning) {
  constexpr std::size_t kHeaderOffset = 0x3C;
  constexpr std::string_view kHeader("PE\0\0\x4C\x01", 6);
  if (!beginning.starts_with("MZ") || beginning.size() < kHeaderOffset + 4) return false;
  std::size_t header = 0;
  for (std::size_t byte = 4; byte-- > 0;) {
    header = header << 8 | static_cast<unsigned char>(beginning[kHeaderOffset + byte]);
  }
  return header < beginning.size() && beginning.substr(header).starts_with(kHeader);
}

bool lacks_32_bit_wine(const std::string& wine, const std::string& root) {
  const auto there = [&root](const char* path) { return ::access((root + path).c_str(), F_OK) == 0; };
  char* const real = ::realpath(wine.c_str(), nullptr);
  const std::string command = real != nullptr ? real : "";
  std::free(real);
  return command.starts_with(root + "/usr/bin/wine") && there("/usr/lib/wine/wine64") &&
         !there("/usr/lib/wine/wine") && !there("/usr/lib/x86_64-linux-gnu/wine/i386-windows") &&
         !there("/usr/lib/i386-linux-gnu/wine");
}

PosixCommand command_for(const std::string& program, std::string_view beginning, const std::string& root) {
  if (!beginning.starts_with("MZ")) return {program, {program}};
  const std::string wine = find_command("wine");
  if (wine.empty()) {
    throw ActionError("start", program, "Wine is missing, which is needed to start a Windows program");
  }
  if (is_32_bit_windows_program(beginning) && lacks_32_bit_wine(wine, root)) {
    throw ActionError("start", program,
                      "it is a 32-bit program, and only the 64-bit part of Wine is installed. As root: "
                      "dpkg --add-architecture i386 && apt-get update && apt-get install wine32:i386");
  }
  return {wine, {"wine", program}};
}

void start_detached(const PosixCommand& command, int folder, std::string_view path) {
  std::vector<char*> arguments;
  for (const std::string& argument : command.arguments)
    arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);

  std::array<int, 2> ends{};
  if (::pipe(ends.data()) != 0) throw_system_error("start", path);
  const FileHandle reading(ends[0]);
  FileHandle reporting(ends[1]);
  ::fcntl(ends[0], F_SETFD, FD_CLOEXEC);
  ::fcntl(ends[1], F_SETFD, FD_CLOEXEC);

  const pid_t child = ::fork();
  if (child < 0) throw_system_error("start", path);
  if (child == 0) become(command.executable.c_str(), arguments.data(), folder, ends[1]);
  reporting.close();
  while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
  }

  // The pipe ends without a word when the program has taken the grandchild over.
  int error = 0;
  const ssize_t got = read_up_to(reading.descriptor(), reinterpret_cast<char*>(&error), sizeof error);
  if (got == sizeof error) throw_system_error("start", path, error);
}

}  // namespace vorlund
