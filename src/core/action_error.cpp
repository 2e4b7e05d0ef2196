// Composes the sentence that an error report shows.
#include "core/action_error.h"

namespace vorlund {

namespace {

std::string sentence(std::string_view attempted, std::string_view path, std::string_view reason) {
  std::string text = "Could not ";
  text.append(attempted).append(" \"").append(path).append("\": ").append(reason);
  return text;
}

}  // namespace

ActionError::ActionError(std::string_view attempted, std::string_view path, std::string_view reason)
    : std::runtime_error(sentence(attempted, path, reason)),
      attempted_(attempted),
      path_(path),
      reason_(reason) {}

}  // namespace vorlund
