// Shows a list of the model: its texts, the selected one, what was typed to find one, and a word where there
// is none.
#pragma once

#include <QLabel>
#include <QListView>
#include <functional>
#include <string>
#include <vector>

#include "window/entry_model.h"

namespace vorlund {

/// A list whose selected entry is the model's. Only what is seen is laid out as a widget would be: a list of
/// tens of thousands opens at once. Long entries are elided and have a tooltip. What is typed filters the
/// entries and is shown in a small box; Backspace takes the last character back, Escape all of them.
class ListView : public QListView {
 public:
  /// How an entry is acted on.
  enum class Kind {
    kList,     ///< at the press of the mouse, and by each arrow key
    kLabels,   ///< at the release over the pressed entry; arrow keys move a frame, Enter and Space act
    kFolders,  ///< at a double click; arrow keys and the first press mark an entry, Enter and Space act
  };

  /// `texts` and `finder` outlive the list. `caption` is what assistive tools call the list.
  ListView(const QString& name, const QString& caption, const std::vector<std::string>& texts,
           const Finder& finder, QWidget* parent, Kind kind = Kind::kList);
  ListView(const QString& name, const QString& caption, const std::vector<Label>& labels,
           const Finder& finder, QWidget* parent);

  /// An entry was acted on.
  std::function<void(int index)> on_select;
  /// Both presses of a double click fell on one entry, which the first has acted on.
  std::function<void()> on_double_click;
  /// Something was typed.
  std::function<void(const std::string& typed)> on_find;
  /// Says whether arrow keys act in `kLabels` too.
  std::function<bool()> arrows_act;

  /// Delete was pressed.
  std::function<void()> on_delete;

  /// From now on what lies behind shows through, and the pointer says that entries can be clicked.
  void stand_on_picture();

  /// Shown in place of entries while there is none and nothing has been typed.
  void set_empty_text(const QString& text) { empty_text_ = text; }

  /// What stands in place of entries, "" while there are any. Screen readers are told it as well.
  [[nodiscard]] QString empty_words() const;

  /// From now on what was typed is shown only while the keyboard is here: another list shows it too.
  void show_typed_when_focused() { typed_when_focused_ = true; }

  /// Takes over the entries and the selected one, -1 for none, and scrolls to it when it is another.
  void apply(int selected);

  [[nodiscard]] const EntryModel& entries() const { return model_; }

  /// Scrolls to an entry and says where it is in the viewport; null where it is not shown.
  QRect reach(int index);

  [[nodiscard]] QSize sizeHint() const override { return {220, 160}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {120, 80}; }

  void keyboardSearch(const QString&) override {}

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  void set_up(const QString& name, const QString& caption);
  void show_selected(int selected, bool others);
  void show_typed();
  bool find(const QKeyEvent& event);
  bool act(const QModelIndex& row);

  EntryModel model_;
  Kind kind_;
  QString empty_text_;
  QLabel* find_box_ = nullptr;
  QPersistentModelIndex pressed_;
  int selected_ = -1;
  bool typed_when_focused_ = false;
};

/// An element of a label array as a list shows it.
struct ShownElement {
  ListView* list = nullptr;  ///< null where no list of the window shows the array
  int index = 0;
};

/// The element of that object name, such as "SelLab(3)".
ShownElement find_element(const QWidget& window, const QString& name);

}  // namespace vorlund
