// Shows a list of the model: its texts, the selected one, and a word where there is none.
#pragma once

#include <QAbstractListModel>
#include <QListView>
#include <functional>
#include <string>
#include <vector>

namespace vorlund {

/// Texts of the window object's state as a Qt model; nothing is copied.
class TextListModel : public QAbstractListModel {
 public:
  explicit TextListModel(const std::vector<std::string>& texts) : texts_(texts) {}

  /// Takes over what has changed in the list.
  void refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const std::vector<std::string>& texts_;
  int count_ = 0;
};

/// A list whose selected entry is the model's. Long entries are elided and have a tooltip.
class ListView : public QListView {
 public:
  /// `texts` outlives the list. `caption` is what assistive tools call the list.
  ListView(const QString& name, const QString& caption, const std::vector<std::string>& texts,
           QWidget* parent);

  /// An entry was clicked or reached with the keyboard, or Enter or Space pressed on it.
  std::function<void(int index)> on_select;

  /// Delete was pressed.
  std::function<void()> on_delete;

  /// Shown in place of entries while there is none.
  void set_empty_text(const QString& text) { empty_text_ = text; }

  /// Takes over the entries and the selected one, -1 for none, and scrolls to it when it is another.
  void apply(int selected);

  QSize sizeHint() const override { return {220, 160}; }
  QSize minimumSizeHint() const override { return {120, 80}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  TextListModel model_;
  QString empty_text_;
};

}  // namespace vorlund
