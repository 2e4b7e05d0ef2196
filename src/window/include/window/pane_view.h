// What the views have in common: each control is declared once, with its data, its look and its handler.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <functional>
#include <vector>

#include "panes/form1.h"
#include "window/action_label.h"
#include "window/choice_view.h"
#include "window/list_view.h"
#include "window/pane_frame.h"
#include "window/picture_view.h"
#include "window/text_label.h"

namespace vorlund {

/// Runs an event handler of the window object and then shows the state it left; an error ends the program.
using Perform = std::function<void(const std::function<void()>&)>;

/// Object name of an element of a control array, such as "Label9(1)".
inline QString element_name(const char* array, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(array)).arg(index);
}

/// A view of controls. It owns no state: `apply` walks the list of what was declared and shows the data of
/// each control. Events run the declared handlers and nothing else. Handlers are members of Form1; an `index`
/// is handed to handlers of control arrays.
class PaneView {
 public:
  PaneView(Form1& form, Perform perform) : form_(form), perform_(std::move(perform)) {}
  virtual ~PaneView() = default;
  PaneView(const PaneView&) = delete;
  PaneView& operator=(const PaneView&) = delete;

  virtual void apply();

  /// Closes the pane as its own control does.
  void close() const { close_(); }

  /// The least size of the pane at which nothing of it is cut, where it may be so wide.
  [[nodiscard]] virtual QSize least_size(int /*width*/) { return frame_->least_size(); }

  /// The pane, null for views that stand on the window itself.
  [[nodiscard]] PaneFrame* frame() const { return frame_; }

 protected:
  using Click = void (Form1::*)();
  using IndexedClick = void (Form1::*)(int);
  using Press = void (Form1::*)(const MouseEvent&);
  using Look = ActionLabel::Look;
  using Tone = TextLabel::Tone;

  /// The pane that all further controls stand in: dragged by its free area, or hidden by a click on it.
  void dragged_frame(const char* name, const Frame& data, QWidget* parent, Press press, Press release,
                     std::function<void()> close);
  void clicked_frame(const char* name, const Frame& data, QWidget* parent, Click hide);

  /// From now on controls stand on this widget.
  void stand_on(QWidget* board) { board_ = board; }

  ActionLabel* command(const char* name, const Label& data, Look look, Click handler,
                       const QString& tool_tip = {});
  ActionLabel* command(const char* array, int index, const Label& data, Look look, IndexedClick handler,
                       const QString& tool_tip = {});
  TextLabel* text(const QString& name, const Label& data, Tone tone);
  ListView* list(const char* name, const QString& caption, ListBox& data, IndexedClick handler,
                 const QString& when_empty);
  ListView* list(const char* name, const QString& caption, FileList& data, IndexedClick handler,
                 const QString& when_empty);
  /// A label array as a list of what is seen of it.
  ListView* labels(const char* array, const QString& caption, const std::vector<Label>& data,
                   const int& selected, Finder& finder, IndexedClick handler);
  OptionButton* option(const char* array, int index, const Choice& data, IndexedClick handler);
  CheckBox* check_box(const char* name, const Choice& data, Click handler);
  PictureView* picture(const char* name, const Picture& data, PictureFit fit, const QString& caption,
                       Click handler);

  /// A box to type into; `typed` is given its text after each change.
  QLineEdit* text_box(const QString& name, const QString& caption, const TextBox& data,
                      std::function<void(const std::string&)> typed);

  /// A text of the window's own, in a single line.
  TextLabel* note(const QString& words, Tone tone = Tone::kQuiet);

  /// A text of the window's own of as many lines as it needs, which `words` gives each time.
  QLabel* hint(const char* name, std::function<QString()> words);

  /// Makes a list take what is typed into it.
  void find_in(ListView* view, Finder& finder);

  /// Something else to be shown in its turn.
  void also(std::function<void()> show) { shows_.push_back(std::move(show)); }

  /// Runs a handler with its arguments as an event does.
  template <typename... Parameters, typename... Arguments>
  void run(void (Form1::*handler)(Parameters...), const Arguments&... arguments) const {
    perform_([&] { std::invoke(handler, form_, arguments...); });
  }

  Form1& form_;
  PaneFrame* frame_ = nullptr;
  QWidget* board_ = nullptr;

 private:
  PaneFrame* make_frame(const char* name, const Frame& data, PaneFrame::FreeArea free_area, QWidget* parent);
  ActionLabel* show_command(ActionLabel* widget, const Label& data, const QString& tool_tip);
  ListView* show_list(ListView* view, const int& selected, Finder& finder, IndexedClick handler);

  Perform perform_;
  std::function<void()> close_;
  std::vector<std::function<void()>> shows_;
};

}  // namespace vorlund
