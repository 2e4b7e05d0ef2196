// Starts a program with a pipe each way.
#include "kill/waiting_program.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <stdexcept>
#include <utility>

namespace vorlund::test {

WaitingProgram::WaitingProgram(const std::vector<std::string>& command, const std::string& folder) {
  std::array<int, 2> word{};
  std::array<int, 2> answer{};
  if (::pipe2(word.data(), O_CLOEXEC) != 0 || ::pipe2(answer.data(), O_CLOEXEC) != 0) {
    throw std::runtime_error("cannot make a pipe");
  }
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  process_ = ::fork();
  if (process_ < 0) throw std::runtime_error("cannot start " + command.front());
  if (process_ == 0) {
    if (::chdir(folder.c_str()) != 0 || ::dup2(word[0], STDIN_FILENO) < 0 ||
        ::dup2(answer[1], STDOUT_FILENO) < 0) {
      ::_exit(127);
    }
    ::execvp(arguments.front(), arguments.data());
    ::_exit(127);
  }
  ::close(word[0]);
  ::close(answer[1]);
  word_ = word[1];
  answer_ = answer[0];
  for (char character = 0; character != '\n';) {
    if (::read(answer_, &character, 1) != 1) throw std::runtime_error(command.front() + " did not get ready");
  }
}

WaitingProgram::~WaitingProgram() {
  ::close(word_);
  ::close(answer_);
  if (process_ > 0) {
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
  }
}

int WaitingProgram::act() {
  if (::write(word_, "\n", 1) != 1) throw std::runtime_error("the program that waits is gone");
  std::array<char, 4096> bytes{};
  for (ssize_t count = 0; (count = ::read(answer_, bytes.data(), bytes.size())) > 0;) {
    said_.append(bytes.data(), static_cast<std::size_t>(count));
  }
  int status = 0;
  ::waitpid(std::exchange(process_, 0), &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace vorlund::test
