// Which entries are shown, and what is shown of them.
#include "window/entry_model.h"

#include <algorithm>

#include "base/name_filter.h"
#include "window/theme.h"

namespace vorlund {

int EntryModel::count() const {
  return static_cast<int>(labels_ != nullptr ? labels_->size() : texts_->size());
}

const std::string& EntryModel::text(int entry) const {
  const auto index = static_cast<std::size_t>(entry);
  return labels_ != nullptr ? (*labels_)[index].caption : (*texts_)[index];
}

bool EntryModel::refresh() {
  const NameFilter filter(finder_.typed);
  std::vector<int> now;
  for (int entry = 0; entry < count(); ++entry) {
    if (labels_ != nullptr && !(*labels_)[static_cast<std::size_t>(entry)].visible) continue;
    if (filter.matches(text(entry))) now.push_back(entry);
  }
  if (now == shown_) {
    if (!now.empty()) emit dataChanged(index(0), index(rowCount() - 1));
    return false;
  }
  beginResetModel();
  shown_ = std::move(now);
  endResetModel();
  return true;
}

QModelIndex EntryModel::row_of(int entry) const {
  const auto at = std::lower_bound(shown_.begin(), shown_.end(), entry);
  return at != shown_.end() && *at == entry ? index(static_cast<int>(at - shown_.begin())) : QModelIndex();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount() || entry(index) >= count()) return {};
  if (role == Qt::DisplayRole) return QString::fromStdString(text(entry(index)));
  if (role == Qt::ToolTipRole) return theme::literal(QString::fromStdString(text(entry(index))));
  const bool marked =
      labels_ != nullptr && (*labels_)[static_cast<std::size_t>(entry(index))].text_colour != kWhite;
  if (role == kMarkedRole) return marked;
  if (role == Qt::ForegroundRole && marked) {
    return QColor::fromRgb((*labels_)[static_cast<std::size_t>(entry(index))].text_colour);
  }
  return {};
}

}  // namespace vorlund
