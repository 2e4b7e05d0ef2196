// The one exception that ends an action: what was attempted, on which path, and why it failed.
#pragma once

#include <new>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vorlund {

/// The reason where memory does not suffice.
inline constexpr std::string_view kOutOfMemory = "there is not enough memory for it";

/// The reason where a folder stands in a file's place.
inline constexpr std::string_view kIsFolder = "it is a folder";

/// A failure that ends the running action and with it the program. Nobody catches it but the outermost
/// layer, which shows `what()` to the user. All texts are UTF-8.
class ActionError : public std::runtime_error {
 public:
  /// `attempted` is a verb phrase ("copy", "read line 7 of"), `path` the file or folder it was tried on,
  /// `reason` the system's own text or the rule that was broken. `what()` joins the three into one sentence.
  ActionError(std::string_view attempted, std::string_view path, std::string_view reason);

  [[nodiscard]] const std::string& attempted() const { return attempted_; }
  [[nodiscard]] const std::string& path() const { return path_; }
  [[nodiscard]] const std::string& reason() const { return reason_; }

 private:
  std::string attempted_;
  std::string path_;
  std::string reason_;
};

/// Does the work on a file; where memory gives out, that is an ActionError that names the file.
template <typename Work>
void within_memory(std::string_view attempted, std::string_view path, Work work) try {
  work();
} catch (const std::bad_alloc&) {
  throw ActionError(attempted, path, kOutOfMemory);
} catch (const std::length_error&) {
  throw ActionError(attempted, path, kOutOfMemory);
}

}  // namespace vorlund
