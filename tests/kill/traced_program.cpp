// Starts strace and reads what it writes.
#include "kill/traced_program.h"

#include <sys/wait.h>
#include <unistd.h>

#include <cctype>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include "actions/marks.h"

namespace vorlund::test {

namespace {

/// Starts a command inside a folder; returns its process number. Nothing is asked of the keyboard.
pid_t start_command(const std::vector<std::string>& command, const std::string& folder) {
  std::vector<char*> arguments;
  for (const std::string& argument : command) arguments.push_back(const_cast<char*>(argument.c_str()));
  arguments.push_back(nullptr);
  const pid_t child = ::fork();
  if (child < 0) throw std::runtime_error("cannot start " + command.front());
  if (child == 0) {
    if (::chdir(folder.c_str()) != 0) ::_exit(127);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
    ::execvp(arguments.front(), arguments.data());
    ::_exit(127);
  }
  return child;
}

/// Waits for the end of a process.
Ending wait_for(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) throw std::runtime_error("cannot wait for process " + std::to_string(child));
  }
  Ending ending;
  ending.killed = WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
  if (WIFEXITED(status)) ending.exit_code = WEXITSTATUS(status);
  return ending;
}

/// Starts a command inside a folder and waits for its end.
Ending run_command(const std::vector<std::string>& command, const std::string& folder) {
  return wait_for(start_command(command, folder));
}

/// The processes that a trace says were stopped by a signal, once for each time. A look at the state of a
/// process would not do: at a call that is watched it is stopped as well, on a busy machine for long.
std::vector<pid_t> stopped_processes(const std::string& trace_file) {
  std::vector<pid_t> stopped;
  std::ifstream lines(trace_file);
  pid_t process = 0;
  for (std::string line; lines >> process && std::getline(lines >> std::ws, line);) {
    if (line == "--- stopped by SIGSTOP ---") stopped.push_back(process);
  }
  return stopped;
}

/// True where a process that this one has started has ended; it is still there to be waited for.
bool has_ended(pid_t child) {
  siginfo_t ended{};
  return ::waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOHANG | WNOWAIT) != 0 ||
         ended.si_pid != 0;
}

/// The name of the call that a line of the trace, without its process number, tells of; "" for other lines.
std::string call_name(const std::string& line) {
  std::size_t length = 0;
  while (length < line.size() &&
         (std::isalnum(static_cast<unsigned char>(line[length])) || line[length] == '_'))
    ++length;
  return length < line.size() && line[length] == '(' ? line.substr(0, length) : "";
}

/// A window also waits for events and wakes itself up, more or less often as the clock has it.
bool is_about_files(const std::string& name, const std::string& line) {
  return name != "poll" && name != "ppoll" && line.find("<anon_inode:") == std::string::npos;
}

Trace read_trace(const std::string& path) {
  Trace trace;
  std::ifstream lines(path);
  std::string first_thread;
  for (std::string thread, line; lines >> thread && std::getline(lines >> std::ws, line);) {
    if (first_thread.empty()) first_thread = thread;
    if (thread != first_thread) continue;
    const std::string name = call_name(line);
    if (name.empty()) continue;
    if (line.find(kActionHasEnded) != std::string::npos) trace.ended = true;
    trace.last_is_about_files = is_about_files(name, line);
    if (!trace.begun) {
      ++trace.before[name];
    } else if (!trace.ended && trace.last_is_about_files) {
      ++trace.during[name];
    }
    if (line.find(kActionBegins) != std::string::npos) trace.begun = true;
  }
  return trace;
}

}  // namespace

bool TracedProgram::can_trace() {
  return run_command({"strace", "-o", "/dev/null", "true"}, "/").exit_code == 0;
}

Ending TracedProgram::run(const std::string& folder) const {
  return run_command(command_, folder);
}

Ending TracedProgram::run_traced(const std::string& folder, Trace& trace) const {
  const Ending ending = run_under_strace(folder, {"-y", "-e", "trace=%file,%desc"});
  trace = read_trace(trace_file_);
  return ending;
}

Ending TracedProgram::run_watched(const std::string& folder) const {
  return run_under_strace(folder, {"-y", "-s", "65536", "-e", "trace=%file,%network,fchmod,fchown"});
}

Ending TracedProgram::run_killed(const std::string& folder, const std::string& call, int number,
                                 Trace& trace) const {
  // The marks are watched as well; which of the two calls makes them depends on the processor.
  const Ending ending =
      run_under_strace(folder, {"-y", "-e", "trace=?access,?faccessat," + call, "-e",
                                "inject=" + call + ":signal=KILL:when=" + std::to_string(number)});
  trace = read_trace(trace_file_);
  return ending;
}

Ending TracedProgram::run_failed(const std::string& folder, const std::string& call, int number,
                                 const std::string& result) const {
  return run_under_strace(folder, {"-e", "trace=" + call, "-e",
                                   "inject=" + call + ":" + result + ":when=" + std::to_string(number)});
}

Ending TracedProgram::run_stopped(const std::string& folder, const std::string& call, int number,
                                  bool& stopped, const std::function<void()>& meanwhile) const {
  std::filesystem::remove(trace_file_);
  const pid_t strace =
      start_command(under_strace({"-e", "trace=" + call, "-e",
                                  "inject=" + call + ":signal=STOP:when=" + std::to_string(number)}),
                    folder);
  std::size_t continued = 0;
  while (!has_ended(strace)) {
    const std::vector<pid_t> processes = stopped_processes(trace_file_);
    if (continued == 0 && !processes.empty()) meanwhile();
    for (; continued < processes.size(); ++continued) ::kill(processes[continued], SIGCONT);
    ::usleep(1000);
  }
  stopped = continued > 0;
  return wait_for(strace);
}

std::vector<std::string> TracedProgram::under_strace(const std::vector<std::string>& options) const {
  std::vector<std::string> command = {"strace", "-f", "-qq", "-o", trace_file_};
  command.insert(command.end(), options.begin(), options.end());
  command.insert(command.end(), command_.begin(), command_.end());
  return command;
}

Ending TracedProgram::run_under_strace(const std::string& folder,
                                       const std::vector<std::string>& options) const {
  return run_command(under_strace(options), folder);
}

}  // namespace vorlund::test
