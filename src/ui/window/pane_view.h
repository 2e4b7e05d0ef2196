// What the views of the panes have in common: they show state of the window object and hand events to it.
#pragma once

#include <QString>
#include <functional>

namespace vorlund {

/// Runs an event handler of the window object and then shows the state it left; an error ends the program.
using Perform = std::function<void(const std::function<void()>&)>;

/// A view of one pane. It owns no state: `apply` takes over all that it shows.
class PaneView {
 public:
  virtual ~PaneView() = default;
  virtual void apply() = 0;
};

/// Object name of an element of a control array, such as "Label9(1)".
inline QString element_name(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

}  // namespace vorlund
