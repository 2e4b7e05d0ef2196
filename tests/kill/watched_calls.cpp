// Takes the lines of a trace apart.
#include "kill/watched_calls.h"

#include <cctype>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>

namespace vorlund::test {

namespace {

/// One call: its arguments, and what it returned with the path of a returned descriptor.
struct Call {
  std::string name;
  std::vector<std::string> arguments;
  std::string result;
  bool failed = false;
};

/// The bytes of a text as the trace spells them, without its quotes or angle brackets.
std::string unescaped(const std::string& text) {
  static const std::map<char, char> kLetters = {
      {'n', '\n'}, {'t', '\t'}, {'r', '\r'}, {'v', '\v'}, {'f', '\f'}};
  std::string bytes;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\' || at + 1 == text.size()) {
      bytes += text[at];
      continue;
    }
    ++at;
    if (text[at] < '0' || text[at] > '7') {
      const auto letter = kLetters.find(text[at]);
      bytes += letter == kLetters.end() ? text[at] : letter->second;
      continue;
    }
    int value = 0;
    std::size_t digits = 0;
    while (digits < 3 && at < text.size() && text[at] >= '0' && text[at] <= '7') {
      value = value * 8 + (text[at++] - '0');
      ++digits;
    }
    --at;
    bytes += static_cast<char>(value);
  }
  return bytes;
}

/// The argument as a path: the text in quotes, or the path of a descriptor.
std::string path_in(const std::string& argument) {
  const std::size_t quote = argument.find('"');
  if (quote != std::string::npos) {
    return unescaped(argument.substr(quote + 1, argument.rfind('"') - quote - 1));
  }
  const std::size_t open = argument.find('<');
  const std::size_t close = argument.rfind('>');
  if (open == std::string::npos || close == std::string::npos) return "";
  return unescaped(argument.substr(open + 1, close - open - 1));
}

/// Splits "name(arguments) = result"; texts in quotes and brackets hold commas and parentheses of their own.
Call parse(const std::string& line) {
  Call call;
  std::size_t at = line.find('(');
  if (at == std::string::npos) return call;
  call.name = line.substr(0, at);
  std::string argument;
  int depth = 0;
  bool quoted = false;
  for (++at; at < line.size(); ++at) {
    const char character = line[at];
    if (quoted && character == '\\') {
      argument += character;
      argument += line[++at];
      continue;
    }
    if (character == '"') quoted = !quoted;
    if (!quoted && (character == '{' || character == '[' || character == '(' || character == '<')) ++depth;
    if (!quoted && depth > 0 &&
        (character == '}' || character == ']' || character == ')' || character == '>')) {
      --depth;
    } else if (!quoted && depth == 0 && (character == ',' || character == ')')) {
      call.arguments.push_back(argument);
      argument.clear();
      if (character == ')') break;
      continue;
    }
    argument += character;
  }
  const std::size_t equals = line.find("= ", at);
  if (equals != std::string::npos) call.result = line.substr(equals + 2);
  call.failed = call.result.starts_with("-1");
  return call;
}

/// The path that an argument names, from the folder that the argument before it stands for.
std::string path_at(const Call& call, std::size_t folder, std::size_t name) {
  const std::string path = path_in(call.arguments.at(name));
  return path.starts_with('/') ? path : path_in(call.arguments.at(folder)) + "/" + path;
}

bool is_one_of(const std::string& name, const std::set<std::string>& names) {
  return names.contains(name);
}

void take_open(const Call& call, WatchedCalls& calls) {
  if (call.failed) return;
  std::string flags = call.name == "creat" ? "O_WRONLY" : "";
  for (const std::string& argument : call.arguments)
    flags += argument.find('"') == std::string::npos ? argument : "";
  const bool writes =
      flags.find("O_WRONLY") != std::string::npos || flags.find("O_RDWR") != std::string::npos ||
      flags.find("O_CREAT") != std::string::npos || flags.find("O_TRUNC") != std::string::npos;
  (writes ? calls.written : calls.read).push_back(path_in(call.result));
}

void take(const Call& call, WatchedCalls& calls) {
  const std::string& name = call.name;
  if (is_one_of(name, {"open", "openat", "openat2", "creat"})) return take_open(call, calls);
  if (name == "unlink" && !call.failed) calls.deleted.push_back(path_in(call.arguments.at(0)));
  if (name == "unlinkat" && !call.failed) calls.deleted.push_back(path_at(call, 0, 1));
  if (name == "rename" && !call.failed) {
    calls.deleted.push_back(path_in(call.arguments.at(0)));
    calls.written.push_back(path_in(call.arguments.at(1)));
  }
  if (is_one_of(name, {"renameat", "renameat2"}) && !call.failed) {
    calls.deleted.push_back(path_at(call, 0, 1));
    calls.written.push_back(path_at(call, 2, 3));
  }
  if (is_one_of(name, {"truncate", "chmod", "fchmod", "chown", "fchown"}) && !call.failed) {
    calls.written.push_back(path_in(call.arguments.at(0)));
  }
  if (is_one_of(name, {"mkdir", "rmdir"})) calls.folders.push_back(path_in(call.arguments.at(0)));
  if (name == "mkdirat") calls.folders.push_back(path_at(call, 0, 1));
  if (is_one_of(name, {"link", "linkat", "symlink", "symlinkat", "mknod", "mknodat"})) {
    calls.links.push_back(call.name + " " + path_in(call.arguments.at(0)));
  }
  if (is_one_of(name, {"socket", "socketpair"})) calls.networks.push_back(call.arguments.at(0));
  if (is_one_of(name, {"execve", "execveat"})) calls.programs.push_back(path_in(call.arguments.at(0)));
  if (is_one_of(name,
                {"utime", "utimes", "utimensat", "futimesat", "lchown", "fchmodat", "fchownat", "setxattr",
                 "lsetxattr", "removexattr", "lremovexattr", "mount", "umount2", "chroot", "swapon"})) {
    calls.other_changes.push_back(call.name + " " + path_in(call.arguments.at(0)));
  }
}

}  // namespace

WatchedCalls read_watched_calls(const std::string& trace_file) {
  static const std::string kUnfinished = " <unfinished ...>";
  WatchedCalls calls;
  std::map<std::string, std::string> begun;  // by thread: a call that another thread's line broke in two
  std::ifstream lines(trace_file);
  for (std::string thread, line; lines >> thread && std::getline(lines >> std::ws, line);) {
    if (line.ends_with(kUnfinished)) {
      begun[thread] = line.substr(0, line.size() - kUnfinished.size());
      continue;
    }
    if (line.starts_with("<... ")) {
      const std::size_t rest = line.find("resumed>");
      if (rest == std::string::npos) throw std::runtime_error("a trace that can't be read: " + line);
      line = begun[thread] + line.substr(rest + 8);
    }
    take(parse(line), calls);
  }
  return calls;
}

}  // namespace vorlund::test
