// Composes the sentence that an error report shows.
#include "base/action_error.h"

#include <algorithm>

namespace vorlund {

namespace {

std::string sentence(std::string_view attempted, std::string_view path, std::string_view reason) {
  std::string text = "Could not ";
  text.append(attempted).append(" \"").append(path).append("\": ").append(reason);
  std::replace(text.begin(), text.end(), '\0', '?');  // what() ends at the first one
  return text;
}

}  // namespace

ActionError::ActionError(std::string_view attempted, std::string_view path, std::string_view reason)
    : std::runtime_error(sentence(attempted, path, reason)),
      attempted_(attempted),
      path_(path),
      reason_(reason) {}

}  // namespace vorlund
