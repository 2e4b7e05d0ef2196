// The entries of a list of the window object as a Qt model: those that are shown and were not filtered out.
#pragma once

#include <QAbstractListModel>
#include <string>
#include <vector>

#include "panes/controls.h"

namespace vorlund {

/// Reads texts or labels where they lie; nothing is copied. A row of the model is an entry that is shown; the
/// index of an entry is its place in the window object's list.
class EntryModel : public QAbstractListModel {
 public:
  static constexpr int kMarkedRole = Qt::UserRole;  ///< true for an entry in another colour than the others

  /// All outlive the model.
  EntryModel(const std::vector<std::string>& texts, const Finder& finder) : texts_(&texts), finder_(finder) {}
  EntryModel(const std::vector<Label>& labels, const Finder& finder) : labels_(&labels), finder_(finder) {}

  /// Takes over what has changed in the list; true when other entries are shown than before.
  bool refresh();

  /// What was typed to filter the entries.
  [[nodiscard]] const Finder& finder() const { return finder_; }

  /// Index of the entry in a row, and the model index of an entry, invalid where it is not shown.
  [[nodiscard]] int entry(const QModelIndex& row) const {
    return shown_.at(static_cast<std::size_t>(row.row()));
  }
  [[nodiscard]] QModelIndex row_of(int entry) const;

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

 private:
  [[nodiscard]] int count() const;
  [[nodiscard]] const std::string& text(int entry) const;

  const std::vector<std::string>* texts_ = nullptr;
  const std::vector<Label>* labels_ = nullptr;
  const Finder& finder_;
  std::vector<int> shown_;
};

}  // namespace vorlund
